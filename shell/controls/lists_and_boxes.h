// What the user fills in: text boxes, check boxes, drop-down lists; the status bar, and the file dialogs.
// A write from code fires the control's event inside the write, as the user's own doing does.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "control.h"

namespace wrenbit {

class TextBox : public Control {
 public:
  // Holds at most max_length characters.
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
  CheckBox(Control& holder, Place place, std::string first_caption, bool first_value = false, Font font = {});
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

class StatusBar : public Control {
 public:
  static constexpr int kPanels = 4;
  // Widths in twips.
  StatusBar(Control& holder, Place place, std::array<int, kPanels> panel_widths);

  // Panels are counted from 1.
  const std::string& Panel(int number) const { return texts.at(static_cast<std::size_t>(number - 1)); }
  void Set_Panel(int number, std::string text);
  void Reset() override;

  const std::array<int, kPanels> Widths;
  // What a screen reader calls the panels: what each one tells of.
  std::array<std::string, kPanels> PanelNames;

 private:
  std::array<std::string, kPanels> texts;
};

// The file dialogs. Everything is as the last use left it, until it is set again.
class CommonDialog {
 public:
  std::string DialogTitle;
  std::string InitDir;     // Folder to begin in; empty leaves it to the platform.
  std::string Filter;      // Name, "|", pattern, "|", and again.
  std::string DefaultExt;  // Goes behind a typed name that has none, when saving.
  std::string FileName;    // Proposed name before, whole path afterwards.
  std::string FileTitle;   // Name without the folder.

  // False when the user cancelled; the names are then as they were.
  bool ShowOpen() { return View_Open && View_Open(); }
  bool ShowSave() { return View_Save && View_Save(); }

  std::function<bool()> View_Open;
  std::function<bool()> View_Save;
};

}  // namespace wrenbit
