// wrenbit-icons FOLDER: saves the program's picture in the sizes and the folders in which a desktop looks for
// an application's icon (the icon themes of freedesktop.org), and all of it in wrenbit.ico, as Windows wants
// it. Used by the build; needs no display.
#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <cstdlib>
#include <iostream>

#include "shell/qt/drawing/pictures.h"

namespace {

QImage Icon(int side) {
  QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  wrenbit::Paint_Picture(painter, icon.rect(), wrenbit::Picture::Program);
  return icon;
}

bool Save_In_Theme(const QString& folder) {
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    const QString place = QStringLiteral("%1/hicolor/%2x%2/apps").arg(folder).arg(side);
    if (!QDir().mkpath(place) || !Icon(side).save(place + QStringLiteral("/wrenbit.png"))) return false;
  }
  return true;
}

// A directory of pictures, each a PNG since Windows Vista: how many; of each its sides (0 for 256), its
// depth, its length and where it begins; then the pictures.
bool Save_Ico(const QString& path) {
  constexpr std::array kSides{16, 20, 24, 32, 40, 48, 64, 96, 128, 256};
  constexpr quint32 kHead = 6, kEntry = 16;
  QByteArray head, pictures;
  QDataStream entries(&head, QIODevice::WriteOnly);
  entries.setByteOrder(QDataStream::LittleEndian);
  entries << quint16{0} << quint16{1} << static_cast<quint16>(kSides.size());
  for (const int side : kSides) {
    QBuffer png;
    if (!Icon(side).save(&png, "PNG")) return false;
    const auto byte = static_cast<quint8>(side);
    entries << byte << byte << quint16{0} << quint16{1} << quint16{32} << static_cast<quint32>(png.size())
            << static_cast<quint32>(kHead + kEntry * kSides.size() + static_cast<quint32>(pictures.size()));
    pictures += png.data();
  }
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(head + pictures) == head.size() + pictures.size();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: wrenbit-icons FOLDER\n";
    return EXIT_FAILURE;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QString folder = QString::fromLocal8Bit(argv[1]);
  if (Save_In_Theme(folder) && Save_Ico(folder + QStringLiteral("/wrenbit.ico"))) return EXIT_SUCCESS;
  std::cerr << "wrenbit-icons: cannot write to " << argv[1] << '\n';
  return EXIT_FAILURE;
}
