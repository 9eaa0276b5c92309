#include "dialog/PageTabs.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>

#include "dialog/Page.h"

namespace kwopde::dialog {

void addTabKeys(QTabWidget &tabs) {
  constexpr struct {
    int key;
    int step;
  } kKeys[] = {{Qt::CTRL | Qt::Key_Tab, 1},
               {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1},
               {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1}};
  for (const auto &[key, step] : kKeys) {
    auto *shortcut = new QShortcut(QKeySequence(key), tabs.window());
    QObject::connect(shortcut, &QShortcut::activated, &tabs, [&tabs, by = step] {
      if (tabs.isVisible())
        tabs.setCurrentIndex((tabs.currentIndex() + by + tabs.count()) % tabs.count());
    });
  }
}

QPushButton *addHelp(QDialogButtonBox &buttons, QTabWidget &tabs) {
  QPushButton *help = buttons.addButton(QDialogButtonBox::Help);
  help->setObjectName("help");
  const auto enable = [help, &tabs] {
    help->setEnabled(qobject_cast<Page *>(tabs.currentWidget()));
  };
  const auto show = [&tabs] {
    auto *page = qobject_cast<Page *>(tabs.currentWidget());
    if (page && page->isVisible()) page->showHelp();
  };
  QObject::connect(&tabs, &QTabWidget::currentChanged, help, enable);
  QObject::connect(help, &QPushButton::clicked, &tabs, show);
  // Not the button's own: it loses that with every text that it gets, as in another language.
  auto *key = new QShortcut(QKeySequence::HelpContents, tabs.window());
  QObject::connect(key, &QShortcut::activated, &tabs, show);
  enable();
  return help;
}

}  // namespace kwopde::dialog
