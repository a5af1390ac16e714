#include "shell/qt/seams/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>
#include <string>
#include <utility>

namespace wrenbit {
namespace {

constexpr QSize kDialog(660, 440);  // As much as a small screen has.
constexpr int kAir = 12;            // Pixels around a list's entries.

// "Hexファイル|*.hex|全てのファイル|*.*|" as Qt writes it, for file systems that tell small letters from
// capitals.
QStringList Name_Filters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|', Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns{parts[i + 1].toLower(), parts[i + 1].toUpper()};
    patterns.removeDuplicates();
    patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
    filters << parts[i] + " (" + patterns.join(' ') + ')';
  }
  return filters;
}

// Qt's own dialog, where the desktop has none: names for its lists, after the labels beside them, and room
// for what it would cut. All files are of the kind that the filter says.
void Tidy(QFileDialog& box) {
  for (const auto& [list, label] :
       {std::pair{"lookInCombo", QFileDialog::LookIn}, std::pair{"fileTypeCombo", QFileDialog::FileType}})
    if (auto* view = box.findChild<QWidget*>(list)) view->setAccessibleName(box.labelText(label));
  box.resize(kDialog);
  if (auto* places = box.findChild<QListView*>("sidebar"))
    places->setMinimumWidth(places->sizeHintForColumn(0) + kAir);
  auto* files = box.findChild<QTreeView*>("treeView");
  if (!files) return;
  enum { Name, Size, Type, Date };
  files->setColumnHidden(Type, true);
  files->header()->setStretchLastSection(false);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(Name, QHeaderView::Stretch);
}

// A name without an extension is the file's whole name where there is such a file; else the default one goes
// behind it, as it does when saving, in whichever case there is a file.
QFileInfo With_Extension(const QFileInfo& chosen, const QString& extension) {
  if (chosen.exists() || !chosen.suffix().isEmpty()) return chosen;
  for (const QString& ending : {extension, extension.toLower()})
    if (const QFileInfo there(chosen.filePath() + '.' + ending); there.exists()) return there;
  return chosen;
}

bool Ask(CommonDialog& dialog, QFileDialog::AcceptMode mode, QWidget* owner) {
  const bool saving = mode == QFileDialog::AcceptSave;
  // Without one Windows' own dialog would have none.
  const QString title = dialog.DialogTitle.empty() ? QFileDialog::tr(saving ? "Save As" : "Open")
                                                   : QString::fromStdString(dialog.DialogTitle);
  QFileDialog box(owner, title,
                  dialog.InitDir.empty() ? QDir::homePath() : QString::fromStdString(dialog.InitDir));
  box.setAcceptMode(mode);
  // What is to be said of a name, there already or not there, the program says itself.
  box.setFileMode(QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setNameFilters(Name_Filters(dialog.Filter));
  const QString extension = QString::fromStdString(dialog.DefaultExt);
  if (saving) box.setDefaultSuffix(extension);
  const QString proposed = QString::fromStdString(dialog.FileName);
  // A pattern in place of a name says no more than the filter does.
  if (!proposed.isEmpty() && !proposed.contains('*')) box.selectFile(QFileInfo(proposed).fileName());
  Tidy(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;

  QFileInfo chosen(box.selectedFiles().first());
  if (!saving) chosen = With_Extension(chosen, extension);
  dialog.FileName = QDir::toNativeSeparators(chosen.filePath()).toStdString();
  dialog.FileTitle = chosen.fileName().toStdString();
  return true;
}

}  // namespace

void Offer_File_Dialogs(CommonDialog& dialog, QWidget* owner) {
  dialog.View_Open = [&dialog, owner] { return Ask(dialog, QFileDialog::AcceptOpen, owner); };
  dialog.View_Save = [&dialog, owner] { return Ask(dialog, QFileDialog::AcceptSave, owner); };
}

}  // namespace wrenbit
