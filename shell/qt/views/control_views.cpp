#include "shell/qt/views/control_views.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QStylePainter>
#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "shell/controls/lists_and_boxes.h"
#include "shell/controls/plain_controls.h"
#include "shell/controls/status_bar.h"
#include "shell/qt/drawing/colours.h"
#include "shell/qt/drawing/fitted_text.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/drawing/pictures.h"
#include "shell/qt/drawing/pixel_lines.h"
#include "shell/qt/views/drop_down.h"
#include "shell/qt/views/edit_line.h"
#include "shell/qt/views/grid_view.h"
#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

// Calls show now and after each change of the control.
template <class Show>
void Follow(Control& control, Show show) {
  control.Changed = std::move(show);
  control.Changed();
}

void Show_Tip(QWidget& view, const Control& control) {
  const QString tip = Text_Of(control.OutOfDate().empty() ? control.ToolTipText() : control.OutOfDate());
  if (view.toolTip() == tip) return;
  view.setToolTip(tip);
  view.setAccessibleDescription(tip);
}

// Letters and marks as in a disabled view.
void Set_Grey(QWidget& view, bool grey) {
  const auto role = qobject_cast<QLabel*>(&view) ? QPalette::WindowText : QPalette::Text;
  QPalette colours;
  if (grey) colours.setColor(role, colours.color(QPalette::Disabled, role));
  view.setPalette(colours);
}

// The same for a widget at a place of its own, which also keeps to what every control has.
template <class Widget, class Show>
Widget* Placed(Widget* view, Control& control, Show show) {
  view->setGeometry(Pixels(control.At));
  view->setFont(Font_For(control.Lettering));
  view->setAccessibleName(Text_Of(control.AccessibleName));
  Follow(control, [view, &control, show, grey = false]() mutable {
    view->setEnabled(control.Enabled());
    view->setVisible(control.Visible());
    Show_Tip(*view, control);
    if (grey != !control.OutOfDate().empty()) Set_Grey(*view, grey = !grey);
    show();
  });
  return view;
}

// Looks as ever, but neither mouse nor keyboard gets there.
void Withhold(QWidget* view) {
  view->setAttribute(Qt::WA_TransparentForMouseEvents);
  view->setFocusPolicy(Qt::NoFocus);
}

QWidget* Label_View(Label& label, QWidget* holder) {
  auto* view = new Fitted_Label(holder);
  view->setTextFormat(Qt::PlainText);
  view->setAlignment(Qt::AlignTop | Side(label.Align));
  if (label.ForeColor) {
    QPalette colours = view->palette();
    colours.setColor(QPalette::WindowText, QColor(*label.ForeColor));
    view->setPalette(colours);
  }
  return Placed(view, label, [view, &label] { view->setText(Text_Of(label.Caption())); });
}

// A thin line around the group, with the caption standing in it. The style's own group box would lay the line
// through what lies in the upper part of the group.
class Group_Box : public QGroupBox {
 public:
  Group_Box(Frame& shown, QWidget* holder) : QGroupBox(holder), frame(shown) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const int letters = font().pixelSize();
    Draw_Frame(painter, rect().adjusted(0, letters / 2, 0, 0), Line_Colour(palette()));
    if (title().isEmpty()) return;
    const QRect gap(8, 0, std::min(fontMetrics().horizontalAdvance(title()) + 6, width() - 16), letters + 1);
    painter.fillRect(gap, palette().window());
    style()->drawItemText(&painter, gap, Qt::AlignCenter, palette(), isEnabled(), title(),
                          QPalette::WindowText);
  }
  void mousePressEvent(QMouseEvent*) override {}  // Takes the press, so that the release comes here too.
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (rect().contains(event->position().toPoint())) Fire(frame.Click);
  }

 private:
  Frame& frame;
};

QWidget* Frame_View(Frame& frame, QWidget* holder) {
  auto* view = new Group_Box(frame, holder);
  return Placed(view, frame, [view, &frame] { view->setTitle(Text_Of(frame.Caption())); });
}

QWidget* Picture_View(PictureBox& box, QWidget* holder) {
  auto* view = new QLabel(holder);
  view->setPixmap(Icon_Of(box.Image).pixmap(Pixels(box.At).size()));
  return Placed(view, box, [] {});
}

QWidget* Line_View(Line& line, QWidget* holder) {
  auto* view = new QWidget(holder);
  view->setPalette(QColor(line.Colour));
  view->setAutoFillBackground(true);
  Set_Role(view, QAccessible::Separator);
  return Placed(view, line, [] {});
}

// A button that has a picture shows it above its caption.
class Push_Button : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (icon().isNull()) return QPushButton::paintEvent(event);
    constexpr int kSide = 32;
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.icon = {};
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    const QRect room = rect().translated(0, isDown() ? 1 : 0);
    const QRect place((room.width() - kSide) / 2, room.top() + 3, kSide, kSide);
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.drawItemText(room.adjusted(3, kSide + 3, -3, -2), Qt::AlignCenter, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
  }
};

QWidget* Button_View(CommandButton& button, QWidget* holder) {
  auto* view = new Push_Button(holder);
  view->setIcon(Icon_Of(button.Image));
  view->setDefault(button.Default);
  view->setAutoDefault(true);  // The enter key presses the button that has the focus.
  QObject::connect(view, &QPushButton::clicked, view, [view, &button] {
    if (Within_Reach(*view)) Fire(button.Click);
  });
  return Placed(view, button, [view, &button] {
    view->setText(Text_Of(button.Caption()));
    view->setEnabled(button.Enabled() && button.Click);
  });
}

// Without a caption there is hardly more room than the mark's, and the style would draw past it.
class Bare_Check_Box : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
  }
};

QWidget* Check_Box_View(CheckBox& box, QWidget* holder) {
  auto* view = box.Caption().empty() ? new Bare_Check_Box(holder) : new QCheckBox(holder);
  if (!box.Click) Withhold(view);
  QObject::connect(view, &QCheckBox::toggled, view, [view, &box](bool checked) {
    if (checked == (box.Value() != 0)) return;
    if (Within_Reach(*view))
      box.Set_Value(checked);
    else
      view->setChecked(!checked);
  });
  return Placed(view, box, [view, &box] {
    view->setText(Text_Of(box.Caption()));
    view->setChecked(box.Value() != 0);
  });
}

QWidget* Text_Box_View(TextBox& box, QWidget* holder) {
  auto* view = new Edit_Line(box, holder);
  return Placed(view, box, [view] { view->Follow(); });
}

QWidget* Combo_Box_View(ComboBox& box, QWidget* holder) {
  auto* view = new Drop_Down(box, holder);
  if (!box.Click) Withhold(view);
  return Placed(view, box, [view] { view->Follow(); });
}

QWidget* Status_Bar_View(StatusBar& bar, QWidget* holder) {
  auto* view = new QWidget(holder);
  Set_Role(view, QAccessible::StatusBar);
  std::array<Fitted_Label*, StatusBar::kPanels> panels{};
  int left = 0;
  for (std::size_t i = 0; i < panels.size(); ++i) {
    panels[i] = new Fitted_Label(view);
    panels[i]->setTextFormat(Qt::PlainText);
    panels[i]->setAccessibleDescription(Text_Of(bar.PanelNames[i]));
    panels[i]->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panels[i]->setGeometry(Pixels(Place{left, 0, bar.Widths[i], bar.At.Height}).adjusted(0, 0, -1, 0));
    panels[i]->setMargin(1);
    left += bar.Widths[i];
  }
  const QString usual = Text_Of(bar.UsualLink);
  const auto width = [&](const QFont& letters) { return QFontMetrics(letters).horizontalAdvance(usual); };
  const QFont letters = Widest_That_Fits(Font_For(bar.Lettering), panels[1]->Room().width(), width);
  for (Fitted_Label* panel : panels) panel->setFont(letters);
  return Placed(view, bar, [panels, &bar] {
    for (int number = 1; QLabel * panel : panels) {
      const QString whole = Text_Of(bar.Panel(number++));
      panel->setText(whole);
      // Said aloud when it changes, and only then. An empty panel is called by what it tells of.
      const QString said = whole.isEmpty() ? panel->accessibleDescription() : whole;
      if (panel->accessibleName() != said) panel->setAccessibleName(said);
    }
  });
}

QWidget* Menu_View(Menu& menu, QWidget* holder) {
  QMenu* drop_down = qobject_cast<QMenuBar*>(holder) ? new QMenu(holder) : nullptr;
  if (drop_down) {
    holder->setAccessibleName(QStringLiteral("メニュー"));
    drop_down->setAccessibleName(Text_Of(menu.Caption()).remove('&'));
  }
  QAction* action = drop_down ? drop_down->menuAction() : new QAction(holder);
  action->setSeparator(menu.Separator());
  holder->addAction(action);
  // Later, so that a screen reader's choice of an entry need not wait for the end of the box that comes up.
  QObject::connect(
      action, &QAction::triggered, action,
      [action, holder, &menu] {
        if (action->isEnabled() && Within_Reach(*holder)) Fire(menu.Click);
      },
      Qt::QueuedConnection);
  Follow(menu, [action, &menu, offered = drop_down || menu.Click] {
    if (!menu.Separator()) action->setText(Text_Of(menu.Caption()));  // The line would show its dash.
    action->setEnabled(offered && menu.Enabled());
    action->setVisible(menu.Visible());
  });
  return drop_down;
}

QWidget* Grid_View_Of(FlexGrid& grid, QWidget* holder) {
  auto* view = new Grid_View(grid, holder);
  return Placed(view, grid, [view] { view->Follow(); });
}

}  // namespace

QWidget* Make_View(Control& control, QWidget* holder) {
  if (auto* label = dynamic_cast<Label*>(&control)) return Label_View(*label, holder);
  if (auto* frame = dynamic_cast<Frame*>(&control)) return Frame_View(*frame, holder);
  if (auto* box = dynamic_cast<PictureBox*>(&control)) return Picture_View(*box, holder);
  if (auto* line = dynamic_cast<Line*>(&control)) return Line_View(*line, holder);
  if (auto* button = dynamic_cast<CommandButton*>(&control)) return Button_View(*button, holder);
  if (auto* box = dynamic_cast<TextBox*>(&control)) return Text_Box_View(*box, holder);
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return Check_Box_View(*box, holder);
  if (auto* box = dynamic_cast<ComboBox*>(&control)) return Combo_Box_View(*box, holder);
  if (auto* bar = dynamic_cast<StatusBar*>(&control)) return Status_Bar_View(*bar, holder);
  if (auto* menu = dynamic_cast<Menu*>(&control)) return Menu_View(*menu, holder);
  if (auto* grid = dynamic_cast<FlexGrid*>(&control)) return Grid_View_Of(*grid, holder);
  return nullptr;
}

}  // namespace wrenbit
