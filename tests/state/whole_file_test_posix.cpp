#include "core/state/whole_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/plain_user_posix.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNotAllowed = "書き込みが許可されていないか、読み取り専用です。";
constexpr const char* kDiskFull = "ディスクの空き容量が足りません。";

class Whole_File : public testing::Test {
 protected:
  const Temporary_Folder folder;
  const std::string file = folder / "a.hex";
};

TEST_F(Whole_File, ANewFileFollowsTheUmaskAndAReplacedOneKeepsItsMode) {
  const mode_t old_mask = umask(027);
  for (const unsigned mode : {0640u, 0606u}) {
    EXPECT_EQ(Write_Whole_File(file, "1"), std::nullopt);
    EXPECT_EQ(static_cast<unsigned>(fs::status(file).permissions()), mode);
    chmod(file.c_str(), 0606);
  }
  umask(old_mask);
}

TEST_F(Whole_File, ALinkStaysAndItsGoalIsWritten) {
  fs::create_directory(folder / "below");
  fs::create_symlink("below/second", folder / "first");
  fs::create_symlink("file", folder / "below/second");
  for (const char* text : {"made", "replaced"}) {
    EXPECT_EQ(Write_Whole_File(folder / "first", text), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(folder / "first") && fs::is_symlink(folder / "below/second"));
    EXPECT_EQ(Read_Whole_File(folder / "below/file"), text);
  }
  fs::create_symlink("ring", folder / "ring");
  EXPECT_NE(Write_Whole_File(folder / "ring", "x"), std::nullopt);
}

TEST_F(Whole_File, NothingButRegularFilesIsReadOrWrittenAndARefusalTellsWhy) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  Put_Content(file, "old");
  const std::map<std::string, std::vector<std::string>> cases{
      {"保存先のフォルダが見つかりません。", {folder / "none/a.hex", file + "/a.hex", ""}},
      {"同じ名前のフォルダがあります。", {folder.Path(), folder / ""}},
      {"通常のファイルではないので、書き込めません。", {folder / "pipe", "/dev/null"}},
  };
  for (const auto& [reason, paths] : cases)
    for (const std::string& path : paths) {
      EXPECT_EQ(Read_Whole_File(path), std::nullopt) << path;
      EXPECT_EQ(Write_Whole_File(path, "x"), reason) << path;
    }
  EXPECT_EQ(folder.Entries(), 2);

  const std::string other = Write_Whole_File(folder / std::string(300, 'n'), "x").value();
  EXPECT_NE(other.find(std::strerror(ENAMETOOLONG)), other.npos) << other;
  fs::resize_file(file, std::uintmax_t{1} << 30);
  EXPECT_FALSE(Read_Whole_File(file).has_value()) << "too large";
}

// A file that grows beyond the limit ends the process by a signal; where that is ignored, the write that
// reaches the limit takes what fits, and the next one fails.
TEST_F(Whole_File, AFullDiskOrADeathInTheMidstLeavesTheOldFile) {
  Put_Content(file, "old");
  for (const bool killed : {false, true})
    for (const rlim_t at : {0u, 1u, 5000u}) {
      SCOPED_TRACE(at);
      const pid_t child = fork();
      if (child == 0) {
        const rlimit no_core{0, 0}, limit{at, at};
        setrlimit(RLIMIT_CORE, &no_core);
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
        const std::string text(10000, 'x');
        _exit(Write_Whole_File(file, text) == kDiskFull && Write_Whole_File(file + "2", text) == kDiskFull);
      }
      int status = 0;
      ASSERT_EQ(waitpid(child, &status, 0), child);
      EXPECT_TRUE(killed ? WIFSIGNALED(status) : WEXITSTATUS(status) == 1);
      EXPECT_EQ(Content(file), "old");
      EXPECT_TRUE(killed || folder.Entries() == 1) << "nothing is left beside it";
    }
  for (const auto& left : fs::directory_iterator(folder.Path()))
    EXPECT_TRUE(left.path() == file || left.path().filename().string().starts_with(".wrenbit-"));
}

TEST_F(Whole_File, RefusesAFileOrFolderThatTheUserMayNotWrite) {
  const Plain_User plain;
  if (!plain) GTEST_SKIP() << "root can't become a plain user here";
  fs::create_directory(folder / "locked");
  for (const char* name : {"a.hex", "locked/b.hex"}) Put_Content(folder / name, "old");
  chmod(file.c_str(), 0444);
  chmod((folder / "locked").c_str(), 0555);
  for (const char* name : {"a.hex", "locked/a.hex", "locked/b.hex"})
    EXPECT_EQ(Write_Whole_File(folder / name, "new"), kNotAllowed) << name;
  EXPECT_EQ(Content(file) + Content(folder / "locked/b.hex"), "oldold");
  EXPECT_EQ(folder.Entries(), 2);
  chmod((folder / "locked").c_str(), 0755);
}

}  // namespace
}  // namespace wrenbit
