// The least that a program with a Qt window can be; with a word, one that shows it.
#include <QApplication>
#include <QLabel>

#include "bench/shown_window.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  if (argc > 1) new QLabel(QString::fromUtf8(argv[1]), &window);
  window.resize(680, 470);
  window.show();
  bench::Await_Painted(window);
  bench::Say_And_End();
}
