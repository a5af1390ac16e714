// The line of panels at the foot of a window.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "shell/controls/control.h"

namespace wrenbit {

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
  // A text that panel 2 shows day by day. The letters of all panels are as narrow as it needs.
  std::string UsualLink;
  // What a screen reader calls the panels: what each one tells of.
  std::array<std::string, kPanels> PanelNames;

 private:
  std::array<std::string, kPanels> texts;
};

}  // namespace wrenbit
