#include "bench/window_costs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/choice.h"
#include "bench/pairs.h"
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

void Press_Key(QWidget& at, int key, const char* text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&at, &press);
}

void Paint() { QCoreApplication::processEvents(); }

void Take_In(const char* chip) {
  Choose(chip);
  ImageBuffer = Pattern(ImageBuffer.size());
  wrenbit::Grid_Refill();
  Paint();
}

void Measure_Keystroke(Report& report, QWidget& box_view) {
  auto& box = dynamic_cast<QLineEdit&>(box_view);
  const auto type = [&box] {
    static bool turn = false;
    turn = !turn;
    box.selectAll();
    Press_Key(box, turn ? Qt::Key_A : Qt::Key_F, turn ? "a" : "f");
  };
  const std::uint8_t before = ImageBuffer.front();
  const std::vector<double> works = Measure_Pairs(report, {
                                                              {.Subject = "keystroke in the hex box",
                                                               .Work = type,
                                                               .Beside = "the checksum's walk",
                                                               .Reference = [] { wrenbit::CheckSum_Text(); },
                                                               .Settle = Paint},
                                                              {.Subject = "keystroke and its painting",
                                                               .Work =
                                                                   [&] {
                                                                     type();
                                                                     Paint();
                                                                   },
                                                               .Beside = "",
                                                               .Reference = [] {}},
                                                          });
  if (ImageBuffer.front() == before) throw std::runtime_error("the keystrokes changed no byte");
  report.Add({"keystroke in the hex box", works.front(), "100 µs", 100e-6, "s", 1.0});
}

void Measure_Refill(Report& report) {
  const auto change_device = [] {
    static bool turn = false;
    turn = !turn;
    Choose_Device(turn ? kAsLarge : kLargest);
  };
  Measure_Pairs(report, {
                            {.Subject = "refill of the grid",
                             .Work = wrenbit::Grid_Refill,
                             .Beside = "the bytes as hex text, plain loop",
                             .Reference = Plain_Hex_Text,
                             .Settle = Paint,
                             .Goal = 3},
                            {.Subject = "device change",
                             .Work = change_device,
                             .Beside = "a refill",
                             .Reference = wrenbit::Grid_Refill,
                             .Settle = Paint},
                        });
}

void Measure_Scrolling(Report& report, QWidget& grid_view) {
  auto& grid = dynamic_cast<wrenbit::Grid_View&>(grid_view);
  const auto scroll = [bar = grid.verticalScrollBar()] {
    bar->setValue(bar->value() == 20 ? 21 : 20);
    Paint();
  };
  for (const char* chip : {kLargest, kSmall}) {
    Take_In(chip);
    Measure_Pairs(report, {{.Subject = "scrolling by a row, " + std::to_string(ImageBuffer.size()) + " bytes",
                            .Work = scroll,
                            .Beside = "the grid painted whole",
                            .Reference = [&] { grid.viewport()->repaint(); }}});
  }
}

}  // namespace

void Measure_Window(Report& report, wrenbit::Program& program) {
  report.Begin("The window, nothing on the wire; 131072 bytes where nothing else is said");
  const wrenbit::Form_View& window = program.Main_Window();
  Take_In(kLargest);
  Measure_Keystroke(report, *window.View_Of(frmMain.Text_modify_hex));
  Measure_Refill(report);
  Measure_Scrolling(report, *window.View_Of(frmMain.MSFGrid1));
}

}  // namespace bench
