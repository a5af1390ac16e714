#include "shell/qt/views/form_view.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "shell/qt/drawing/look.h"
#include "shell/qt/views/control_views.h"

namespace wrenbit {
namespace {

Qt::WindowFlags Flags(Form_Kind kind) {
  constexpr Qt::WindowFlags kBar = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
  switch (kind) {
    case Form_Kind::Dialog:
      return Qt::Dialog | kBar;
    case Form_Kind::Splash:
      return Qt::SplashScreen | Qt::FramelessWindowHint;
    case Form_Kind::Main:
      break;
  }
  return Qt::Window | kBar | Qt::WindowMinimizeButtonHint;
}

constexpr QColor kSplash(0xEF, 0xEF, 0xEF);
constexpr int kPatience = 1000;  // Milliseconds in which a window system has placed a new window.

// Wayland keeps to itself where windows are.
bool System_Tells_Positions() {
  return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

bool Is_Menu(const Control* control) { return dynamic_cast<const Menu*>(control) != nullptr; }

}  // namespace

Form_View::Form_View(Form& shown, Form_Kind what, QWidget* owner)
    : QMainWindow(owner, Flags(what)), form(shown), kind(what) {
  setAccessibleName(QString::fromStdString(form.AccessibleName));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  if (kind == Form_Kind::Dialog) setWindowModality(Qt::ApplicationModal);
  if (kind == Form_Kind::Splash) setPalette(QPalette(kSplash));  // Its letters have colours of their own.
  Make_Views();
  Hook_Form();
  if (kind != Form_Kind::Main) return;
  // Makes the window itself, which can be told where its frame is to stand; a widget forgets it as it shows.
  winId();
  connect(windowHandle(), &QWindow::visibleChanged, this, [this](bool visible) {
    if (visible) Place_Frame();
  });
}

Form_View::~Form_View() {
  form.Changed = form.View_Hide = form.View_Move = nullptr;
  form.View_Show = nullptr;
  form.View_Focus = nullptr;
  for (Control* control : form.Controls()) control->Changed = nullptr;
}

void Form_View::Make_Views() {
  auto* client = new QWidget;
  client->setFixedSize(Pixels(form.ClientWidth), Pixels(form.ClientHeight));
  setCentralWidget(client);
  for (Control* control : form.Controls()) {
    QWidget* holder = control->Container() != &form ? View_Of(*control->Container())
                      : Is_Menu(control)            ? menuBar()
                                                    : client;
    views[control] = Make_View(*control, holder);
  }
}

void Form_View::Hook_Form() {
  form.Changed = [this] {
    setWindowTitle(QString::fromStdString(form.Caption()));
    if (form.MousePointer() == Pointer::Hourglass)
      setCursor(Qt::WaitCursor);
    else
      unsetCursor();
  };
  form.Changed();
  form.View_Show = [this](bool modal) {
    if (kind != Form_Kind::Main) {
      Centre();
      Focus_First();
    }
    placing = true;  // Windows tells of a place of its own choice before it can be told of ours.
    if (modal)
      Show_Until_Hidden();
    else
      show();
  };
  form.View_Hide = [this] { hide(); };
  form.View_Focus = [this](Control& control) {
    if (QWidget* view = View_Of(control)) view->setFocus();
  };
  form.View_Move = [this] {
    if (!noting && isVisible()) Place_Frame();
  };
}

QWidget* Form_View::View_Of(const Control& control) const {
  const auto found = views.find(&control);
  return found == views.end() ? nullptr : found->second;
}

void Form_View::Centre() {
  adjustSize();
  const QPoint middle =
      parentWidget() ? parentWidget()->frameGeometry().center() : screen()->geometry().center();
  move(middle - rect().center());
}

// Each time a dialog opens, wherever the keyboard was when it closed.
void Form_View::Focus_First() {
  for (const Control* control : form.Controls())
    if (QWidget* view = View_Of(*control); view && view->isEnabled() && view->focusPolicy() & Qt::TabFocus)
      return view->setFocus();
}

void Form_View::Show_Until_Hidden() {
  QEventLoop loop;
  form.View_Hide = [this, &loop] {
    hide();
    loop.quit();
  };
  show();
  loop.exec();
  form.View_Hide = [this] { hide(); };
}

QPoint Form_View::Wanted_Corner() const { return {Pixels(form.Left()), Pixels(form.Top())}; }

void Form_View::Place_Frame() {
  placing = true;
  windowHandle()->setFramePosition(Wanted_Corner());
  QTimer::singleShot(kPatience, this, [this] { placing = false; });
}

void Form_View::Note_Position() {
  if (kind != Form_Kind::Main || !isVisible() || isMinimized() || !System_Tells_Positions()) return;
  // Not what the widget knows, which learns of its frame late, and from some window managers never rightly.
  const QWindow& window = *windowHandle();
  const QPoint corner = window.framePosition();
  const QPoint before = std::exchange(resting, window.position());
  if (placing) {
    placing = corner != Wanted_Corner() || window.frameMargins().isNull();
    return;
  }
  if (resting == before || corner == Wanted_Corner()) return;  // The form keeps its fractions of a pixel.
  noting = true;
  form.Move(corner.x() * kTwipsPerPixel, corner.y() * kTwipsPerPixel);
  noting = false;
}

bool Form_View::event(QEvent* event) {
  const bool known = QMainWindow::event(event);
  Note_Position();
  return known;
}

void Form_View::closeEvent(QCloseEvent* event) {
  event->ignore();  // Whether and when the window goes is the form's decision.
  form.Close();
}

void Form_View::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) form.Set_Minimised(isMinimized());
  QMainWindow::changeEvent(event);
}

void Form_View::keyPressEvent(QKeyEvent* event) {
  Fire(form.Form_KeyPress);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool escape = event->key() == Qt::Key_Escape;
  for (Control* control : form.Controls())
    if (auto* button = dynamic_cast<CommandButton*>(control);
        button && button->Reachable() && button->Visible() &&
        ((enter && button->Default) || (escape && button->Cancel)))
      return Fire(button->Click);
}

}  // namespace wrenbit
