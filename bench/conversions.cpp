#include "conversions.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <iostream>
#include <stdexcept>

#include "choice.h"
#include "intel_hex.h"
#include "plain_file.h"
#include "process.h"
#include "state.h"
#include "whole_file.h"

namespace bench {
namespace {

using wrenbit::ImageBuffer;

struct Converter {
  QString Program;
  QStringList To_Binary, To_Hex;  // IN and OUT stand for the files.
};

const Converter kTheirs[] = {
    {"srec_cat", {"IN", "-Intel", "-o", "OUT", "-Binary"}, {"IN", "-Binary", "-o", "OUT", "-Intel"}},
    {"objcopy", {"-I", "ihex", "-O", "binary", "IN", "OUT"}, {"-I", "binary", "-O", "ihex", "IN", "OUT"}},
};

double Convert(const QString& program, QStringList words, const QString& in, const QString& out) {
  words.replaceInStrings(QRegularExpression("^IN$"), in).replaceInStrings(QRegularExpression("^OUT$"), out);
  return Run_Process(program, words).Seconds;
}

}  // namespace

void Measure_Conversions(Report& report) {
  report.Begin("Files: conversions by whole processes");
  const QTemporaryDir folder;
  Choose("AT24C1024");
  ImageBuffer = Pattern(ImageBuffer.size());
  const std::string bytes = std::to_string(ImageBuffer.size()) + " bytes, ";
  const QString binary = folder.filePath("image.bin"), hex = folder.filePath("image.hex");
  wrenbit::Write_Whole_File(hex.toStdString(), wrenbit::Intel_Hex_Text());
  const Converter ours{
      Beside_This("hex-convert"), {"IN", "OUT", QString::number(ImageBuffer.size())}, {"IN", "OUT"}};
  for (const Converter& theirs : kTheirs) {
    if (QStandardPaths::findExecutable(theirs.Program).isEmpty()) {
      std::cerr << theirs.Program.toStdString() << " is not installed.\n";
      continue;
    }
    const auto in_turns = [&](const char* subject, auto words, const QString& in, const QString& out) {
      const auto [our, their] =
          In_Turns([&] { return Convert(ours.Program, ours.*words, in, out); },
                   [&] { return Convert(theirs.Program, theirs.*words, in, out + ".theirs"); });
      report.Add({bytes + subject, our, theirs.Program.toStdString(), their, "s", {}});
    };
    in_turns("Intel HEX to binary", &Converter::To_Binary, hex, binary);
    if (Plain_Read(binary.toStdString()) != Plain_Read((binary + ".theirs").toStdString()))
      throw std::runtime_error("the conversions differ");
    in_turns("binary to Intel HEX", &Converter::To_Hex, binary, hex);
  }
}

}  // namespace bench
