// Drop-down lists as assistive technology sees them: called by their name, with the chosen entry as their
// text, and with entries that can be picked whether the list is down or not. Qt's own way calls such a list
// by its chosen entry, and lets nobody pick one.
#pragma once

#include <QAccessibleWidget>
#include <QComboBox>
#include <QListView>

#include "shell/qt/accessible/made_children.h"
#include "shell/qt/accessible/shown_text.h"

namespace wrenbit {

// The drop-down list to which a view of entries belongs; null when it belongs to none.
QComboBox* Combo_Of(const QListView& entries);

class Combo_Accessible : public QAccessibleWidget, public Shown_Text {
 public:
  explicit Combo_Accessible(QComboBox& shown);

  void* interface_cast(QAccessible::InterfaceType type) override;
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QString text(QAccessible::Text what) const override;
  using Shown_Text::text;
  QAccessible::State state() const override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;

 protected:
  QString Whole_Text() const override { return combo.currentText(); }

 private:
  QComboBox& combo;
};

// The list that drops down.
class Entries_Accessible : public QAccessibleWidget {
 public:
  Entries_Accessible(QListView& entries, QComboBox& owner);

  int childCount() const override { return combo.count(); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QAccessibleInterface* parent() const override;
  QString text(QAccessible::Text what) const override;

 private:
  QListView& view;
  QComboBox& combo;
  mutable Made_Children entries;
};

}  // namespace wrenbit
