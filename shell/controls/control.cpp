#include "control.h"

#include "form.h"

namespace wrenbit {

Control::Control(Control& holder, Place place, Font font)
    : At(place), Lettering(font), container(&holder), form(&holder.Window()) {
  form->Add(*this);
}

Control::Control(Form& self) : form(&self) {}

void Control::Set_Enabled(bool value) { Store(enabled, value); }

void Control::Set_Visible(bool value) { Store(visible, value); }

bool Control::Reachable() const {
  for (const Control* c = this; c; c = c->container)
    if (!c->enabled) return false;
  return true;
}

bool Control::Set_Focus() {
  if (!form->Visible() || !visible || !Reachable()) return false;
  form->Set_ActiveControl(*this);
  return true;
}

void Control::Reset() {
  enabled = true;
  Tell();
}

Captioned::Captioned(Control& holder, Place place, std::string first_caption, Font font)
    : Control(holder, place, font), first(std::move(first_caption)), caption(first) {}

Captioned::Captioned(Form& self, std::string first_caption)
    : Control(self), first(std::move(first_caption)), caption(first) {}

void Captioned::Reset() {
  caption = first;
  Control::Reset();
}

}  // namespace wrenbit
