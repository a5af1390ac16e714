#include "shell/qt/views/edit_line.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "shell/qt/drawing/colours.h"
#include "shell/qt/drawing/fitted_text.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/drawing/pixel_lines.h"
#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

// A character of two codes counts for two in the view, and a box that is full may cut it in half. Code page
// 932 has none of them, so one code stands for each.
std::string Plain_Characters(const QString& text) {
  QString plain;
  for (const uint code : text.toUcs4())
    plain += code > 0xFFFF ? QChar(QChar::ReplacementCharacter) : QChar(static_cast<char16_t>(code));
  return plain.toStdString();
}

}  // namespace

Edit_Line::Edit_Line(TextBox& shown, QWidget* holder) : QLineEdit(holder), box(shown) {
  setMaxLength(box.MaxLength);
  setReadOnly(!box.Change);
  setFrame(false);  // It draws a thin one of its own, because the box is hardly higher than its letters.
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& typed) { box.Edit(Plain_Characters(typed)); });
  // A screen reader writes the text without editing it, and also where the user could not.
  connect(this, &QLineEdit::textChanged, this, [this] {
    const QString known = Text_Of(box.Text());
    if (text() == known) return;
    if (Within_Reach(*this) && !isReadOnly())
      box.Edit(Plain_Characters(text()));
    else
      setText(known);
  });
  connect(this, &QLineEdit::selectionChanged, this, [this] {
    if (selectionLength() != box.SelLength()) box.Set_SelLength(selectionLength());
  });
}

void Edit_Line::Follow() {
  const int selected = box.SelLength();  // A new text in the view takes the selection away, from both.
  if (const QString now = Text_Of(box.Text()); text() != now) setText(now);
  if (selectionLength() != selected) setSelection(0, selected);
}

void Edit_Line::keyPressEvent(QKeyEvent* event) {
  // Shortcuts and keys that only move or delete are no characters.
  const bool character = !event->text().isEmpty() && event->key() != Qt::Key_Delete &&
                         !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  const QString passed = character ? Passed(event->text()) : event->text();
  if (passed == event->text()) return QLineEdit::keyPressEvent(event);
  if (passed.isEmpty()) return;
  QKeyEvent changed(event->type(), event->key(), event->modifiers(), passed);
  QLineEdit::keyPressEvent(&changed);
}

void Edit_Line::inputMethodEvent(QInputMethodEvent* event) {
  const QString passed = Passed(event->commitString());
  if (passed == event->commitString()) return QLineEdit::inputMethodEvent(event);
  QInputMethodEvent changed(event->preeditString(), event->attributes());
  changed.setCommitString(passed, event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&changed);
}

void Edit_Line::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  entered = event->reason() == Qt::MouseFocusReason;
}

// The click that comes into the box selects what is there: a full box would take no key otherwise.
void Edit_Line::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (std::exchange(entered, false) && !hasSelectedText()) selectAll();
}

void Edit_Line::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  Draw_Frame(painter, rect(), hasFocus() ? palette().color(QPalette::Highlight) : Line_Colour(palette()));
}

void Edit_Line::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  Seat_Letters();
}

void Edit_Line::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) Seat_Letters();
}

QString Edit_Line::Passed(const QString& characters) const {
  if (!box.KeyPress) return characters;
  QString passed;
  for (const QChar character : characters) {
    auto key = static_cast<std::int16_t>(character.unicode());
    box.KeyPress(key);
    if (key != 0) passed += QChar(static_cast<char16_t>(key));
  }
  return passed;
}

// Lays the letters' em box into the middle of the box, where the style would lay their line.
void Edit_Line::Seat_Letters() {
  const QRect room = rect().adjusted(1, 1, -1, -1);
  const QFontMetrics metrics(font());
  const int as_it_is = room.top() + (room.height() - metrics.height() + 1) / 2 + metrics.ascent();
  const int shift = Base_Line(QStringLiteral("0gｱ"), font(), room, Qt::AlignVCenter) - as_it_is;
  // A margin below nothing, since what goes beyond the box is cut.
  setTextMargins(1, std::min(2 * shift, 0), 0, std::min(-2 * shift, 0));
}

}  // namespace wrenbit
