// The help window with files of the test's own.
#include "help_window.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

namespace wrenbit {
namespace {

const QByteArray kFar = QByteArray("<p>x</p>").repeated(200);

struct Help : testing::Test {
  const QTemporaryDir folder;
  Help_Window window;
  QTextBrowser& page = *window.findChild<QTextBrowser*>();

  std::string File(const char* name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName().toStdString();
  }
  int Scrolled() const { return page.verticalScrollBar()->value(); }
};

TEST_F(Help, WhatCannotBeReadIsToldAndChangesNothing) {
  const std::string good = File("good", "<a name='contents'>目次</a>");
  for (const bool open : {false, true}) {
    if (open) {
      ASSERT_EQ(window.Show_Contents(good), "");
    }
    const QString before = page.toPlainText();
    for (const std::string& path :
         {folder.filePath("missing").toStdString(), folder.path().toStdString(), File("empty", "\r\n"),
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
  ASSERT_EQ(window.Show_Contents(
                File("help", "<a name='contents'>top</a>" + kFar + "<a name='below'>b</a>" + kFar)),
            "");
  const QString shown = page.toPlainText();
  for (const std::string& link : {"file://" + secret, secret, std::string("secret"), std::string("ftp://x/y"),
                                  std::string("https://x/y"), "file://" + secret + "#below"})
    emit page.anchorClicked(QUrl(QString::fromStdString(link)));
  EXPECT_EQ(page.toPlainText(), shown);
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_EQ(browser.source(), QUrl("https://x/y"));
  QDesktopServices::unsetUrlHandler("https");

  emit page.anchorClicked(QUrl("#below"));
  const int below = Scrolled();
  EXPECT_GT(below, 0);
  page.backward();
  EXPECT_EQ(Scrolled(), 0);
  page.forward();
  EXPECT_EQ(Scrolled(), below);
}

TEST_F(Help, EachCallShowsTheFileAsItIsNowAtItsContents) {
  const std::string path = File("help", "<a name='contents'>old</a>" + kFar + "<a name='below'>b</a>" + kFar);
  ASSERT_EQ(window.Show_Contents(path), "");
  emit page.anchorClicked(QUrl("#below"));
  QCoreApplication::processEvents();  // It becomes the active one, in which alone shortcuts work.
  QTest::keyClick(&page, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());

  File("help", "<a name='contents'>new</a>" + kFar);
  ASSERT_EQ(window.Show_Contents(path), "");
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(page.toPlainText().startsWith("new"));
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_FALSE(page.isBackwardAvailable());
  EXPECT_FALSE(page.isForwardAvailable());
}

}  // namespace
}  // namespace wrenbit
