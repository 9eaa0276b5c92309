#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>

#include "attach/kwopde/attach.h"
#include "bench/Work.h"
#include "dialog/ModuleLoader.h"
#include "dialog/PrintDialogPanels.h"
#include "host/TraceTo.h"

namespace kwopde::bench {

namespace {

/// What is opened, and looked at.
struct Opening {
  const char *name;
  bool hasPanels;
  bool isExpanded;  // and every tab is shown
};

constexpr Opening kOpenings[] = {{"dialog", false, false},
                                 {"dialog+panels", true, false},
                                 {"dialog.expanded", false, true},
                                 {"dialog.expanded+panels", true, true}};

/// Opens Qt's print dialog of the server's default queue, up to its last picture.
void open(const Opening &opening) {
  QPrinter printer;
  QPrintDialog dialog(&printer);
  if (opening.hasPanels) attachPanels(&dialog);
  dialog.show();
  QApplication::processEvents();
  if (!opening.isExpanded) return;
  dialog::expandOptions(dialog);
  auto *tabs = dialog.findChild<QTabWidget *>();
  for (int i = 0; i < tabs->count(); ++i) {
    tabs->setCurrentIndex(i);
    QApplication::processEvents();
  }
}

}  // namespace

std::vector<Work> dialogs() {
  std::vector<Work> all;
  for (const Opening &opening : kOpenings)
    all.push_back({opening.name, 3, [opening]() -> std::function<void()> {
                     // The system log would be measured too.
                     const auto untraced = std::make_shared<host::Untraced>(dialog::loadModule());
                     return [opening, untraced] { open(opening); };
                   }});
  return all;
}

}  // namespace kwopde::bench
