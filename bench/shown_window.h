// For the small programs whose start and memory are measured.
#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>
#include <cstdlib>
#include <iostream>

#include "bench/peak_memory.h"

namespace bench {

// Returns when the window stands painted on its display.
inline void Await_Painted(QWidget& window) {
  while (!window.windowHandle() || !window.windowHandle()->isExposed())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  window.repaint();
}

// Ends the process at once, with no tidying up that would count, and says the most memory that it had.
[[noreturn]] inline void Say_And_End() {
  std::cout << Peak_Memory() << std::endl;
  std::_Exit(0);
}

}  // namespace bench
