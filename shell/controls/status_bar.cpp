#include "shell/controls/status_bar.h"

#include <cstddef>
#include <utility>

namespace wrenbit {

StatusBar::StatusBar(Control& holder, Place place, std::array<int, kPanels> panel_widths)
    : Control(holder, place), Widths(panel_widths) {}

void StatusBar::Set_Panel(int number, std::string text) {
  Store(texts.at(static_cast<std::size_t>(number - 1)), std::move(text));
}

void StatusBar::Reset() {
  texts = {};
  Control::Reset();
}

}  // namespace wrenbit
