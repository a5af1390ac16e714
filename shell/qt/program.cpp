#include "shell/qt/program.h"

#include <QDir>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QTranslator>
#include <initializer_list>

#include "core/start.h"
#include "core/state/app.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "link/mscomm.h"
#include "shell/controls/windows.h"
#include "shell/qt/accessible/accessibility.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/drawing/pictures.h"
#include "shell/qt/drawing/program_style.h"
#include "shell/qt/seams/end_signals.h"
#include "shell/qt/seams/file_dialog.h"
#include "shell/qt/seams/instance_lock.h"
#include "shell/qt/seams/serial_port.h"
#include "shell/windows/wiring.h"

namespace wrenbit {
namespace {

// The bits were made from the lowest up; the eye reads from the highest down.
void Order_Tabs(const Form_View& window) {
  const Control* before = &frmMain.Text_modify_asc;
  for (auto bit = frmMain.ChkBin.rbegin(); bit != frmMain.ChkBin.rend(); before = &*bit++)
    QWidget::setTabOrder(window.View_Of(*before), window.View_Of(*bit));
}

}  // namespace

QString Config_Folder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/wrenbit");
}

Program::Program(int& argc, char** argv)
    : application(argc, argv),
      settings(Place_Of_Settings(Config_Folder())),
      serial(Make_Serial_Port(Config_Folder().toStdU16String())) {
  Install_Accessibility();
  QApplication::setApplicationName(QString::fromStdString(App.Title));
  QApplication::setDesktopFileName(
      QApplication::applicationName());  // By it a dock finds the menu entry's icon.
  QApplication::setStyle(new Program_Style);
  QApplication::setFont(Font_For({}));
  QApplication::setWindowIcon(Icon_Of(Picture::Program));
  // When the last window goes, the logic says whether the program ends.
  QApplication::setQuitOnLastWindowClosed(false);
  // Qt's own dialogs in Japanese, where its translations are installed.
  auto* translator = new QTranslator(&application);
  if (translator->load(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);

  App.Path = QDir::toNativeSeparators(QApplication::applicationDirPath()).toStdString();
  App.HelpFile = QDir::toNativeSeparators(QApplication::applicationDirPath() + "/WRENBIT.HLP").toStdString();
  QDir().mkpath(Config_Folder());
  App.PrevInstance = !Claim_Instance((Config_Folder() + QStringLiteral("/instance.lock")).toStdString());

  ThePlatform = &platform;
  TheSettings = &settings;
  MSComm1.Attach(serial.get());
  Wire_Windows();
  Offer_Views();
  On_End_Signal(&application, [this] { frmMain.Loaded() ? frmMain.Close() : platform.End(); });
}

Program::~Program() {
  for (Form* form : std::initializer_list<Form*>{&frmSplash, &frmMain, &frmCom, &frmAbout})
    form->View_Make = nullptr;
  MSComm1.Close();
  MSComm1.Attach(nullptr);
  TheSettings = nullptr;
  ThePlatform = nullptr;
}

void Program::Offer_Views() {
  frmSplash.View_Make = [this] { splash_window = std::make_unique<Form_View>(frmSplash, Form_Kind::Splash); };
  frmMain.View_Make = [this] {
    main_window = std::make_unique<Form_View>(frmMain, Form_Kind::Main);
    Order_Tabs(*main_window);
    Offer_File_Dialogs(frmMain.dlgCommonDialog, main_window.get());
  };
  frmCom.View_Make = [this] {
    com_window = std::make_unique<Form_View>(frmCom, Form_Kind::Dialog, main_window.get());
  };
  frmAbout.View_Make = [this] {
    about_window = std::make_unique<Form_View>(frmAbout, Form_Kind::Dialog, main_window.get());
  };
}

bool Program::Start() { return Main(); }

void Program::Run() {
  if (!platform.Ended()) QApplication::exec();
}

}  // namespace wrenbit
