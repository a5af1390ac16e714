#include "bench/conversions.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/choice.h"
#include "bench/median.h"
#include "bench/plain_file.h"
#include "bench/process.h"
#include "bench/temporary_folder.h"
#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"

namespace bench {
namespace {

using wrenbit::ImageBuffer;

constexpr int kRuns = 11;
constexpr const char* kTheirFile = ".theirs";

struct Converter {
  QString Program;
  QStringList ToBinary, ToHex;  // IN and OUT stand for the files.
};

const Converter kTheirs[] = {
    {"srec_cat", {"IN", "-Intel", "-o", "OUT", "-Binary"}, {"IN", "-Binary", "-o", "OUT", "-Intel"}},
    {"objcopy", {"-I", "ihex", "-O", "binary", "IN", "OUT"}, {"-I", "binary", "-O", "ihex", "IN", "OUT"}},
};

double Convert(const QString& program, QStringList words, const QString& in, const QString& out) {
  words.replaceInStrings(QRegularExpression("^IN$"), in).replaceInStrings(QRegularExpression("^OUT$"), out);
  return Run_Process(program, words).Seconds;
}

std::vector<std::uint8_t> Hex_Bytes(const QString& path) {
  wrenbit::Image_Create();
  wrenbit::Intel_Hex_Load(Plain_Read(path.toStdString()));
  return ImageBuffer;
}

}  // namespace

void Measure_Conversions(Report& report) {
  report.Begin("Files: conversions by whole processes; ours flushes to the disk");
  const Temporary_Folder folder;
  Choose("AT24C1024");
  const std::vector<std::uint8_t> image = Pattern(ImageBuffer.size());
  ImageBuffer = image;
  const std::string bytes = std::to_string(image.size()) + " bytes, ";
  const QString binary = folder.File("image.bin"), hex = folder.File("image.hex");
  wrenbit::Write_Whole_File(hex.toStdString(), wrenbit::Intel_Hex_Text());
  const Converter ours{
      Beside_This("hex-convert"), {"IN", "OUT", QString::number(image.size())}, {"IN", "OUT"}};
  for (const Converter& theirs : kTheirs) {
    if (QStandardPaths::findExecutable(theirs.Program).isEmpty()) {
      std::cerr << theirs.Program.toStdString() << " is not installed.\n";
      continue;
    }
    const auto in_turns = [&](const char* subject, auto words, const QString& in, const QString& out) {
      const auto [our, their] = In_Turns(
          kRuns, [&] { return Convert(ours.Program, ours.*words, in, out); },
          [&] { return Convert(theirs.Program, theirs.*words, in, out + kTheirFile); });
      report.Add({bytes + subject, our, theirs.Program.toStdString(), their, "s", {}});
    };
    in_turns("Intel HEX to binary", &Converter::ToBinary, hex, binary);
    in_turns("binary to Intel HEX", &Converter::ToHex, binary, hex);
    for (const char* whose : {"", kTheirFile})
      if (Plain_Bytes((binary + whose).toStdString()) != image || Hex_Bytes(hex + whose) != image)
        throw std::runtime_error("a conversion made other bytes");
  }
}

}  // namespace bench
