#include "bench/machine.h"

#include <QDate>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSysInfo>
#include <QThread>

namespace bench {

std::string Machine() {
  QFile file(QStringLiteral("/proc/cpuinfo"));
  const bool readable = file.open(QFile::ReadOnly);
  const QString processors = readable ? QString::fromUtf8(file.readAll()) : QString();
  const QString model =
      QRegularExpression(QStringLiteral("model name\\s*: (.*)")).match(processors).captured(1);
  return QStringLiteral("%1, %2 cores; %3, Linux %4; Qt %5 (%6); %7")
      .arg(model.isEmpty() ? QSysInfo::currentCpuArchitecture() : model)
      .arg(QThread::idealThreadCount())
      .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), QString::fromLatin1(qVersion()),
           QGuiApplication::platformName(), QDate::currentDate().toString(Qt::ISODate))
      .toStdString();
}

}  // namespace bench
