// The help window with files of the test's own.
#include "shell/qt/seams/help_window.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

class Help : public testing::Test {
 protected:
  const Temporary_Folder folder;
  Help_Window window;
  QTextBrowser& page = *window.findChild<QTextBrowser*>();

  std::string File(const std::string& name, const std::string& content) const {
    Put_Content(folder / name, content);
    return folder / name;
  }
  // Higher than the window, with a place to go to.
  std::string High_Page(const std::string& first) const {
    const std::string far = "<pre>" + std::string(100, '\n') + "</pre>";
    return File("help", "<a name='contents'>" + first + "</a>" + far + "<a name='below'>b</a>" + far);
  }
  int Scrolled() const { return page.verticalScrollBar()->value(); }
};

TEST_F(Help, WhatCannotBeReadIsToldAndChangesNothing) {
  for (const bool open : {false, true}) {
    if (open) {
      ASSERT_EQ(window.Show_Contents(High_Page("目次")), "");
    }
    const QString before = page.toPlainText();
    for (const std::string& path : {folder / "missing", folder.Path(), File("empty", "\r\n"),
                                    File("cp932", "\x83\x77\x83\x8B\x83\x76"), File("cut", "\xE7\x9B")}) {
      SCOPED_TRACE(path);
      EXPECT_NE(window.Show_Contents(path).find(path), std::string::npos);
      EXPECT_EQ(window.isVisible(), open);
      EXPECT_EQ(page.toPlainText(), before);
    }
  }
}

TEST_F(Help, OnlyPlacesOnThePageAndWebAddressesAreFollowed) {
  QTextBrowser browser;  // Stands for the user's.
  QDesktopServices::setUrlHandler("https", &browser, "setSource");
  const std::string secret = File("secret", "secret");
  ASSERT_EQ(window.Show_Contents(High_Page("top")), "");
  const QString shown = page.toPlainText();
  for (const std::string& link : {"file://" + secret, secret, std::string("secret"), std::string("ftp://x/y"),
                                  std::string("https://x/y"), "file://" + secret + "#below"})
    emit page.anchorClicked(QUrl(QString::fromStdString(link)));
  EXPECT_EQ(page.toPlainText(), shown);
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_EQ(browser.source(), QUrl("https://x/y"));
  QDesktopServices::unsetUrlHandler("https");
}

TEST_F(Help, EachCallShowsTheFileAsItIsNowAtItsContents) {
  ASSERT_EQ(window.Show_Contents(High_Page("old")), "");
  emit page.anchorClicked(QUrl("#below"));
  EXPECT_GT(Scrolled(), 0);
  QCoreApplication::processEvents();  // It becomes the active one, in which alone shortcuts work.
  QTest::keyClick(&page, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());

  ASSERT_EQ(window.Show_Contents(High_Page("new")), "");
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(page.toPlainText().startsWith("new"));
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_FALSE(page.isBackwardAvailable());
}

}  // namespace
}  // namespace wrenbit
