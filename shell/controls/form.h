// A window: what lies on it, its position, its life from load to unload, and the hooks of its view.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/controls/plain_controls.h"

namespace wrenbit {

enum class Pointer { Default, Hourglass };

class Form : public Captioned {
 public:
  // The size of the client area, in twips.
  Form(int client_width, int client_height, std::string first_caption = {});

  // The first use of a window loads it: all that lies on it is put to its first state, and Form_Load runs.
  // Does nothing while it is loaded. Shows nothing.
  void Ensure_Loaded();
  // Both load the window first, and do nothing while it is up. Modal: returns when the window has gone;
  // without a view at once, the window still up.
  void Show() { Show_As(false); }
  void Show_Modal() { Show_As(true); }
  // Stays loaded.
  void Hide();
  // Runs Form_Unload and hides the window.
  void Unload();
  // Unloaded, hidden and with everything in its first state, as at the start of the process. No event runs.
  void Reset_All();
  bool Loaded() const { return loaded; }

  // What the close box asks for. Unloads, unless the window has a will of its own in Close_Asked.
  void Close();

  // Twips, from the corner of the screen. A fraction is kept.
  double Left() const { return left; }
  double Top() const { return top; }
  void Move(double new_left, double new_top);
  bool Minimised() const { return minimised; }  // Told by the view.
  void Set_Minimised(bool value) { minimised = value; }

  Pointer MousePointer() const { return pointer; }
  void Set_MousePointer(Pointer value) { Store(pointer, value); }

  // The control that code gave the keyboard last, none since the load. The user's own moves do not count.
  Control* ActiveControl() const { return active; }

  // All that lies on the form, in the order in which it was made.
  const std::vector<Control*>& Controls() const { return controls; }

  const int ClientWidth;
  const int ClientHeight;

  std::function<void()> Form_KeyPress;  // A key that no control took.
  std::function<void()> Form_Load;
  std::function<void()> Form_Unload;
  std::function<void()> Close_Asked;

  // Makes the view, which then sets its hooks. Asked for when the window is first shown.
  std::function<void()> View_Make;

  // Hooks of the view.
  std::function<void(bool modal)> View_Show;  // A modal one comes back when the window has gone.
  std::function<void()> View_Hide;
  std::function<void(Control&)> View_Focus;
  std::function<void()> View_Move;

 private:
  friend Control;  // Puts itself among the controls, and asks for the keyboard.
  void Show_As(bool modal);
  void Set_ActiveControl(Control& control);

  std::vector<Control*> controls;
  Control* active = nullptr;
  double left = 0;
  double top = 0;
  Pointer pointer = Pointer::Default;
  bool loaded = false;
  bool minimised = false;
};

}  // namespace wrenbit
