// The program with all that it stands on: the application object, the platform's seams, the settings, the
// serial port and the views of the windows.
#pragma once

#include <QApplication>
#include <memory>

#include "link/serial_backend.h"
#include "shell/qt/seams/qt_platform.h"
#include "shell/qt/seams/qt_settings.h"
#include "shell/qt/views/form_view.h"

namespace wrenbit {

// wrenbit/ in the user's configuration folder: instance lock, whose the COM numbers are, and the settings
// where they are a file.
QString Config_Folder();

// The one instance in a process. Nothing shows until Start, and the view of a window is made when it is first
// shown.
class Program {
 public:
  Program(int& argc, char** argv);
  ~Program();

  // Brings up the windows. False when the program is to end at once.
  bool Start();
  // Lives on events until the program ends.
  void Run();

  // The view of the main window, from a good Start on.
  Form_View& Main_Window() { return *main_window; }
  // Null until the window has been shown.
  Form_View* Port_Window() { return com_window.get(); }

 private:
  void Offer_Views();

  QApplication application;
  Qt_Platform platform;
  Qt_Settings settings;
  std::unique_ptr<Serial_Backend> serial;
  std::unique_ptr<Form_View> main_window, com_window, about_window, splash_window;
};

}  // namespace wrenbit
