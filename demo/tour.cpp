// wrenbit-tour: the real program with its real windows, used as a person would use it, and nobody there. It
// needs a board on COM1 with the named chip in its socket, tells in plain lines what it does, leaves pictures
// of the window, and ends with 0 when all came out as it should.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include "core/state/state.h"
#include "link/mscomm.h"
#include "shell/controls/windows.h"
#include "shell/qt/program.h"
#include "shell/qt/views/form_view.h"
#include "shell/qt/views/grid_view.h"

namespace wrenbit {
namespace {

constexpr int kPatience = 120'000;  // Milliseconds for the whole tour.

void Say(const std::string& line) { std::cout << line << std::endl; }

void Require(bool met, const std::string& what) {
  if (!met) throw std::runtime_error(what);
}

class Tour : public QObject {
 public:
  Tour(Program& toured, const QString& chip_name, const QString& picture_folder)
      : program(toured), chip(chip_name), pictures(picture_folder) {
    Require(pictures.mkpath("."), "the folder for the pictures cannot be made");
    qApp->installEventFilter(this);
    QTimer::singleShot(kPatience, this, [] {
      Say("FAILED: the tour did not come to its end in time");
      std::_Exit(3);
    });
  }

  void Walk();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    if (auto* box = qobject_cast<QDialog*>(watched))
      QTimer::singleShot(0, box, [this, box] { Answer(*box); });
    if (watched == program.Port_Window()) QTimer::singleShot(0, this, [this] { Visit_Port_Window(); });
    return false;
  }

 private:
  template <class Widget>
  Widget& Seen(const Control& control) const {
    return dynamic_cast<Widget&>(*program.Main_Window().View_Of(control));
  }

  void Answer(QDialog& box);
  void Visit_Port_Window();
  void Select(int address);
  void Edit_In_Each_Way();
  void Pick(const ComboBox& list, const QString& beginning);
  void Choose(const Menu& menu, const Menu& entry);
  void Transfer(const CommandButton& button);
  void Clear_Image();
  void With_File(const CommandButton& button, const QString& path);
  void Take_Picture(const QString& name) { Take_Picture(name, program.Main_Window()); }
  void Take_Picture(const QString& name, QWidget& window);
  void Require_Calm() const { Require(surprise.empty(), surprise); }

  Program& program;
  const QString chip;
  QDir pictures;
  int picture = 0;
  std::optional<QString> file_to_name;  // What to type into the file dialog that is to come.
  std::string surprise;                 // What a box said that nobody expected.
};

void Tour::Answer(QDialog& box) {
  auto* file_dialog = qobject_cast<QFileDialog*>(&box);
  if (file_dialog && file_to_name) {
    box.findChild<QLineEdit*>("fileNameEdit")->setText(*file_to_name);
    file_to_name.reset();
    const auto button = file_dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                             : QDialogButtonBox::Open;
    QTest::mouseClick(box.findChild<QDialogButtonBox*>("buttonBox")->button(button), Qt::LeftButton);
    return;
  }
  const auto* message = qobject_cast<QMessageBox*>(&box);
  surprise =
      "a box came up that nobody expected: " + (message ? message->text() : box.windowTitle()).toStdString();
  box.reject();
}

// By the keyboard, entry by entry from the first.
void Tour::Pick(const ComboBox& list, const QString& beginning) {
  auto& view = Seen<QComboBox>(list);
  QTest::keyClick(&view, Qt::Key_Home);
  for (int left = view.count(); left > 0 && !view.currentText().startsWith(beginning); --left)
    QTest::keyClick(&view, Qt::Key_Down);
  Require(view.currentText().startsWith(beginning), "the list has no entry " + beginning.toStdString());
}

void Tour::Choose(const Menu& menu, const Menu& entry) {
  QMenuBar* bar = program.Main_Window().menuBar();
  auto& drop_down = Seen<QMenu>(menu);
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(drop_down.menuAction()).center());
  for (QAction* action : drop_down.actions()) {
    if (action->text().toStdString() != entry.Caption()) continue;
    QTest::mouseClick(&drop_down, Qt::LeftButton, {}, drop_down.actionGeometry(action).center());
    QCoreApplication::processEvents();
    return;
  }
  Require(false, "the menu has no entry " + entry.Caption());
}

// The click comes back when the transfer is over.
void Tour::Transfer(const CommandButton& button) {
  QElapsedTimer clock;
  clock.start();
  QTest::mouseClick(&Seen<QPushButton>(button), Qt::LeftButton);
  Say(button.Caption() + ": " + frmMain.sbStatusBar.Panel(1) + "  [" + frmMain.sbStatusBar.Panel(2) + "]  " +
      std::to_string(clock.elapsed()) + " ms");
  Require_Calm();
  Require(LinkError == 0, button.Caption() + " failed");
}

void Tour::Clear_Image() {
  Choose(frmMain.mnuTools, frmMain.mnuBufferClear);
  Say("Menu: " + frmMain.sbStatusBar.Panel(1));
  Require(std::all_of(ImageBuffer.begin(), ImageBuffer.end(), [](int byte) { return byte == 0xFF; }),
          "the image is not blank");
}

void Tour::With_File(const CommandButton& button, const QString& path) {
  file_to_name = path;
  QTest::mouseClick(&Seen<QPushButton>(button), Qt::LeftButton);
  Require_Calm();
  Require(!file_to_name, "no file dialog came up");
  Say(button.Caption() + ": " + frmMain.sbStatusBar.Panel(1) + "  " + HexFilePath);
}

void Tour::Take_Picture(const QString& name, QWidget& window) {
  const QString file = pictures.filePath(QStringLiteral("%1-%2.png").arg(++picture).arg(name));
  Require(window.grab().save(file), "a picture cannot be written: " + file.toStdString());
}

// Runs while the window is up. What goes wrong must not leave the event loop, which waits for it.
void Tour::Visit_Port_Window() try {
  Form_View& window = *program.Port_Window();
  Require(MSComm1.PortOpen(), "the port window did not open the port");
  Take_Picture("port", window);
  const auto& list = dynamic_cast<QComboBox&>(*window.View_Of(frmCom.Cmb_com));
  Say("Port " + list.currentText().toStdString() + ": " + frmCom.Cmb_com.Tip(list.currentIndex()));
  QTest::mouseClick(window.View_Of(frmCom.Cmd_Close), Qt::LeftButton);
} catch (const std::exception& error) {
  surprise = error.what();
  frmCom.Unload();
}

void Tour::Select(int address) {
  auto& grid = Seen<Grid_View>(frmMain.MSFGrid1);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                    grid.Cell_Rect(address / 16 + 1, address % 16 + 1).center());
  Require(frmMain.sbStatusBar.Panel(3) == "アドレス:" + std::to_string(address),
          "the click selected " + frmMain.sbStatusBar.Panel(3));
}

// One byte each: as hex, as decimal, as a character, by a bit.
void Tour::Edit_In_Each_Way() {
  const auto type = [this](const TextBox& box, const char* keys) {
    auto& view = Seen<QLineEdit>(box);
    view.setFocus();
    view.selectAll();
    QTest::keyClicks(&view, keys);
  };
  const struct {
    const char* Way;
    std::function<void()> Do;
    int Byte;
  } edits[] = {
      {"hex", [&] { type(frmMain.Text_modify_hex, "a5"); }, 0xA5},
      {"decimal", [&] { type(frmMain.Text_modify_dec, "90"); }, 90},
      {"character", [&] { type(frmMain.Text_modify_asc, "W"); }, 'W'},
      {"bits",
       [&] {
         // Bit 7 comes behind the character box, and bit 6 behind it.
         Seen<QLineEdit>(frmMain.Text_modify_asc).setFocus();
         for (const auto key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Space})
           QTest::keyClick(program.Main_Window().focusWidget(), key);
       },
       ImageBuffer[8] ^ 0xC0},
  };
  for (int address = 5; const auto& edit : edits) {
    Select(address);
    edit.Do();
    Require(ImageBuffer[static_cast<std::size_t>(address)] == edit.Byte,
            std::string("the byte edited as ") + edit.Way + " is another");
    Say("Byte " + std::to_string(address) + " edited as " + edit.Way + ": " + frmMain.MSFGrid1.Text());
    ++address;
  }
}

void Tour::Walk() {
  const bool started = program.Start();
  Require_Calm();
  Require(started, "the program did not start; does it run already?");
  Pick(frmMain.Combo_device, chip);
  QTest::keyClick(&Seen<QComboBox>(frmMain.CmbSize), Qt::Key_End);
  Say("Device " + frmMain.Combo_device.Text() + ", block of " + frmMain.CmbSize.Text() + " bytes");
  Require(frmMain.CmbSize.Text() == std::to_string(ImageBuffer.size()), "the block is not the whole chip");
  Take_Picture("start");
  QTest::mouseClick(&Seen<QPushButton>(frmMain.Cmd_Port), Qt::LeftButton);
  Require_Calm();

  Transfer(frmMain.Cmd_READ_all);
  Take_Picture("read");

  Edit_In_Each_Way();
  const auto changed = ImageBuffer;
  Take_Picture("edited");

  Transfer(frmMain.Cmd_WRITE_all);
  Clear_Image();
  Take_Picture("cleared");
  Transfer(frmMain.Cmd_READ_all);
  Require(ImageBuffer == changed, "the chip gave back other bytes than were written");
  Take_Picture("read-back");

  const QTemporaryDir folder;
  const QString file = folder.filePath("tour.hex");
  With_File(frmMain.Cmd_SaveAs, file);
  Require(QFileInfo(file).size() > 0, "nothing was saved");
  Clear_Image();
  With_File(frmMain.Cmd_Open, file);
  Require(ImageBuffer == changed, "the file gave back other bytes than were saved");
  Take_Picture("loaded");
}

}  // namespace
}  // namespace wrenbit

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES",
          "default.warning=false");  // The offscreen platform tells of all that it is not.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  wrenbit::Program program(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 2) {
    wrenbit::Say("Usage: wrenbit-tour FOLDER-FOR-PICTURES [CHIP]");
    return 2;
  }
  try {
    wrenbit::Tour(program, arguments.value(2, "24C02"), arguments[1]).Walk();
  } catch (const std::exception& error) {
    wrenbit::Say(std::string("FAILED: ") + error.what());
    return 1;
  }
  wrenbit::Say("All as it should be.");
}
