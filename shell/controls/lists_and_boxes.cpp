#include "shell/controls/lists_and_boxes.h"

#include <algorithm>
#include <utility>

#include "core/state/utf8_text.h"

namespace wrenbit {

TextBox::TextBox(Control& holder, Place place, int max_length, Font font)
    : Control(holder, place, font), MaxLength(max_length) {}

void TextBox::Set_Text(std::string value) {
  if (value != text) Edit(std::move(value));
}

void TextBox::Edit(std::string value) {
  selected = 0;
  text = std::move(value);
  Tell();
  Fire(Change);
}

void TextBox::Set_SelLength(int value) {
  selected = std::min(value, static_cast<int>(Characters(text)));
  Tell();
}

void TextBox::Reset() {
  text.clear();
  selected = 0;
  Control::Reset();
}

CheckBox::CheckBox(Control& holder, Place place, std::string first_caption, bool first_value)
    : Captioned(holder, place, std::move(first_caption)), first(first_value), value(first) {}

void CheckBox::Set_Value(int new_value) {
  if (Store(value, new_value)) Fire(Click);
}

void CheckBox::Reset() {
  value = first;
  Captioned::Reset();
}

void ComboBox::Clear() {
  items.clear();
  index = -1;
  Tell();
}

void ComboBox::AddItem(std::string item) {
  items.push_back(std::move(item));
  Tell();
}

bool ComboBox::Set_ListIndex(int new_index) {
  if (new_index < 0 || new_index >= ListCount()) return false;
  index = new_index;
  Tell();
  Fire(Click);
  return true;
}

void ComboBox::Reset() {
  Clear();
  Control::Reset();
}

}  // namespace wrenbit
