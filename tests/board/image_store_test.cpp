// Image files as a chip's memory.
#include "image_store.h"

#include <gtest/gtest.h>

#include "temporary_folder.h"

namespace {

TEST(Image_Store, Makes_An_Erased_Image_And_Finds_Its_Cells_Again) {
  const Temporary_Folder folder;
  const auto path = folder / "chip.bin";
  {
    board::Image_Store store(path, 16);
    EXPECT_EQ(Content(path), std::string(16, '\xFF'));
    store.Write(5, 'A');
    EXPECT_EQ(Content(path)[5], 'A') << "in the file at once";
  }
  EXPECT_EQ(board::Image_Store(path, 16).Cells()[5], 'A');
}

TEST(Image_Store, Refuses_What_Is_No_Image_Of_The_Chip_And_Leaves_It_Alone) {
  const Temporary_Folder folder;
  for (const std::string content : {"", "short", "much too long"}) {
    const auto path = folder / "chip.bin";
    Put_Content(path, content);
    EXPECT_THROW(board::Image_Store(path, 8), std::runtime_error) << content;
    EXPECT_EQ(Content(path), content);
  }
  EXPECT_THROW(board::Image_Store(folder / "", 8), std::runtime_error) << "a folder";
  EXPECT_THROW(board::Image_Store("/dev/null", 8), std::runtime_error);
  EXPECT_THROW(board::Image_Store(folder / "nowhere/chip.bin", 8), std::runtime_error);
}

}  // namespace
