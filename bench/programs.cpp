// Whole programs, started and measured from outside.
#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <cstdint>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
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

constexpr int kRounds = 11;

QString Beside_This(const char* program) { return QCoreApplication::applicationDirPath() + "/" + program; }

using Environment = QProcessEnvironment;

struct Finished {
  double Took = 0;  // Seconds from its start to its end.
  QByteArray Said;  // On its standard output.
};

// Throws std::runtime_error when it does not come up or ends with an error.
Finished Run_Process(const QString& program, const QStringList& words,
                     const Environment& environment = Environment::systemEnvironment()) {
  QProcess process;
  process.setProcessEnvironment(environment);
  const double took = Seconds([&] {
    process.start(program, words);
    process.waitForFinished();
  });
  if (process.error() != QProcess::UnknownError || process.exitCode() != 0)
    throw std::runtime_error(program.toStdString() +
                             " failed: " + process.readAllStandardError().toStdString());
  return {took, process.readAllStandardOutput()};
}

// A small program that shows a window and says what memory it needed.
class Showing {
 public:
  // It keeps its settings in the folder.
  Showing(const char* name, const QString& configuration, const QStringList& words = {})
      : program(Beside_This(name)), arguments(words) {
    environment.insert("XDG_CONFIG_HOME", configuration);
  }
  double Start() const { return Run_Process(program, arguments, environment).Took; }
  double Memory() const {
    const QByteArray said = Run_Process(program, arguments, environment).Said;
    const double kibibytes = said.simplified().split(' ').first().toDouble();
    if (kibibytes == 0) throw std::runtime_error("the system does not tell the memory of a process");
    return kibibytes * 1024;
  }

 private:
  QString program;
  QStringList arguments;
  Environment environment = Environment::systemEnvironment();
};

// The words IN and OUT stand for the files.
struct Converter {
  QString Program;
  QStringList ToBinary, ToHex;
};

const Converter kTheirs[] = {
    {"srec_cat", {"IN", "-Intel", "-o", "OUT", "-Binary"}, {"IN", "-Binary", "-o", "OUT", "-Intel"}},
    {"objcopy", {"-I", "ihex", "-O", "binary", "IN", "OUT"}, {"-I", "binary", "-O", "ihex", "IN", "OUT"}},
};
constexpr const char* kTheirFile = ".theirs";

double Convert(const QString& program, QStringList words, const QString& in, const QString& out) {
  words.replaceInStrings(QRegularExpression("^IN$"), in).replaceInStrings(QRegularExpression("^OUT$"), out);
  return Run_Process(program, words).Took;
}

std::vector<std::uint8_t> Hex_Bytes(const QString& path) {
  wrenbit::Image_Create();
  wrenbit::Intel_Hex_Load(wrenbit::Read_Whole_File(path.toStdString()).value_or(""));
  return ImageBuffer;
}

}  // namespace

void Measure_Programs(Report& report, const QDir& scratch) {
  report.Begin("The whole program");
  const char* const beside = "an empty Qt window";
  const Showing empty("empty-window", scratch.filePath("empty"));
  const Showing label("empty-window", scratch.filePath("label"), {"読み出し"});
  const Showing program("shown-program", scratch.filePath("program"));
  const Showing largest_chip("shown-program", scratch.filePath("largest"),
                             {"largest", scratch.filePath("image.hex")});
  const auto start = [&](const char* subject, const Showing& shown, std::optional<double> goal) {
    report.Measure({subject, [&] { return shown.Start(); }, beside, [&] { return empty.Start(); }, goal},
                   kRounds);
  };
  start("start to the shown window", program, 1.3);
  start("  the same of a window with one label", label, {});
  const auto memory = [&](const char* subject, const Showing& shown) {
    const auto [needed, bare] = report.Measure(
        {subject, [&] { return shown.Memory(); }, beside, [&] { return empty.Memory(); }, {}, "bytes"},
        kRounds);
    return needed - bare;
  };
  const auto more = [&](double bytes, std::optional<double> goal) {
    report.Measure(
        {"  what that is more", [&] { return bytes; }, "10 MiB", [] { return 10 << 20; }, goal, "bytes"});
  };
  memory("memory, first chip", program);
  more(memory("memory, largest chip", largest_chip), 1.0);
  more(memory("memory, a window with one label", label), {});
}

void Measure_Conversions(Report& report, const QDir& scratch) {
  report.Begin("Files: conversions by whole processes; ours flushes to the disk");
  Choose("AT24C1024");
  const std::vector<std::uint8_t> image = Pattern(ImageBuffer.size());
  ImageBuffer = image;
  const std::string bytes = std::to_string(image.size()) + " bytes, ";
  const QString binary = scratch.filePath("image.bin"), hex = scratch.filePath("image.hex");
  Write_File(hex.toStdString(), wrenbit::Intel_Hex_Text());
  const Converter ours{
      Beside_This("hex-convert"), {"IN", "OUT", QString::number(image.size())}, {"IN", "OUT"}};
  for (const Converter& theirs : kTheirs) {
    if (QStandardPaths::findExecutable(theirs.Program).isEmpty()) {
      std::cerr << theirs.Program.toStdString() << " is not installed.\n";
      continue;
    }
    const auto measure = [&](const char* subject, auto words, const QString& in, const QString& out) {
      report.Measure({bytes + subject, [&] { return Convert(ours.Program, ours.*words, in, out); },
                      theirs.Program.toStdString(),
                      [&] { return Convert(theirs.Program, theirs.*words, in, out + kTheirFile); }},
                     kRounds);
    };
    measure("Intel HEX to binary", &Converter::ToBinary, hex, binary);
    measure("binary to Intel HEX", &Converter::ToHex, binary, hex);
    for (const char* whose : {"", kTheirFile})
      if (File_Bytes((binary + whose).toStdString()) != image || Hex_Bytes(hex + whose) != image)
        throw std::runtime_error("a conversion made other bytes");
  }
}

}  // namespace bench
