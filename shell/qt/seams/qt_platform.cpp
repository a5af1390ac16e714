#include "shell/qt/seams/qt_platform.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QLabel>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace wrenbit {
namespace {

constexpr double kShort = 0.1;  // Seconds. A limit beyond may be missed by a twentieth.

QMessageBox::Icon Icon_Of(Message_Icon icon) {
  switch (icon) {
    case Message_Icon::None:
      return QMessageBox::NoIcon;
    case Message_Icon::Critical:
      return QMessageBox::Critical;
    case Message_Icon::Question:
      return QMessageBox::Question;
    case Message_Icon::Warning:
      return QMessageBox::Warning;
    case Message_Icon::Information:
      break;
  }
  return QMessageBox::Information;
}

QString Name_Of(Message_Icon icon) {
  switch (icon) {
    case Message_Icon::Critical:
      return QStringLiteral("エラー");
    case Message_Icon::Question:
      return QStringLiteral("質問");
    case Message_Icon::Warning:
      return QStringLiteral("警告");
    case Message_Icon::Information:
      return QStringLiteral("情報");
    case Message_Icon::None:
      break;
  }
  return {};
}

// Directly behind a file dialog no window is active yet; a message box without a parent could come to lie
// under the window that it blocks.
QWidget* Window_In_Front() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && !window->parent()) return window;
  return nullptr;
}

}  // namespace

void Qt_Platform::DoEvents() { QCoreApplication::processEvents(); }

void Qt_Platform::Repaint() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void Qt_Platform::Await_Event(double seconds) {
  // A wait for events knows no limit of its own.
  QTimer limit;
  // Precise ones cost much on Windows, where each has a thread of its own.
  if (seconds < kShort) limit.setTimerType(Qt::PreciseTimer);
  limit.setSingleShot(true);
  limit.start(std::max(0, static_cast<int>(std::ceil(seconds * 1000))));
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double Qt_Platform::Timer() { return static_cast<double>(clock.nsecsElapsed()) / 1e9; }

// A system that counts its own ticks may wake up a part of one too early.
void Qt_Platform::Sleep(int milliseconds) {
  const qint64 end = clock.nsecsElapsed() + milliseconds * qint64{1'000'000};
  for (qint64 left; (left = end - clock.nsecsElapsed()) > 0;)
    QThread::usleep(static_cast<unsigned long>((left + 999) / 1000));
}

bool Qt_Platform::MsgBox(const std::string& text, Message_Icon icon, Message_Buttons buttons,
                         const std::string& title) {
  QMessageBox box(Icon_Of(icon), QString::fromStdString(title),
                  QString::fromStdString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
                  buttons == Message_Buttons::Ok ? QMessageBox::Ok : QMessageBox::Ok | QMessageBox::Cancel,
                  Window_In_Front());
  box.setTextFormat(Qt::PlainText);
  if (auto* picture = box.findChild<QLabel*>("qt_msgboxex_icon_label"))
    picture->setAccessibleName(Name_Of(icon));
  return box.exec() == QMessageBox::Ok;
}

void Qt_Platform::Open_Address(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

std::string Qt_Platform::Show_Help(const std::string& path) {
  if (!help) help = std::make_unique<Help_Window>();
  return help->Show_Contents(path);
}

void Qt_Platform::End() {
  ended = true;
  // Not quit(), which asks each window to close, and each would refuse.
  QCoreApplication::exit();
}

}  // namespace wrenbit
