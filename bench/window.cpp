#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/choice.h"
#include "bench/report.h"
#include "bench/subjects.h"
#include "core/state/state.h"
#include "editor/hex_grid.h"
#include "image/image_buffer.h"
#include "shell/controls/frm_main.h"
#include "shell/qt/views/form_view.h"
#include "shell/qt/views/grid_view.h"

namespace bench {
namespace {

using wrenbit::frmMain;
using wrenbit::ImageBuffer;

constexpr const char* kLargest = "AT24C1024";
constexpr const char* kAsLarge = "24C1024";
constexpr const char* kSmall = "24C64";

// The bytes as hex text in one buffer, as the grid's cells read.
void Plain_Hex_Text() {
  constexpr const char* kDigits = "0123456789ABCDEF";
  static std::vector<char> buffer;
  buffer.resize(ImageBuffer.size() * 5);
  char* at = buffer.data();
  for (const std::uint8_t byte : ImageBuffer) {
    *at++ = '0';
    *at++ = 'x';
    *at++ = kDigits[byte >> 4];
    *at++ = kDigits[byte & 15];
    *at++ = ' ';
  }
}

// Paints what is due, which runs all other events too.
void Paint() {
  QCoreApplication::processEvents();
  Check_Window();
}

void Take_In(const char* chip) {
  Choose(chip);
  ImageBuffer = Pattern(ImageBuffer.size());
  wrenbit::Grid_Refill();
  Paint();
}

void Measure_Keystroke(Report& report, QWidget& view) {
  auto& box = dynamic_cast<QLineEdit&>(view);
  const auto type = [&box] {
    static bool turn = false;
    turn = !turn;
    box.selectAll();
    QKeyEvent press(QEvent::KeyPress, turn ? Qt::Key_A : Qt::Key_F, Qt::NoModifier, turn ? "a" : "f");
    QApplication::sendEvent(&box, &press);
  };
  const auto type_and_paint = [&] {
    type();
    Paint();
  };
  const std::uint8_t before = ImageBuffer.front();
  const Medians keystroke = report.Measure_Small({.Subject = "keystroke in the hex box",
                                                  .Work = Timed(type, Paint),
                                                  .Beside = "the checksum's walk",
                                                  .Reference = Timed(wrenbit::CheckSum_Text, Paint)});
  report.Measure_Small({.Subject = "keystroke and its painting", .Work = Timed(type_and_paint)});
  if (ImageBuffer.front() == before) throw std::runtime_error("the keystrokes changed no byte");
  report.Measure({.Subject = "keystroke in the hex box",
                  .Work = [=] { return keystroke.Work; },
                  .Beside = "100 µs",
                  .Reference = [] { return 100e-6; },
                  .Goal = 1});
}

void Measure_Refill(Report& report) {
  report.Measure_Small({.Subject = "refill of the grid",
                        .Work = Timed(wrenbit::Grid_Refill, Paint),
                        .Beside = "the bytes as hex text, plain loop",
                        .Reference = Timed(Plain_Hex_Text, Paint),
                        .Goal = 3});
  const auto change_device = [] {
    static bool turn = false;
    turn = !turn;
    Choose_Device(turn ? kAsLarge : kLargest);
  };
  report.Measure_Small({.Subject = "device change",
                        .Work = Timed(change_device, Paint),
                        .Beside = "a refill",
                        .Reference = Timed(wrenbit::Grid_Refill, Paint)});
}

void Measure_Scrolling(Report& report, QWidget& view) {
  auto& grid = dynamic_cast<wrenbit::Grid_View&>(view);
  const auto scroll = [bar = grid.verticalScrollBar()] {
    bar->setValue(bar->value() == 20 ? 21 : 20);
    Paint();
  };
  for (const char* chip : {kLargest, kSmall}) {
    Take_In(chip);
    report.Measure_Small({.Subject = "scrolling by a row, " + std::to_string(ImageBuffer.size()) + " bytes",
                          .Work = Timed(scroll),
                          .Beside = "the grid painted whole",
                          .Reference = Timed([&] { grid.viewport()->repaint(); })});
  }
}

}  // namespace

void Measure_Window(Report& report, const wrenbit::Form_View& window) {
  report.Begin("The window, nothing on the wire; 131072 bytes where nothing else is said");
  Take_In(kLargest);
  Measure_Keystroke(report, *window.View_Of(frmMain.Text_modify_hex));
  Measure_Refill(report);
  Measure_Scrolling(report, *window.View_Of(frmMain.MSFGrid1));
}

}  // namespace bench
