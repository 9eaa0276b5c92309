// A small dialog with a tab for every panel, and the summary.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>

#include "dialog/PanelPages.h"
#include "host/PpdSession.h"

class QFormLayout;
class QLabel;
class QPushButton;
class QTabWidget;

namespace kwopde::dialog {

class PanelDialog : public QDialog {
  Q_OBJECT

public:
  /// Does not close while something that was asked for is refused, unless it is told once more.
  void accept() override;

protected:
  /// `acceptText` is what the button that accepts says.
  PanelDialog(PlugInModule &module, const QString &acceptText, QWidget *parent);

  /// Shows the panels of `session`, and with null none, in place of those that were shown. The same
  /// tab is open again where there is one.
  void showPanels(const std::shared_ptr<host::PpdSession> &session);

  /// Shows `text` in place of panels, which there are none to accept.
  void showInstead(const QString &text);

  /// Returns the rows above the tabs, which tell what is set.
  QFormLayout &facts() { return *facts_; }

  /// Returns the panels that are shown; null when nothing is.
  PanelPages *pages() { return pages_.get(); }

private:
  PlugInModule &module_;
  QFormLayout *facts_;
  QLabel *none_;  // what is shown without panels
  QTabWidget *tabs_;
  QPushButton *accept_;
  QPushButton *help_;
  QString openTab_;  // the page that was in front, by name
  std::unique_ptr<PanelPages> pages_;
};

}  // namespace kwopde::dialog
