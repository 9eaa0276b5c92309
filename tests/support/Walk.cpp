#include "tests/support/Walk.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QScrollArea>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWhatsThis>

#include "dialog/Translations.h"

namespace kwopde::test {

namespace {

std::string nameOf(const QWidget &widget) {
  return widget.objectName().isEmpty() ? widget.metaObject()->className()
                                       : widget.objectName().toStdString();
}

bool takesTab(const QWidget &widget) {
  return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) &&
         !widget.focusProxy();
}

/// The texts of `widget` that can have a mnemonic which works now.
QStringList textsOf(const QWidget &widget) {
  if (!widget.isVisible() || !widget.isEnabled()) return {};
  if (const auto *label = qobject_cast<const QLabel *>(&widget); label && label->buddy())
    return {label->text()};
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) return {button->text()};
  QStringList texts;
  if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
    for (int i = 0; i < tabs->count(); ++i) texts.append(tabs->tabText(i));
  return texts;
}

/// The names of the widgets in `window` that can be seen and want the Tab key.
std::vector<std::string> tabStops(const QWidget &window) {
  std::vector<std::string> stops;
  for (const QWidget *widget : window.findChildren<QWidget *>())
    if (takesTab(*widget)) stops.push_back(nameOf(*widget));
  return stops;
}

/// The texts that can be seen in the window of `page` and share a letter behind the Alt key with
/// one on `page`.
std::vector<std::string> sharedMnemonics(const QWidget &page) {
  QMap<QKeySequence, std::vector<std::string>> texts;
  QSet<QKeySequence> ours;
  for (const QWidget *widget : page.window()->findChildren<QWidget *>())
    for (const QString &text : textsOf(*widget)) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (key.isEmpty()) continue;
      texts[key].push_back(text.toStdString());
      if (page.isAncestorOf(widget)) ours.insert(key);
    }
  std::vector<std::string> shared;
  for (const QKeySequence &key : ours)
    if (texts[key].size() > 1) shared.insert(shared.end(), texts[key].begin(), texts[key].end());
  return shared;
}

/// Presses the help key in `window`. Returns what is told, and closes it; empty for nothing.
std::string helpOf(QWidget &window) {
  QTest::keySequence(window.focusWidget(), QKeySequence::HelpContents);
  for (QWidget *told : QApplication::topLevelWidgets()) {
    if (!told->inherits("QWhatsThat") || !told->isVisible()) continue;
    const std::string text = told->property("text").toString().toStdString();
    QWhatsThis::hideText();
    return text.empty() ? "told" : text;
  }
  return {};
}

/// How much more height and width than its room the part of `page` needs that scrolls: "9+0"; empty
/// when it has its room.
std::string cutOff(const QWidget &page) {
  const auto *area = page.findChild<QScrollArea *>();
  const QSize more =
      (area->widget()->minimumSizeHint() - area->viewport()->size()).expandedTo({0, 0});
  return more.isNull() ? std::string() : fmt::format("{}+{}", more.height(), more.width());
}

/// So that `installTranslations` installs those of another language.
void removeTranslations() {
  for (const char *name : {"qtbase", "kwopde-host"})
    delete QCoreApplication::instance()->findChild<QTranslator *>(name);
}

}  // namespace

std::vector<std::string> tabOrder(QWidget &window) {
  std::vector<std::string> visited;
  const QWidget *const first = window.focusWidget();
  do {
    visited.push_back(nameOf(*window.focusWidget()));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  } while (window.focusWidget() != first && visited.size() < 100);
  return visited;
}

void expectUsable(QDialog &dialog, int first) {
  dialog.show();
  QApplication::setActiveWindow(&dialog);
  QApplication::processEvents();
  auto *tabs = dialog.findChild<QTabWidget *>();
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs->currentIndex(), 1) << "Ctrl+Tab, at once";
  for (int page = first; page < tabs->count(); ++page) {
    tabs->setCurrentIndex(page);
    EXPECT_THAT(tabOrder(dialog), testing::UnorderedElementsAreArray(tabStops(dialog))) << page;
    EXPECT_THAT(sharedMnemonics(*tabs->currentWidget()), testing::IsEmpty()) << page;
    EXPECT_NE(helpOf(dialog), "") << page;
    EXPECT_EQ(cutOff(*tabs->currentWidget()), "") << page;
  }
}

Speaking::Speaking(QLocale::Language language) {
  removeTranslations();
  QLocale::setDefault(QLocale(language));
  dialog::installQtTranslations();
  dialog::installTranslations();
  if (panels_.load(QLocale(), "kwopde", "_", ":/kwopde"))
    QCoreApplication::installTranslator(&panels_);
}

Speaking::~Speaking() {
  removeTranslations();
  QLocale::setDefault(before_);
}

}  // namespace kwopde::test
