// What the user fills in: text boxes, check boxes, drop-down lists.
// A write from code fires the control's event inside the write, as the user's own doing does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/controls/control.h"
#include "shell/controls/plain_controls.h"

namespace wrenbit {

class TextBox : public Control {
 public:
  // The user can type at most max_length characters; what code sets is its own affair.
  TextBox(Control& holder, Place place, int max_length, Font font);

  // UTF-8. Given the text that it has, the box fires nothing.
  const std::string& Text() const { return text; }
  void Set_Text(std::string value);
  // What the user has made of the text. Fires Change also when it reads as before.
  void Edit(std::string value);

  // How many characters from the first on are selected, at most all.
  int SelLength() const { return selected; }
  void Set_SelLength(int value);
  void Reset() override;

  const int MaxLength;
  std::function<void()> Change;
  // Each key before it comes into the text: the code of its character (UTF-16), which the handler may change.
  // 0 drops the key.
  std::function<void(std::int16_t& key)> KeyPress;

 private:
  std::string text;
  int selected = 0;
};

class CheckBox : public Captioned {
 public:
  CheckBox(Control& holder, Place place, std::string first_caption, bool first_value = false);
  int Value() const { return value; }
  // 1 or 0. Click fires when the state changes.
  void Set_Value(int new_value);
  void Reset() override;

  std::function<void()> Click;

 private:
  int first;
  int value;
};

class ComboBox : public Control {
 public:
  using Control::Control;
  void Clear();
  void AddItem(std::string item);
  int ListCount() const { return static_cast<int>(items.size()); }
  const std::string& List(int number) const { return items.at(static_cast<std::size_t>(number)); }

  // -1 when nothing is selected.
  int ListIndex() const { return index; }
  // Selects an entry and fires Click, also when it is selected already. An index outside the list is refused:
  // the result is false and nothing changes.
  bool Set_ListIndex(int new_index);
  // The selected entry, or nothing.
  std::string Text() const { return index < 0 ? std::string() : List(index); }
  void Reset() override;

  std::function<void()> Click;
  // What there is to say about an entry. Asked whenever it is to be told.
  std::function<std::string(int number)> Tip;

 private:
  std::vector<std::string> items;
  int index = -1;
};

}  // namespace wrenbit
