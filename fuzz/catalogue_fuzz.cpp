// Any bytes as wrenbit.ini: read as at the start, then the first devices selected and their transfers asked
// for, on a port that is not there.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/catalogue.h"
#include "core/catalogue_text.h"
#include "fuzz/must_hold.h"
#include "image/image_buffer.h"
#include "tests/support/chip_bench.h"

using namespace wrenbit;

namespace {

// As powers of two. The sizes between differ in nothing but the time that they take.
constexpr int kSmallSize = 10;
constexpr int kGreatestSize = 23;  // Of a device that has an image.
constexpr std::size_t kRowsTried = 4;

void Select_And_Try(int index) {
  Must_Hold(frmMain.Combo_device.Set_ListIndex(index), "a listed device can be selected");
  Must_Hold(ImageBuffer.empty() || ImageBuffer.size() == std::size_t{1} << MemSize,
            "the image is as large as the device, or there is none");
  Must_Hold(ImageBuffer.empty() == (frmMain.CmbSize.ListCount() == 0), "an image has block sizes");
  Must_Hold(ImageBuffer.empty() || AccessSize <= MemSize, "no block is larger than the device");
  for (const Command& command : kCommands) command.Run();
  Must_Hold(frmMain.Cmd_READ_all.Reachable(), "the controls come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Test_Bench bench;
  bench.Refusal = Port_Fault::No_Such_Port;

  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const Catalogue catalogue = Read_Catalogue(Catalogue_Text(bytes));
  Must_Hold(catalogue.Rows.size() <= kTableRows, "the table holds the rows");
  for (const Device_Row& row : catalogue.Rows) {
    Must_Hold(!row[Column_Name].empty(), "a device has a name");
    for (const std::string& cell : row)
      Must_Hold(cell.find_first_of(" \t") == cell.npos, "a cell is one word");
  }
  Offer_Devices(catalogue.Rows);
  for (std::size_t row = 0; row < std::min(kRowsTried, DeviceTable.size()); ++row) {
    const std::int32_t power = Number_Cell(DeviceTable[row], Column_Mem_Size);
    if (power <= kSmallSize || power > kGreatestSize) Select_And_Try(static_cast<int>(row));
  }
  return 0;
}
