// The view of a form: a window of fixed size with the views of all that lies on it.
#pragma once

#include <QMainWindow>
#include <unordered_map>

#include "shell/controls/form.h"

namespace wrenbit {

enum class Form_Kind {
  Main,    // Stands where its form says; can be minimised.
  Dialog,  // Centred on its owner, no entry in the task bar.
  Splash,  // Bare, centred on the screen, no entry in the task bar.
};

class Form_View : public QMainWindow {
 public:
  // The form's events are wired before and its controls outlive the view.
  Form_View(Form& shown, Form_Kind what, QWidget* owner = nullptr);
  ~Form_View() override;

  // The view of one of the form's controls; null for a menu's entry and for what is not shown at all.
  QWidget* View_Of(const Control& control) const;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Make_Views();
  void Hook_Form();
  void Centre();
  void Focus_First();
  void Show_Until_Hidden();
  void Place_Frame();
  QPoint Wanted_Corner() const;
  void Note_Position();

  Form& form;
  const Form_Kind kind;
  bool placing = false;  // The window system still moves the window to its place; no user has moved it.
  bool noting = false;   // The form is being told of a move of the window's own.
  QPoint resting;        // Where the window, without its frame, was at the last look.
  std::unordered_map<const Control*, QWidget*> views;
};

}  // namespace wrenbit
