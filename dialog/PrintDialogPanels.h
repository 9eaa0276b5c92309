// The panels as option tabs of Qt's own print dialog.
#pragma once

#include <QObject>
#include <QPrintDialog>
#include <QPushButton>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "dialog/PanelPages.h"
#include "dialog/PresetRow.h"
#include "dialog/Printer.h"
#include "dialog/Question.h"
#include "host/JobOptions.h"
#include "host/PpdSession.h"

namespace kwopde::dialog {

/// The property of a dialog that says that it has its panels, also to another copy of this code in
/// the same process.
inline constexpr const char *kHasPanels = "kwopdeHasPanels";

/// Opens the part of `dialog` that has the tabs.
void expandOptions(QPrintDialog &dialog);

/// While it lives, `dialog` shows the panels of the printer that is chosen in it, once the server
/// has told of it, and none for a printer that is not ours.
class PrintDialogPanels final : public QObject {
  Q_OBJECT

public:
  /// `module` makes the panels. The dialog owns this object.
  PrintDialogPanels(PlugInModule &module, QPrintDialog &dialog);

  /// Waits for the server to tell of the chosen printer. Returns false when a person cancelled
  /// that.
  bool waitForPrinter();

  /// Returns why it has not told, and asks it anew; empty when it has, or the printer is not ours.
  /// A job would not carry what is saved for the printer.
  QString takeFailure();

  /// Settles what the panels show, and lets the session know what Qt's tabs hold. To be called when
  /// the dialog is accepted. Returns false when something was refused, and was not when this was
  /// called last; the page that it is on is then in front.
  bool settle();

  /// Asks the server whether the chosen printer has another PPD than the one that the panels show,
  /// as `Printer::tellOfNewPpd` does and with what it returns. If so, the panels show that one
  /// soon, with what is set as far as it has that.
  std::optional<QString> followPpd(QWidget *window);

  /// Returns what was asked for and refused, a sentence each.
  QStringList refusals() const;

  /// Returns what is set, here or in Qt's tabs, and does not go together, as a sentence; empty when
  /// all does.
  QString conflicts() const;

  /// Returns all that a job of this dialog carries, as settled last.
  host::JobOptions jobOptions() const;

  /// Returns the host's part of the trace for the chosen printer; null when that has no panels.
  host::HostLog *log() const { return pages_ ? pages_->log() : nullptr; }

  /// Hands what the panels have settled to the dialog's QPrinter, as CUPS options, for an
  /// application that paints on it. What Qt has in hand itself (paper, sides) stays Qt's.
  void handOver();

  /// Keeps the text of the button that prints when a language is loaded, which Qt's dialog makes
  /// "OK", and shows Qt's Properties without markup.
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  /// A queue of the server, as it was left.
  struct Left {
    host::JobOptions saved;  // what every job to it carries
    std::vector<std::string> presets;
    std::shared_ptr<host::PpdSession> session;  // null when it has no PPD
  };

  void showPanelsOf(const QString &printer, const Prepare &prepare = {});
  void keep(std::future<Printer> answer, const Prepare &prepare);
  void showPages();
  void switchTo(const QString &printer);
  void closePages();
  QDialog *properties() const;
  template <class Visit>
  void forEachOption(Visit visit) const;
  void fillProperties();
  void readProperties();
  void learnFromQt();
  std::optional<std::vector<host::OptionChoice>> settings();
  void carryPanels(host::JobOptions &job) const;
  bool hasPanels() const;

  PlugInModule &module_;
  QPrintDialog &dialog_;
  std::map<QString, Left> printers_;  // by name, with the instance
  Left *printer_ = nullptr;  // the chosen one; null when it is no queue, or not told of yet
  QString chosen_;           // its name, with the instance
  QString failure_;          // why nothing is known of it
  std::unique_ptr<Question> question_;
  std::unique_ptr<PanelPages> pages_;
  std::unique_ptr<PresetRow> presets_;
  QPushButton *help_ = nullptr;  // the dialog's
  QString openTab_;              // the page that was in front, by name
};

}  // namespace kwopde::dialog
