#include "qt_settings.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace wrenbit {
namespace {

TEST(Settings, EveryTextComesBackInTheNextRun) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("wrenbit/settings.ini");
  for (const std::string text :
       {"", "0", "1000.5", "/home/私/あ, い;う", " a \"b\" = c\\", "@Invalid()", "%41\t#"}) {
    Qt_Settings(file).Save("Settings", "SAVE_DIR", text);
    EXPECT_EQ(Qt_Settings(file).Get("Settings", "SAVE_DIR", "?"), text);
  }
  EXPECT_EQ(Qt_Settings(file).Get("Settings", "DUT", "0"), "0");
}

TEST(Settings, TheFileIsWrittenAtOnceAndReadAsPeopleWriteIt) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("settings.ini"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.write("[Settings]\nOPEN_DIR0=/a,b\n");
  file.flush();
  Qt_Settings settings(file.fileName());
  EXPECT_EQ(settings.Get("Settings", "OPEN_DIR0", ""), "/a,b");
  settings.Save("Settings", "DUT", "12");
  QFile written(file.fileName());
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_TRUE(written.readAll().contains("DUT=12\n"));
}

TEST(Settings, AStoreThatCannotBeWrittenKeepsTheValueForTheRun) {
  const QTemporaryDir folder;
  QFile in_the_way(folder.filePath("wrenbit"));
  ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
  Qt_Settings settings(folder.filePath("wrenbit/settings.ini"));
  settings.Save("Settings", "DUT", "1");
  settings.Save("Settings", "DUT", "2");
  EXPECT_EQ(settings.Get("Settings", "DUT", "0"), "2");
}

}  // namespace
}  // namespace wrenbit
