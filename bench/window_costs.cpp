#include "window_costs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <vector>

#include "cell_selection.h"
#include "choice.h"
#include "frm_main.h"
#include "grid_view.h"
#include "hex_grid.h"
#include "image_buffer.h"
#include "pairs.h"
#include "state.h"

namespace bench {
namespace {

using wrenbit::frmMain;
using wrenbit::ImageBuffer;

constexpr const char* kLargest = "AT24C1024";
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

void Take_In(const char* chip) {
  Choose(chip);
  ImageBuffer = Pattern(ImageBuffer.size());
  wrenbit::Grid_Refill();
  QCoreApplication::processEvents();
}

}  // namespace

void Measure_Window(Report& report, wrenbit::Program& program) {
  report.Begin("The window, nothing on the wire; 131072 bytes where nothing else is said");
  auto& box = dynamic_cast<QLineEdit&>(*program.Main_Window().View_Of(frmMain.Text_modify_hex));
  auto& grid = dynamic_cast<wrenbit::Grid_View&>(*program.Main_Window().View_Of(frmMain.MSFGrid1));
  const auto type = [&box] {
    box.selectAll();
    Press_Key(box, Qt::Key_A, "a");
  };
  const auto scroll = [bar = grid.verticalScrollBar()] {
    bar->setValue(bar->value() == 20 ? 21 : 20);
    QCoreApplication::processEvents();
  };
  const auto paint = [] { QCoreApplication::processEvents(); };
  const auto checksum = [] { wrenbit::CheckSum_Text(); };
  Take_In(kLargest);
  const std::vector<double> works = Measure_Pairs(
      report, {
                  {.Subject = "keystroke in the hex box",
                   .Work = type,
                   .Beside = "the checksum's walk",
                   .Reference = checksum,
                   .Settle = paint,
                   .Goal = {}},
                  {.Subject = "refill of the grid",
                   .Work = wrenbit::Grid_Refill,
                   .Beside = "the bytes as hex text, plain loop",
                   .Reference = Plain_Hex_Text,
                   .Settle = paint,
                   .Goal = 3},
                  {.Subject = "keystroke and its painting",
                   .Work =
                       [&] {
                         type();
                         paint();
                       },
                   .Beside = "the grid painted whole",
                   .Reference = [&] { grid.viewport()->repaint(); },
                   .Settle = {},
                   .Goal = {}},
                  {.Subject = "scrolling by a row, painted",
                   .Work = scroll,
                   .Beside = "the grid painted whole",
                   .Reference = [&] { grid.viewport()->repaint(); },
                   .Settle = {},
                   .Goal = {}},
                  {.Subject = "device change",
                   .Work = [] { frmMain.Combo_device.Set_ListIndex(frmMain.Combo_device.ListIndex()); },
                   .Beside = "a refill",
                   .Reference = wrenbit::Grid_Refill,
                   .Settle = paint,
                   .Goal = {}},
              });
  report.Add({"keystroke in the hex box", works.front(), "100 µs", 100e-6, "s", 1.0});
  Take_In(kSmall);
  Measure_Pairs(report, {{.Subject = "scrolling by a row, 8192 bytes",
                          .Work = scroll,
                          .Beside = "",
                          .Reference = [] {},
                          .Settle = {},
                          .Goal = {}}});
}

}  // namespace bench
