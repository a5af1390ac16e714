// Wrenbit up to its window; with the words "largest FILE" it also takes in an image of the largest chip,
// saves it there, loads it again and has it painted.
#include "bench/choice.h"
#include "bench/shown_window.h"
#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "editor/hex_grid.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"
#include "shell/qt/program.h"
#include "shell/qt/views/form_view.h"

int main(int argc, char** argv) {
  wrenbit::Program program(argc, argv);
  if (!program.Start()) return 1;
  bench::Await_Painted(program.Main_Window());
  if (argc == 3) {
    bench::Choose("AT24C1024");
    wrenbit::ImageBuffer = bench::Pattern(wrenbit::ImageBuffer.size());
    wrenbit::Write_Whole_File(argv[2], wrenbit::Intel_Hex_Text());
    wrenbit::Image_Create();
    wrenbit::Intel_Hex_Load(wrenbit::Read_Whole_File(argv[2]).value_or(""));
    wrenbit::Grid_Refill();
    QCoreApplication::processEvents();
    bench::Await_Painted(program.Main_Window());
  }
  bench::Say_And_End();
}
