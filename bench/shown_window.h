// For the small programs whose start and memory are measured.
#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>
#include <cstdlib>
#include <iostream>

#include "bench/proc_linux.h"

namespace bench {

// Returns when the window stands painted on its display.
inline void Await_Painted(QWidget& window) {
  while (!window.windowHandle() || !window.windowHandle()->isExposed())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  window.repaint();
}

// Ends the process at once, with no tidying up that would count, and says the most memory that it had
// resident, as "36123 kB". The peak that getrusage tells would begin with that of the process that started
// this one.
[[noreturn]] inline void Say_And_End() {
  std::cout << Proc_Field("/proc/self/status", "VmHWM") << std::endl;
  std::_Exit(0);
}

}  // namespace bench
