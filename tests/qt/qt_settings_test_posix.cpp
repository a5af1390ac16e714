#include "shell/qt/seams/qt_settings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "shell/qt/seams/instance_lock.h"
#include "tests/support/plain_user_posix.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

class Settings : public testing::Test {
 protected:
  const Temporary_Folder folder;
  const std::string path = folder / "settings.ini";

  static Qt_Settings Store(const std::string& file) {
    return Qt_Settings({QString::fromStdString(file), QSettings::IniFormat});
  }
};

TEST_F(Settings, TheLockBesideThemHasOneOwnerWhateverAFileLeftBehindNames) {
  Put_Content(folder / "instance.lock", "1\nwrenbit\nthe machine's old name\n");
  EXPECT_TRUE(Claim_Instance(folder / "instance.lock"));
  EXPECT_FALSE(Claim_Instance(folder / "instance.lock"));
  EXPECT_TRUE(Claim_Instance(folder.Path())) << "where there can be none";
}

// Qt reads a file once for all stores of a process, so the next run is given a copy.
TEST_F(Settings, EveryTextIsWrittenAtOnceAndComesBackInTheNextRun) {
  const std::string file = folder / "wrenbit/settings.ini";
  Qt_Settings settings = Store(file);
  int run = 0;
  for (const std::string text :
       {"", "0", "1000.5", "/home/私/あ, い;う", " a \"b\" = c\\", "@Invalid()", "%41\t#"}) {
    settings.Save("Settings", "SAVE_DIR", text);
    const std::string copy = folder / std::to_string(++run);
    std::filesystem::copy_file(file, copy);
    EXPECT_EQ(Store(copy).Get("Settings", "SAVE_DIR", "?"), text);
  }
}

// A start saves what it has just loaded, and must not wait for the disk.
TEST_F(Settings, AnUnchangedValueIsNotWrittenAgain) {
  Store(path).Save("Settings", "DUT", "12");
  const auto written = std::filesystem::last_write_time(path) - std::chrono::hours(1);
  std::filesystem::last_write_time(path, written);
  Store(path).Save("Settings", "DUT", "12");
  EXPECT_EQ(std::filesystem::last_write_time(path), written);
}

TEST_F(Settings, WhatPeopleOrAnotherProcessWroteMeanwhileStays) {
  Qt_Settings settings = Store(path);
  settings.Save("Settings", "DUT", "1");
  Put_Content(path, "[Settings]\nDUT=1\nDUT=2\nComNo=4\nOPEN_DIR0=/a,b\n");
  settings.Save("Settings", "RTS", "0");
  const std::map<std::string, std::string> stored{
      {"DUT", "2"}, {"ComNo", "4"}, {"OPEN_DIR0", "/a,b"}, {"RTS", "0"}, {"DTR", "?"}};
  for (const auto& [key, value] : stored) EXPECT_EQ(settings.Get("Settings", key, "?"), value) << key;
}

TEST_F(Settings, AFileThatMayNotBeReadOrWrittenStaysAndTheValueIsKeptUntilItMay) {
  using std::filesystem::perms;
  const Plain_User plain;
  if (!plain) GTEST_SKIP() << "root can't become a plain user here";
  for (const perms permissions : {perms::none, perms::owner_read}) {
    const std::string file = folder / std::to_string(static_cast<unsigned>(permissions));
    Put_Content(file, "[Settings]\nDUT=5\n");
    std::filesystem::permissions(file, permissions);
    Qt_Settings settings = Store(file);
    EXPECT_EQ(settings.Get("Settings", "DUT", "0"), permissions == perms::none ? "0" : "5");
    settings.Save("Settings", "DUT", "6");
    EXPECT_EQ(settings.Get("Settings", "DUT", "0"), "6");
    std::filesystem::permissions(file, perms::owner_read);
    EXPECT_EQ(Content(file), "[Settings]\nDUT=5\n");
    std::filesystem::permissions(file, perms::owner_read | perms::owner_write);
    settings.Save("Settings", "DUT", "6");
    EXPECT_EQ(Content(file), "[Settings]\nDUT=6\n");
  }
}

}  // namespace
}  // namespace wrenbit
