// Our Intel HEX against that of other people's tools, in both directions.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "intel_hex.h"
#include "state.h"
#include "temporary_folder.h"
#include "whole_file.h"

namespace wrenbit {
namespace {

std::string Noise(std::size_t size) {
  std::mt19937 random(static_cast<std::mt19937::result_type>(size));
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

bool Present(const std::string& tool) {
  return std::system((tool + " --version >/dev/null 2>&1").c_str()) == 0;
}

// A tool, and how it makes one file into the other: "%bin" and "%hex" stand for their paths.
struct Tool {
  const char* Name;
  const char* From_Binary;
  const char* To_Binary;
  friend void PrintTo(const Tool& tool, std::ostream* out) { *out << tool.Name; }
};
constexpr Tool kTools[] = {
    {"srec_cat", "srec_cat %bin -binary -o %hex -intel -obs=32", "srec_cat %hex -intel -o %bin -binary"},
    {"objcopy", "objcopy -I binary -O ihex %bin %hex", "objcopy -I ihex -O binary %hex %bin"},
};

class OtherTools : public testing::TestWithParam<Tool> {
 protected:
  void SetUp() override {
    if (!Present(GetParam().Name)) GTEST_SKIP() << GetParam().Name << " is not installed";
  }

  void Run(std::string command) {
    for (const std::string kind : {"bin", "hex"}) {
      for (std::size_t at; (at = command.find("%" + kind)) != command.npos;) {
        command.replace(at, 4, "'" + folder / ("file." + kind) + "'");
      }
    }
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
  }

  // What the tool makes of a binary, as lines.
  std::vector<std::string> Lines_Of(const std::string& binary) {
    EXPECT_EQ(Write_Whole_File(folder / "file.bin", binary), std::nullopt);
    Run(GetParam().From_Binary);
    std::istringstream text(Read_Whole_File(folder / "file.hex").value());
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

  static std::string Loaded(const std::vector<std::string>& lines, std::size_t image_size) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    ImageBuffer.assign(image_size, 0xFF);
    Intel_Hex_Load(text);
    return {ImageBuffer.begin(), ImageBuffer.end()};
  }

  const Temporary_Folder folder;
};

TEST_P(OtherTools, ReadOurFiles) {
  for (const std::size_t size : {128u, 65536u, 131072u}) {
    const std::string binary = Noise(size);
    ImageBuffer.assign(binary.begin(), binary.end());
    ASSERT_EQ(Write_Whole_File(folder / "file.hex", Intel_Hex_Text()), std::nullopt);
    Run(GetParam().To_Binary);
    EXPECT_TRUE(Read_Whole_File(folder / "file.bin") == binary) << size;
  }
}

TEST_P(OtherTools, WriteFilesThatWeRead) {
  for (const std::size_t size : {128u, 65536u, 131072u}) {
    const std::string binary = Noise(size);
    EXPECT_TRUE(Loaded(Lines_Of(binary), size) == binary) << size;
  }
}

TEST_P(OtherTools, TheirRecordsMayComeInAnyOrderAndCase) {
  const std::string binary = Noise(4096);
  auto lines = Lines_Of(binary);
  std::shuffle(lines.begin(), lines.end(), std::mt19937(1));
  for (std::string& line : lines) {
    std::transform(line.begin(), line.end(), line.begin(),
                   [](char c) { return static_cast<char>(std::tolower(c)); });
  }
  EXPECT_TRUE(Loaded(lines, 4096) == binary);
}

TEST_P(OtherTools, AGapInTheirFileStaysBlank) {
  std::string binary = Noise(4096);
  auto lines = Lines_Of(binary);
  const auto bytes_of = [](const std::string& line) { return std::stoul(line.substr(1, 2), nullptr, 16); };
  const auto gap =
      std::find_if(lines.begin(), lines.end(), [](const auto& l) { return l.substr(3, 4) == "0040"; });
  ASSERT_NE(gap, lines.end());
  std::fill_n(binary.begin() + 0x40, bytes_of(*gap), '\xFF');
  lines.erase(gap);
  EXPECT_TRUE(Loaded(lines, 4096) == binary);
}

INSTANTIATE_TEST_SUITE_P(, OtherTools, testing::ValuesIn(kTools),
                         [](const auto& tool) { return std::string(tool.param.Name); });

}  // namespace
}  // namespace wrenbit
