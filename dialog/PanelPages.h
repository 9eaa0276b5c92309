// The extension's panels and their summary as pages for the tabs of a dialog.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>
#include <set>

#include "dialog/Notices.h"
#include "dialog/Page.h"
#include "host/Extension.h"
#include "host/HostLog.h"
#include "host/PpdSession.h"
#include "platform/PlugIn.h"

namespace kwopde::dialog {

class OptionRow;
class SummaryPage;

/// One panel. The panel hears that it is shown and left when its page is; its view is made when the
/// page is first seen.
class PanelPage final : public Page {
  Q_OBJECT

public:
  /// `panel`, which works on the PPD of `session`, is borrowed, and so is `session`.
  PanelPage(Panel &panel, const host::PpdSession &session);

  /// Settles what is shown, for a job that is about to be sent.
  void print();

  /// Lets captions and the last line of a page that is seen tell what differs from the printer's
  /// defaults.
  void showDifferences();

  /// Returns the options that the panel handles, by keyword.
  std::set<std::string> keys() const;

  /// Returns the widget in which a person sets the option `key`; null when the panel does not
  /// handle it, or does not tell.
  QWidget *controlOf(const std::string &key) const;

protected:
  /// Returns the panel's own help, when the panel lets the dialog show it.
  QString help() override;
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

private:
  QWidget *view();
  void showContent(QWidget *panelView);

  /// Returns what a person has to know about the controls; empty when they all do what they say.
  QString remark() const;
  void settle();

  Panel &panel_;
  const host::PpdSession &session_;
  QList<OptionRow *> rows_;  // once the page was seen
};

class PanelPages final : public QObject {
  Q_OBJECT

public:
  /// Makes the extension's panels for the PPD of `session` and lets them read what is marked.
  PanelPages(PlugInModule &module, std::shared_ptr<host::PpdSession> session,
             QObject *parent = nullptr);

  /// Destroys the pages that still exist, and drops the extension.
  ~PanelPages() override;

  /// Returns the pages in order, the summary last; none when the PPD has no option of any panel. A
  /// page's tab is titled with its windowTitle; its objectName is the same in every language. They
  /// belong to the dialog that takes them.
  QList<Page *> pages() const;

  /// Settles what every panel shows; the session's marks are then those of the job. Returns false
  /// when something that was asked for is refused, and was not when this was called last: its page
  /// and its control are then in front, and the page tells what the job would carry.
  bool print();

  /// Returns what was asked for and refused, a sentence each.
  QStringList refusals() const;

  /// Returns what is marked and does not go together, as a sentence; empty when all does.
  QString conflicts() const { return notices_.conflicts(); }

  /// Puts the panels' options back to the defaults of the queue and of its PPD.
  void reset(const std::vector<host::OptionChoice> &queueDefaults);

  /// Lets the panels show what is marked now, after somebody else has marked it.
  void showMarks();

  /// Returns the host's part of the trace; null when there are no pages.
  host::HostLog *log() { return log_ ? &*log_ : nullptr; }

  /// Returns whether what is set differs from what was set at first.
  bool isChanged() const { return session_->isChanged(); }

signals:
  /// What is set may differ from what was set before.
  void changed();

  /// A page that a person has to see now.
  void asksFor(QWidget *page);

private:
  void undo();
  void reset(const PanelPage &page);

  std::shared_ptr<host::PpdSession> session_;
  Notices notices_;
  host::Extension extension_;
  const PanelList *panels_ = nullptr;  // null when there are none
  std::optional<host::HostLog> log_;
  QList<QPointer<PanelPage>> panelPages_;
  QPointer<SummaryPage> summaryPage_;
  std::vector<Notices::Refusal> told_;  // by the last call of print
};

}  // namespace kwopde::dialog
