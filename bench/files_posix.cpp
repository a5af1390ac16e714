#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/choice.h"
#include "bench/report.h"
#include "bench/subjects.h"
#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"

namespace bench {
namespace {

using wrenbit::ImageBuffer;

// Files as a program reads and writes them that cares for nothing. Throw std::runtime_error when it fails.
void Plain_Read(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat facts {};
  fstat(file, &facts);
  std::string text(static_cast<std::size_t>(facts.st_size), '\0');
  const ssize_t got = read(file, text.data(), text.size());
  close(file);
  if (got != facts.st_size) throw std::runtime_error("a file cannot be read");
}

// Gives the lines' characters, so that none is left out.
std::size_t Read_Lines(const std::string& path) {
  std::ifstream file(path);
  std::size_t characters = 0;
  for (std::string line; std::getline(file, line);) characters += line.size();
  return characters;
}

enum class Durable { No, Yes };
// Over what is there. Durable: returns when it is on the disk.
void Plain_Write(const std::string& path, std::string_view text, Durable durable) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  const bool written = write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
                       (durable == Durable::No || fsync(file) == 0);
  close(file);
  if (!written) throw std::runtime_error("a file cannot be written");
}

void Measure_Image(Report& report, const std::string& path) {
  const std::string bytes = std::to_string(ImageBuffer.size()) + " bytes, ";
  const std::vector<std::uint8_t> image = Pattern(ImageBuffer.size());
  ImageBuffer = image;
  const std::string text = wrenbit::Intel_Hex_Text();
  const auto load = [&] { wrenbit::Intel_Hex_Load(wrenbit::Read_Whole_File(path).value_or("")); };
  const auto save = [&] { wrenbit::Write_Whole_File(path, wrenbit::Intel_Hex_Text()); };
  save();
  wrenbit::Image_Create();
  load();
  if (ImageBuffer != image) throw std::runtime_error("the file gave back other bytes than were saved");

  report.Measure_Small({.Subject = bytes + "load",
                        .Work = Timed(load),
                        .Beside = "plain read, line by line",
                        .Reference = Timed([&] { Read_Lines(path); }),
                        .Goal = 4});
  report.Measure_Small({.Subject = bytes + "load",
                        .Work = Timed(load),
                        .Beside = "one read(2) of all of it",
                        .Reference = Timed([&] { Plain_Read(path); })});
  report.Measure_Small({.Subject = bytes + "text made and plainly written",
                        .Work = Timed([&] { Plain_Write(path, wrenbit::Intel_Hex_Text(), Durable::No); }),
                        .Beside = "plain write of the text",
                        .Reference = Timed([&] { Plain_Write(path, text, Durable::No); }),
                        .Goal = 3});
  report.Measure_Small({.Subject = bytes + "save, safe from a loss of power",
                        .Work = Timed(save),
                        .Beside = "plain write, flushed to the disk",
                        .Reference = Timed([&] { Plain_Write(path, text, Durable::Yes); }),
                        .Goal = 3});
}

}  // namespace

void Measure_Files(Report& report, const QDir& scratch) {
  report.Begin("Files: Intel HEX");
  for (const char* chip : {"24C512", "AT24C1024"}) {
    Choose(chip);
    Measure_Image(report, scratch.filePath("image.hex").toStdString());
  }
}

}  // namespace bench
