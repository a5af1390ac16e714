// Image files as a chip's memory.
#include "board/image_store.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/temporary_folder.h"

namespace {

TEST(Image_Store, Finds_Its_Cells_Again_And_Refuses_What_Is_No_Image_Of_The_Chip) {
  const Temporary_Folder folder;
  const auto path = folder / "chip.bin";
  board::Image_Store store(path, 16);
  EXPECT_EQ(Content(path), std::string(16, '\xFF'));
  store.Write(5, 'A');
  EXPECT_EQ(Content(path)[5], 'A') << "in the file at once";
  EXPECT_EQ(board::Image_Store(path, 16).Cells()[5], 'A');

  for (const std::string content : {"", "short", "much too long"}) {
    Put_Content(path, content);
    EXPECT_THROW(board::Image_Store(path, 8), std::runtime_error) << content;
    EXPECT_EQ(Content(path), content);
  }
  for (const std::string& other : {folder / "", folder / "nowhere/chip.bin"})
    EXPECT_THROW(board::Image_Store(other, 8), std::runtime_error) << other;
}

}  // namespace
