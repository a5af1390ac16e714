#include "bench/file_costs.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/choice.h"
#include "bench/pairs.h"
#include "bench/plain_file.h"
#include "bench/temporary_folder.h"
#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"

namespace bench {
namespace {

using wrenbit::ImageBuffer;

// Gives the lines' characters, so that none is left out.
std::size_t Read_Lines(const std::string& path) {
  std::ifstream file(path);
  std::size_t characters = 0;
  for (std::string line; std::getline(file, line);) characters += line.size();
  return characters;
}

void Measure_Image(Report& report, const std::string& path) {
  const std::string bytes = std::to_string(ImageBuffer.size()) + " bytes, ";
  const std::vector<std::uint8_t> image = Pattern(ImageBuffer.size());
  ImageBuffer = image;
  const std::string text = wrenbit::Intel_Hex_Text();
  wrenbit::Write_Whole_File(path, text);
  const auto load = [&] { wrenbit::Intel_Hex_Load(wrenbit::Read_Whole_File(path).value_or("")); };
  wrenbit::Image_Create();
  load();
  if (ImageBuffer != image) throw std::runtime_error("the file gave back other bytes than were saved");
  Measure_Pairs(report, {
                            {.Subject = bytes + "load",
                             .Work = load,
                             .Beside = "plain read, line by line",
                             .Reference = [&] { Read_Lines(path); },
                             .Goal = 4},
                            {.Subject = bytes + "load",
                             .Work = load,
                             .Beside = "one read(2) of all of it",
                             .Reference = [&] { Plain_Read(path); }},
                            {.Subject = bytes + "text made and plainly written",
                             .Work = [&] { Plain_Write(path, wrenbit::Intel_Hex_Text(), Durable::No); },
                             .Beside = "plain write of the text",
                             .Reference = [&] { Plain_Write(path, text, Durable::No); },
                             .Goal = 3},
                            {.Subject = bytes + "save, safe from a loss of power",
                             .Work = [&] { wrenbit::Write_Whole_File(path, wrenbit::Intel_Hex_Text()); },
                             .Beside = "plain write, flushed to the disk",
                             .Reference = [&] { Plain_Write(path, text, Durable::Yes); },
                             .Goal = 3},
                        });
}

}  // namespace

void Measure_Files(Report& report) {
  report.Begin("Files: Intel HEX");
  const Temporary_Folder folder;
  for (const char* chip : {"24C512", "AT24C1024"}) {
    Choose(chip);
    Measure_Image(report, folder.File("image.hex").toStdString());
  }
}

}  // namespace bench
