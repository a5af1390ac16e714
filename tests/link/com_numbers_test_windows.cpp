#include "link/com_numbers.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

TEST(Com_Numbers, AFileBesideTheSettingsComesBeforeTheSystem) {
  const Temporary_Folder config;
  std::filesystem::create_directory(config / "ports");
  Put_Content(config / "ports/port-COM7.txt", "\uFEFF\\\\.\\pipe\\board \r\n");
  const Com_Numbers numbers(config.Path());
  ASSERT_TRUE(numbers.Device(7));
  EXPECT_EQ(numbers.Device(7)->Path, "\\\\.\\pipe\\board");
  for (const int none : {0, 19, 21}) EXPECT_FALSE(numbers.Device(none)) << none;
}

}  // namespace
}  // namespace wrenbit
