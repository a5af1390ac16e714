// Our Intel HEX against that of other people's tools, in both directions.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <random>
#include <string>

#include "core/state/state.h"
#include "image/intel_hex.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

// How a tool makes one of the folder's files into the other.
struct Tool {
  const char* Name;
  const char* To_Hex;
  const char* To_Binary;
  friend void PrintTo(const Tool& tool, std::ostream* out) { *out << tool.Name; }
};
constexpr Tool kTools[] = {
    {"srec_cat", "srec_cat bin -binary -o hex -intel -obs=32", "srec_cat hex -intel -o bin -binary"},
    {"objcopy", "objcopy -I binary -O ihex bin hex", "objcopy -I ihex -O binary hex bin"},
};

class Other_Tools : public testing::TestWithParam<Tool> {};

TEST_P(Other_Tools, ReadOurFilesAndWriteFilesThatWeRead) {
  const auto run = [](const std::string& command) { return std::system(command.c_str()); };
  if (run(GetParam().Name + std::string(" --version >/dev/null 2>&1")) != 0)
    GTEST_SKIP() << GetParam().Name << " is not installed";
  const Temporary_Folder folder;
  const std::string there = "cd '" + folder.Path() + "' && ";
  for (const std::size_t size : {128u, 65536u, 131072u}) {
    SCOPED_TRACE(size);
    std::mt19937 random(1);
    ImageBuffer.resize(size);
    for (auto& byte : ImageBuffer) byte = static_cast<std::uint8_t>(random());
    const std::string binary(ImageBuffer.begin(), ImageBuffer.end());
    Put_Content(folder / "hex", Intel_Hex_Text());
    ASSERT_EQ(run(there + GetParam().To_Binary), 0);
    EXPECT_TRUE(Content(folder / "bin") == binary);

    Put_Content(folder / "bin", binary);
    ASSERT_EQ(run(there + GetParam().To_Hex), 0);
    ImageBuffer.assign(size, 0xFF);
    Intel_Hex_Load(Content(folder / "hex"));
    EXPECT_TRUE(std::string(ImageBuffer.begin(), ImageBuffer.end()) == binary);
  }
}

INSTANTIATE_TEST_SUITE_P(, Other_Tools, testing::ValuesIn(kTools),
                         [](const auto& tool) { return std::string(tool.param.Name); });

}  // namespace
}  // namespace wrenbit
