#include "edit_line.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "fitted_text.h"

namespace wrenbit {
namespace {

// A box that is full may cut a character of two codes in half; half a character would come out as "?".
std::string Whole_Characters(QString text) {
  for (qsizetype at = 0; at < text.size(); ++at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (pair)
      ++at;
    else if (text[at].isSurrogate())
      text[at] = QChar::ReplacementCharacter;
  }
  return text.toStdString();
}

}  // namespace

Edit_Line::Edit_Line(TextBox& shown, QWidget* holder) : QLineEdit(holder), box(shown) {
  setMaxLength(box.MaxLength);
  setReadOnly(!box.Change);
  // A thin edge, because the box is hardly higher than its letters.
  setStyleSheet(
      QStringLiteral("QLineEdit { border: 1px solid palette(dark); background: palette(base); }"
                     "QLineEdit:focus { border-color: palette(highlight); }"
                     "QLineEdit:disabled { background: palette(window); }"));
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& typed) { box.Edit(Whole_Characters(typed)); });
  // A screen reader writes the text without editing it.
  connect(this, &QLineEdit::textChanged, this, [this] {
    if (text() != QString::fromStdString(box.Text())) box.Edit(Whole_Characters(text()));
  });
  connect(this, &QLineEdit::selectionChanged, this, [this] {
    if (selectionLength() != box.SelLength()) box.Set_SelLength(selectionLength());
  });
}

void Edit_Line::Follow() {
  const int selected = box.SelLength();  // A new text in the view takes the selection away, from both.
  if (const QString now = QString::fromStdString(box.Text()); text() != now) setText(now);
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
  setTextMargins(0, std::min(2 * shift, 0), 0, std::min(-2 * shift, 0));
}

}  // namespace wrenbit
