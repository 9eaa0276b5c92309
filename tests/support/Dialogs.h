// What is in a dialog, and a person at it.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <stdexcept>

#include "dialog/PrintDialogPanels.h"

namespace kwopde::test {

/// Returns the widget of that name in `window`; throws the name when there is none.
template <class Widget>
Widget &widget(const QWidget &window, const char *name) {
  auto *found = window.findChild<Widget *>(name);
  if (!found) throw std::runtime_error(name);
  return *found;
}

/// Returns the titles of the tabs of `dialog` from number `first` on.
inline QStringList tabTitles(const QDialog &dialog, int first = 0) {
  const auto *tabs = dialog.findChild<QTabWidget *>();
  QStringList titles;
  for (int i = first; i < tabs->count(); ++i) titles.append(tabs->tabText(i));
  return titles;
}

/// Shows `dialog` with what it folds away, at a tab.
inline void showAt(QPrintDialog &dialog, int tab) {
  dialog.show();
  dialog::expandOptions(dialog);
  dialog.findChild<QTabWidget *>()->setCurrentIndex(tab);
  QApplication::processEvents();
}

/// Types `text` in the place of what is in `field`.
inline void retype(QLineEdit &field, const char *text) {
  field.setFocus();
  field.selectAll();
  QTest::keyClicks(&field, text);
}

}  // namespace kwopde::test
