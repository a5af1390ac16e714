#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "number_text.h"
#include "plain_user_posix.h"
#include "qt_settings.h"

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

// A start saves what it has just loaded, and must not wait for the disk.
TEST(Settings, AnUnchangedValueIsNotWrittenAgain) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("settings.ini");
  Qt_Settings(path).Save("Settings", "DUT", "12");
  const QDateTime written(QDate(2020, 1, 1), QTime(12, 0));
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(written, QFileDevice::FileModificationTime));
  }
  Qt_Settings(path).Save("Settings", "DUT", "12");
  EXPECT_EQ(QFileInfo(path).lastModified(), written);
}

TEST(Settings, AStoreThatCannotBeWrittenKeepsTheValueForTheRun) {
  const QTemporaryDir folder;
  QFile in_the_way(folder.filePath("wrenbit"));
  ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
  Qt_Settings settings(folder.filePath("wrenbit/settings.ini"));
  settings.Save("Settings", "DUT", "1");
  settings.Save("Settings", "DUT", "2");
  EXPECT_EQ(settings.Get("Settings", "DUT", "0"), "2");
  ASSERT_TRUE(in_the_way.remove());
  settings.Save("Settings", "DUT", "2");
  EXPECT_EQ(Qt_Settings(folder.filePath("wrenbit/settings.ini")).Get("Settings", "DUT", "0"), "2");
}

TEST(Settings, ADamagedFileGivesTheDefaultAndTakesANewValue) {
  const QByteArray damaged[] = {
      {},
      QByteArray(100000, '\0'),
      "\xFF\xFE\x00[S\x00",
      "[Settings\nDUT",
      "DUT=3\n[Settings]\n=\n;\n[]\n%zz=1\n\\\n",
      "[Settings]\nDUT=\"unclosed\nComNo=1\n",
      "[Settings]\nDUT=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\x5rubbish)\n",
      "[Settings]\nDUT=@Rect(1 2 3)\n",
  };
  for (const QByteArray& content : damaged) {
    SCOPED_TRACE(content.left(40).toPercentEncoding().toStdString());
    const QTemporaryDir folder;
    QFile file(folder.filePath("settings.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    EXPECT_EQ(Whole_Number(Qt_Settings(file.fileName()).Get("Settings", "DUT", "7")).value_or(7), 7);
    Qt_Settings(file.fileName()).Save("Settings", "DUT", "12");
    EXPECT_EQ(Qt_Settings(file.fileName()).Get("Settings", "DUT", "7"), "12");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("DUT=12"));
  }
}

TEST(Settings, WhatAnotherProcessStoredMeanwhileStays) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("settings.ini"));
  Qt_Settings settings(file.fileName());
  settings.Save("Settings", "DUT", "1");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Settings]\nDUT=1\nDUT=2\nComNo=4\n");
  file.close();
  settings.Save("Settings", "RTS", "0");
  EXPECT_EQ(settings.Get("Settings", "ComNo", "0"), "4");
  EXPECT_EQ(settings.Get("Settings", "RTS", "1"), "0");
  EXPECT_EQ(settings.Get("Settings", "DUT", "0"), "2") << "of two values the last one";
}

TEST(Settings, AFileThatTheUserMayNotReadOrWriteStaysAsItIs) {
  const Plain_User plain;
  if (!plain) GTEST_SKIP() << "root can't become a plain user here";
  for (const auto permissions : {QFile::Permissions(), QFile::Permissions(QFile::ReadOwner)}) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("settings.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Settings]\nDUT=5\n");
    file.close();
    ASSERT_TRUE(file.setPermissions(permissions));
    Qt_Settings settings(file.fileName());
    EXPECT_EQ(settings.Get("Settings", "DUT", "0"), permissions ? "5" : "0");
    settings.Save("Settings", "DUT", "6");
    EXPECT_EQ(settings.Get("Settings", "DUT", "0"), "6");
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "[Settings]\nDUT=5\n");
  }
}

}  // namespace
}  // namespace wrenbit
