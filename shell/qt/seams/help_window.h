// The help in a window of its own.
#pragma once

#include <QWidget>
#include <string>

class QLayout;
class QUrl;

namespace wrenbit {

// One page of HTML. A link to a place on it goes there, a web address goes to the user's browser, and any
// other link does nothing. No file but the page itself is read, and nothing is fetched.
class Help_Window : public QWidget {
 public:
  Help_Window();

  // Shows the help file at its contents page, on top. Empty when it shows; else the system's reason why it
  // does not, and the path, and nothing has changed on the screen. The file is read anew each time: text in
  // UTF-8.
  std::string Show_Contents(const std::string& path);

 private:
  class Page;

  QLayout* Make_Tools();
  void Set_Up_Page();
  void Go_To_Contents();
  void Follow(const QUrl& link);

  Page* page;
};

}  // namespace wrenbit
