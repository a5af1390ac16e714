#include "shell/qt/seams/help_window.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStringDecoder>
#include <QTextBrowser>
#include <QUrl>

#include "core/state/app.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

constexpr QSize kSize(720, 640);
constexpr int kAboveHeading = 8;
constexpr int kListIndent = 20;

// The text of the file, or why there is none.
struct Reading {
  QString Html, Failure;
};

Reading Read(const QString& path) {
  // Looked at before it is opened: opening a pipe would wait for a writer.
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) return {{}, QStringLiteral("通常のファイルではありません。")};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {{}, file.errorString()};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) return {{}, file.errorString()};
  if (bytes.trimmed().isEmpty()) return {{}, QStringLiteral("ファイルが空です。")};
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString html = utf8(bytes);
  if (utf8.hasError()) return {{}, QStringLiteral("UTF-8のテキストではありません。")};
  return {html, {}};
}

// A button with its mnemonic in the caption; `keys` are those that browsers have for the same.
template <class Act>
QPushButton* Add_Button(QBoxLayout& row, QWidget* window, const QString& name, const QString& mnemonic,
                        const QKeySequence& keys, Act act) {
  auto* button = new QPushButton(name + "(&" + mnemonic + ")", window);
  button->setAccessibleName(name);
  button->setToolTip(keys.toString(QKeySequence::NativeText));
  button->setAutoDefault(true);  // The enter key presses the button that has the focus.
  QObject::connect(button, &QPushButton::clicked, window, act);
  QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, act);
  row.addWidget(button);
  return button;
}

}  // namespace

class Help_Window::Page : public QTextBrowser {
  // Whatever the text may name: pages, pictures, style sheets.
  QVariant loadResource(int, const QUrl&) override { return {}; }

  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override {
    QTextBrowser::doSetSource(url, type);
    // The link that led here keeps the keyboard no longer: a return to this place would scroll to the link.
    setTextCursor(cursorForPosition({}));
    // Else the heading would touch the edge.
    verticalScrollBar()->setValue(verticalScrollBar()->value() - kAboveHeading);
  }

  // From the selected link Tab goes to the next one. Without one in sight it would go to the document's
  // first.
  bool focusNextPrevChild(bool next) override {
    if (!textCursor().hasSelection() || !viewport()->rect().intersects(cursorRect())) {
      QTextCursor in_sight = cursorForPosition({});
      in_sight.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
      setTextCursor(in_sight);
    }
    return QTextBrowser::focusNextPrevChild(next);
  }
};

Help_Window::Help_Window() : page(new Page) {
  Set_Role(this, QAccessible::Window);
  setWindowTitle(QString::fromStdString(App.Title + " ヘルプ"));
  resize(kSize.boundedTo(screen()->availableSize()));
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(Make_Tools());
  rows->addWidget(page);
  Set_Up_Page();
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

QLayout* Help_Window::Make_Tools() {
  auto* tools = new QHBoxLayout;
  Add_Button(*tools, this, QStringLiteral("目次"), QStringLiteral("C"), QKeySequence(Qt::ALT | Qt::Key_Home),
             [this] { Go_To_Contents(); });
  QPushButton* back = Add_Button(*tools, this, QStringLiteral("戻る"), QStringLiteral("B"),
                                 QKeySequence(Qt::ALT | Qt::Key_Left), [this] { page->backward(); });
  QPushButton* forward = Add_Button(*tools, this, QStringLiteral("進む"), QStringLiteral("F"),
                                    QKeySequence(Qt::ALT | Qt::Key_Right), [this] { page->forward(); });
  for (QPushButton* button : {back, forward}) button->setEnabled(false);
  connect(page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(page, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  tools->addStretch();
  return tools;
}

void Help_Window::Set_Up_Page() {
  page->setFont(Font_For({.Points = 10.5}));
  page->document()->setDefaultStyleSheet(QStringLiteral("pre, code { font-family: '%1' }")
                                             .arg(Font_For({.Face = Typeface::FixedPitch}).family()));
  page->document()->setIndentWidth(kListIndent);
  page->document()->setDocumentMargin(kAboveHeading);
  QPalette paper = page->palette();  // The text says most of its colours; bullets take the page's.
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  page->setPalette(paper);
  page->setAccessibleName(windowTitle());
  page->setOpenLinks(false);
  connect(page, &QTextBrowser::anchorClicked, this, &Help_Window::Follow);
}

std::string Help_Window::Show_Contents(const std::string& path) {
  const QString name = QString::fromStdString(path);
  const auto [html, failure] = Read(name);
  if (!failure.isEmpty()) return (failure + "\r\n" + name).toStdString();
  page->setHtml(html);
  if (isMinimized()) showNormal();
  show();
  Go_To_Contents();
  page->clearHistory();
  page->setFocus();
  raise();
  activateWindow();
  return {};
}

void Help_Window::Go_To_Contents() { page->setSource(QUrl(QStringLiteral("#contents"))); }

void Help_Window::Follow(const QUrl& link) {
  if (link.scheme() == "https" || link.scheme() == "http")
    QDesktopServices::openUrl(link);
  else if (link.toString().startsWith('#'))
    page->setSource(link);
}

}  // namespace wrenbit
