#include "core/state/whole_file.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "core/state/wide_path.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

// In a folder whose name is Japanese, and whose path is longer than 260 characters.
class Whole_File : public testing::Test {
 protected:
  Whole_File() {
    for (int level = 0; level < 4; ++level) {
      deep += "\\フォルダ" + std::string(80, 'n');
      CreateDirectoryW(Long_Path(deep).c_str(), nullptr);
    }
    file = deep + "\\表ソ.hex";
  }
  ~Whole_File() override {
    DeleteFileW(Long_Path(file).c_str());
    for (; deep != folder.Path(); deep.resize(deep.rfind('\\'))) RemoveDirectoryW(Long_Path(deep).c_str());
  }

  const Temporary_Folder folder;
  std::string deep = folder.Path(), file;
};

TEST_F(Whole_File, IsMadeReplacedAndReadAndNothingStaysBesideIt) {
  EXPECT_FALSE(File_Exists(file));
  for (const char* text : {"made", "replaced"}) {
    EXPECT_EQ(Write_Whole_File(file, text), std::nullopt);
    EXPECT_EQ(Read_Whole_File(file), text);
    EXPECT_TRUE(File_Exists(file));
  }
  EXPECT_TRUE(DeleteFileW(Long_Path(file).c_str()));
  EXPECT_TRUE(RemoveDirectoryW(Long_Path(deep).c_str())) << "nothing else is in it";
  CreateDirectoryW(Long_Path(deep).c_str(), nullptr);
}

TEST_F(Whole_File, KeepsItsAttributes) {
  Write_Whole_File(file, "old");
  SetFileAttributesW(Long_Path(file).c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE);
  EXPECT_EQ(Write_Whole_File(file, "new"), std::nullopt);
  EXPECT_EQ(GetFileAttributesW(Long_Path(file).c_str()),
            DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE});
}

TEST_F(Whole_File, ARefusalTellsWhyAndLeavesWhatWasThere) {
  Write_Whole_File(file, "old");
  const std::wstring path = Long_Path(file);
  const std::map<std::string, std::vector<std::string>> cases{
      {"保存先のフォルダが見つかりません。", {deep + "\\none\\a.hex", ""}},
      {"同じ名前のフォルダがあります。", {deep, folder.Path()}},
  };
  for (const auto& [reason, paths] : cases)
    for (const std::string& other : paths) {
      EXPECT_EQ(Read_Whole_File(other), std::nullopt) << other;
      EXPECT_EQ(Write_Whole_File(other, "x"), reason) << other;
    }
  EXPECT_EQ(Read_Whole_File("\\\\.\\pipe\\tolvex-sim"), std::nullopt);
  EXPECT_EQ(Read_Whole_File("NUL"), std::nullopt);
  EXPECT_NE(Write_Whole_File("NUL", "x"), std::nullopt);

  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(Write_Whole_File(file, "new"), "書き込みが許可されていないか、読み取り専用です。");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  const HANDLE others = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(Write_Whole_File(file, "new"), "ほかのプログラムがファイルを使用しています。");
  CloseHandle(others);
  EXPECT_EQ(Read_Whole_File(file), "old");
}

}  // namespace
}  // namespace wrenbit
