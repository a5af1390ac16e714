#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <fstream>

#include "plain_user_posix.h"
#include "temporary_folder.h"
#include "whole_file.h"

namespace wrenbit {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoFolder = "保存先のフォルダが見つかりません。";
constexpr const char* kNotAllowed = "書き込みが許可されていないか、読み取り専用です。";
constexpr const char* kDiskFull = "ディスクの空き容量が足りません。";
constexpr const char* kFolder = "同じ名前のフォルダがあります。";
constexpr const char* kNoRegularFile = "通常のファイルではないので、書き込めません。";

mode_t Mode(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777;
}

// A file may grow to so many bytes and no further, as on a disk that fills up: write takes a part, then
// fails.
class Small_Disk {
 public:
  explicit Small_Disk(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small{bytes, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~Small_Disk() {
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
  }

 private:
  rlimit old{};
  void (*const handler)(int);
};

TEST(WholeFile, ReadsNothingButRegularFiles) {
  const Temporary_Folder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  for (const std::string& path :
       {folder / "none", folder / "pipe", folder.Path(), std::string("/dev/zero")}) {
    EXPECT_EQ(Read_Whole_File(path), std::nullopt) << path;
  }
  std::ofstream(folder / "vast").flush();
  fs::resize_file(folder / "vast", std::uintmax_t{1} << 30);
  EXPECT_EQ(Read_Whole_File(folder / "vast"), std::nullopt);
}

TEST(WholeFile, ANewFileFollowsTheUmaskAndAReplacedOneKeepsItsMode) {
  const Temporary_Folder folder;
  const mode_t old_mask = umask(027);
  EXPECT_EQ(Write_Whole_File(folder / "a.hex", "1"), std::nullopt);
  EXPECT_EQ(Mode(folder / "a.hex"), 0640u);
  chmod((folder / "a.hex").c_str(), 0606);
  EXPECT_EQ(Write_Whole_File(folder / "a.hex", "2"), std::nullopt);
  EXPECT_EQ(Mode(folder / "a.hex"), 0606u);
  umask(old_mask);
}

TEST(WholeFile, ALinkStaysAndItsGoalIsWritten) {
  const Temporary_Folder folder;
  fs::create_directory(folder / "below");
  fs::create_symlink("below/second", folder / "first");
  fs::create_symlink("file", folder / "below/second");
  for (const char* text : {"made", "replaced"}) {
    EXPECT_EQ(Write_Whole_File(folder / "first", text), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "below/second"));
    EXPECT_EQ(Read_Whole_File(folder / "below/file"), text);
  }
  fs::create_symlink("ring", folder / "ring");
  EXPECT_NE(Write_Whole_File(folder / "ring", "x"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(folder / "ring"));
}

TEST(WholeFile, RefusesWhatIsNoRegularFileAndTellsWhy) {
  const Temporary_Folder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  std::ofstream(folder / "file") << "old";
  const struct {
    std::string path;
    const char* reason;
  } cases[] = {
      {folder / "none/a.hex", kNoFolder},
      {folder / "file/a.hex", kNoFolder},
      {"", kNoFolder},
      {folder.Path(), kFolder},
      {folder / "", kFolder},
      {folder / "pipe", kNoRegularFile},
      {"/dev/null", kNoRegularFile},
  };
  for (const auto& [path, reason] : cases) EXPECT_EQ(Write_Whole_File(path, "x"), reason) << path;
  EXPECT_EQ(folder.Entries(), 2);

  const std::string other = Write_Whole_File(folder / std::string(300, 'n'), "x").value();
  EXPECT_NE(other.find(std::strerror(ENAMETOOLONG)), other.npos) << other;
}

TEST(WholeFile, AFullDiskLeavesTheOldFileAndNothingBesideIt) {
  const Temporary_Folder folder;
  std::ofstream(folder / "a.hex") << "old";
  {
    const Small_Disk full(100);
    EXPECT_EQ(Write_Whole_File(folder / "a.hex", std::string(101, 'x')), kDiskFull);
    EXPECT_EQ(Write_Whole_File(folder / "b.hex", std::string(101, 'x')), kDiskFull);
  }
  EXPECT_EQ(Read_Whole_File(folder / "a.hex"), "old");
  EXPECT_EQ(folder.Entries(), 1);
}

TEST(WholeFile, AProcessKilledInTheMidstLeavesTheOldFile) {
  for (const rlim_t at : {0u, 1u, 5000u}) {
    const Temporary_Folder folder;
    std::ofstream(folder / "a.hex") << "old";
    const pid_t child = fork();
    if (child == 0) {
      const rlimit none{0, 0},
          kills_at{at, at};  // No core file; the signal that ends a file that is too long.
      setrlimit(RLIMIT_CORE, &none);
      setrlimit(RLIMIT_FSIZE, &kills_at);
      Write_Whole_File(folder / "a.hex", std::string(10000, 'x'));
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "it was to be killed at byte " << at;
    EXPECT_EQ(Read_Whole_File(folder / "a.hex"), "old");
    for (const auto& left : fs::directory_iterator(folder.Path()))
      EXPECT_TRUE(left.path().filename() == "a.hex" ||
                  left.path().filename().string().starts_with(".wrenbit-"));
  }
}

TEST(WholeFile, RefusesAFileOrFolderThatTheUserMayNotWrite) {
  const Temporary_Folder folder;
  const Plain_User plain;
  if (!plain) GTEST_SKIP() << "root can't become a plain user here";
  std::ofstream(folder / "read-only") << "old";
  chmod((folder / "read-only").c_str(), 0444);
  EXPECT_EQ(Write_Whole_File(folder / "read-only", "new"), kNotAllowed);
  EXPECT_EQ(Read_Whole_File(folder / "read-only"), "old");
  EXPECT_EQ(folder.Entries(), 1);

  fs::create_directory(folder / "locked");
  std::ofstream(folder / "locked/writable") << "old";
  chmod((folder / "locked").c_str(), 0555);
  EXPECT_EQ(Write_Whole_File(folder / "locked/a.hex", "new"), kNotAllowed);
  EXPECT_EQ(Write_Whole_File(folder / "locked/writable", "new"), kNotAllowed);
  EXPECT_EQ(Read_Whole_File(folder / "locked/writable"), "old");
  chmod((folder / "locked").c_str(), 0755);
}

}  // namespace
}  // namespace wrenbit
