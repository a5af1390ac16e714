#include "core/state/whole_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "tests/support/plain_user_posix.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoFolder = "保存先のフォルダが見つかりません。";
constexpr const char* kNotAllowed = "書き込みが許可されていないか、読み取り専用です。";
constexpr const char* kDiskFull = "ディスクの空き容量が足りません。";
constexpr const char* kFolder = "同じ名前のフォルダがあります。";
constexpr const char* kNoRegularFile = "通常のファイルではないので、書き込めません。";

// Files may grow to so many bytes and no further.
void Limit_Files(rlim_t bytes) {
  rlimit limit;
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = std::min(bytes, limit.rlim_max);
  setrlimit(RLIMIT_FSIZE, &limit);
}

class Whole_File : public testing::Test {
 protected:
  const Temporary_Folder folder;
  const std::string file = folder / "a.hex";
};

TEST_F(Whole_File, ReadsNothingButRegularFiles) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  Put_Content(folder / "vast", "");
  fs::resize_file(folder / "vast", std::uintmax_t{1} << 30);
  for (const std::string& path :
       {folder / "none", folder / "pipe", folder / "vast", folder.Path(), std::string("/dev/zero")})
    EXPECT_EQ(Read_Whole_File(path), std::nullopt) << path;
}

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

TEST_F(Whole_File, RefusesWhatIsNoRegularFileAndTellsWhy) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  Put_Content(file, "old");
  const std::pair<std::string, const char*> cases[] = {
      {folder / "none/a.hex", kNoFolder}, {file + "/a.hex", kNoFolder}, {"", kNoFolder},
      {folder.Path(), kFolder},           {folder / "", kFolder},       {folder / "pipe", kNoRegularFile},
      {"/dev/null", kNoRegularFile},
  };
  for (const auto& [path, reason] : cases) EXPECT_EQ(Write_Whole_File(path, "x"), reason) << path;
  EXPECT_EQ(folder.Entries(), 2);

  const std::string other = Write_Whole_File(folder / std::string(300, 'n'), "x").value();
  EXPECT_NE(other.find(std::strerror(ENAMETOOLONG)), other.npos) << other;
}

TEST_F(Whole_File, AFullDiskLeavesTheOldFileAndNothingBesideIt) {
  Put_Content(file, "old");
  const auto handler =
      std::signal(SIGXFSZ, SIG_IGN);  // A write then takes what fits, and the next one fails.
  Limit_Files(100);
  for (const char* name : {"a.hex", "b.hex"})
    EXPECT_EQ(Write_Whole_File(folder / name, std::string(101, 'x')), kDiskFull);
  Limit_Files(RLIM_INFINITY);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(Whole_File, AProcessKilledInTheMidstLeavesTheOldFile) {
  Put_Content(file, "old");
  for (const rlim_t at : {0u, 1u, 5000u}) {
    const pid_t child = fork();
    if (child == 0) {
      const rlimit no_core{0, 0};
      setrlimit(RLIMIT_CORE, &no_core);
      Limit_Files(at);  // The signal ends a process whose file grows too long.
      Write_Whole_File(file, std::string(10000, 'x'));
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "it was to be killed at byte " << at;
    EXPECT_EQ(Content(file), "old");
  }
  for (const auto& left : fs::directory_iterator(folder.Path()))
    EXPECT_TRUE(left.path() == file || left.path().filename().string().starts_with(".wrenbit-"));
}

TEST_F(Whole_File, RefusesAFileOrFolderThatTheUserMayNotWrite) {
  const Plain_User plain;
  if (!plain) GTEST_SKIP() << "root can't become a plain user here";
  Put_Content(file, "old");
  chmod(file.c_str(), 0444);
  EXPECT_EQ(Write_Whole_File(file, "new"), kNotAllowed);
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(folder.Entries(), 1);

  fs::create_directory(folder / "locked");
  Put_Content(folder / "locked/writable", "old");
  chmod((folder / "locked").c_str(), 0555);
  for (const char* name : {"locked/a.hex", "locked/writable"})
    EXPECT_EQ(Write_Whole_File(folder / name, "new"), kNotAllowed);
  EXPECT_EQ(Content(folder / "locked/writable"), "old");
  chmod((folder / "locked").c_str(), 0755);
}

}  // namespace
}  // namespace wrenbit
