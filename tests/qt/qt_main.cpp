// Runs the tests inside the real program, whose windows are made and stay closed, with folders of its own.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <initializer_list>

#include "shell/controls/windows.h"
#include "shell/qt/program.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_DATA_HOME", home.path().toUtf8());
  wrenbit::Program program(argc, argv);
  for (wrenbit::Form* form : std::initializer_list<wrenbit::Form*>{&wrenbit::frmMain, &wrenbit::frmCom,
                                                                   &wrenbit::frmAbout, &wrenbit::frmSplash})
    form->View_Make();
  return RUN_ALL_TESTS();
}
