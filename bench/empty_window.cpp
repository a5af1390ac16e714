// The least that a program with a Qt window can be.
#include <QApplication>

#include "shown_window.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(680, 470);
  window.show();
  bench::Await_Painted(window);
  bench::Say_And_End();
}
