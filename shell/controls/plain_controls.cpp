#include "shell/controls/plain_controls.h"

#include "shell/controls/form.h"

namespace wrenbit {

Captioned::Captioned(Control& holder, Place place, std::string first_caption, Font font)
    : Control(holder, place, font), first(std::move(first_caption)), caption(first) {}

Captioned::Captioned(Form& self, std::string first_caption)
    : Control(self), first(std::move(first_caption)), caption(first) {}

void Captioned::Reset() {
  caption = first;
  Control::Reset();
}

}  // namespace wrenbit
