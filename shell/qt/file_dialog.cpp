#include "file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <string>
#include <utility>

namespace wrenbit {
namespace {

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

// The lists of Qt's own dialog, after the labels beside them.
void Name_Lists(QFileDialog& box) {
  for (const auto& [list, label] :
       {std::pair{"lookInCombo", QFileDialog::LookIn}, std::pair{"fileTypeCombo", QFileDialog::FileType}})
    if (auto* view = box.findChild<QWidget*>(list)) view->setAccessibleName(box.labelText(label));
}

bool Ask(CommonDialog& dialog, QFileDialog::AcceptMode mode, QWidget* owner) {
  QFileDialog box(owner, QString::fromStdString(dialog.DialogTitle),
                  dialog.InitDir.empty() ? QDir::homePath() : QString::fromStdString(dialog.InitDir));
  box.setAcceptMode(mode);
  // What is to be said of a name, there already or not there, the program says itself.
  box.setFileMode(QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setNameFilters(Name_Filters(dialog.Filter));
  // When opening, a name without an extension may be a file's whole name.
  if (mode == QFileDialog::AcceptSave) box.setDefaultSuffix(QString::fromStdString(dialog.DefaultExt));
  const QString proposed = QString::fromStdString(dialog.FileName);
  // A pattern in place of a name says no more than the filter does.
  if (!proposed.isEmpty() && !proposed.contains('*')) box.selectFile(QFileInfo(proposed).fileName());
  Name_Lists(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;

  const QFileInfo chosen(box.selectedFiles().first());
  dialog.FileName = chosen.filePath().toStdString();
  dialog.FileTitle = chosen.fileName().toStdString();
  return true;
}

}  // namespace

void Offer_File_Dialogs(CommonDialog& dialog, QWidget* owner) {
  dialog.View_Open = [&dialog, owner] { return Ask(dialog, QFileDialog::AcceptOpen, owner); };
  dialog.View_Save = [&dialog, owner] { return Ask(dialog, QFileDialog::AcceptSave, owner); };
}

}  // namespace wrenbit
