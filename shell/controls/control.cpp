#include "shell/controls/control.h"

#include "shell/controls/form.h"

namespace wrenbit {

Control::Control(Control& holder, Place place, Font font)
    : At(place), Lettering(font), container(&holder), form(&holder.Window()) {
  form->controls.push_back(this);
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
  out_of_date.clear();
  enabled = true;
  Tell();
}

}  // namespace wrenbit
