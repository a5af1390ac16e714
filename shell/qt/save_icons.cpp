// wrenbit-icons FOLDER: saves the program's picture in the sizes and the folders in which a desktop looks for
// an application's icon (the icon themes of freedesktop.org). Used by the build; needs no display.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <iostream>

#include "shell/qt/drawing/pictures.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: wrenbit-icons FOLDER\n";
    return EXIT_FAILURE;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    wrenbit::Paint_Picture(painter, icon.rect(), wrenbit::Picture::Program);
    painter.end();
    const QString folder =
        QStringLiteral("%1/hicolor/%2x%2/apps").arg(QString::fromLocal8Bit(argv[1])).arg(side);
    if (!QDir().mkpath(folder) || !icon.save(folder + QStringLiteral("/wrenbit.png"))) {
      std::cerr << "wrenbit-icons: cannot write to " << folder.toStdString() << '\n';
      return EXIT_FAILURE;
    }
  }
}
