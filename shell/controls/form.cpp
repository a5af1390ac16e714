#include "shell/controls/form.h"

#include <utility>

namespace wrenbit {

Form::Form(int client_width, int client_height, std::string first_caption)
    : Captioned(*this, std::move(first_caption)), ClientWidth(client_width), ClientHeight(client_height) {
  Set_Visible(false);
}

void Form::Ensure_Loaded() {
  if (loaded) return;
  Reset_All();
  loaded = true;
  Fire(Form_Load);
}

void Form::Show_As(bool modal) {
  Ensure_Loaded();
  // Form_Load may yield, and the window may have been shown and closed meanwhile.
  if (!loaded || Visible()) return;
  if (!View_Show) Fire(View_Make);
  Set_Visible(true);
  Fire(View_Show, modal);
}

void Form::Hide() {
  if (!Visible()) return;
  Set_Visible(false);
  Fire(View_Hide);
}

void Form::Unload() {
  if (!loaded) return;
  Fire(Form_Unload);
  loaded = false;
  Hide();
}

void Form::Reset_All() {
  loaded = false;
  active = nullptr;
  pointer = Pointer::Default;
  Hide();
  Reset();
  for (Control* control : controls) control->Reset();
}

void Form::Close() {
  if (Close_Asked)
    Close_Asked();
  else
    Unload();
}

void Form::Move(double new_left, double new_top) {
  left = new_left;
  top = new_top;
  Fire(View_Move);
}

void Form::Set_ActiveControl(Control& control) {
  active = &control;
  Fire<Control&>(View_Focus, control);
}

}  // namespace wrenbit
