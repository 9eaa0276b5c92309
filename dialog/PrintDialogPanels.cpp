#include "dialog/PrintDialogPanels.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPrinter>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include "dialog/AdvancedOptions.h"
#include "dialog/PageTabs.h"
#include "dialog/PlainText.h"
#include "dialog/PrinterOptions.h"
#include "host/Error.h"
#include "queue/PrintQueue.h"

namespace kwopde::dialog {

void expandOptions(QPrintDialog &dialog) {
  const auto *tabs = dialog.findChild<QTabWidget *>();
  if (!tabs || tabs->isVisibleTo(&dialog)) return;
  // The button "Options >>" has no name, but it is the only one of its role.
  for (auto *box : dialog.findChildren<QDialogButtonBox *>())
    for (QAbstractButton *button : box->buttons())
      if (box->buttonRole(button) == QDialogButtonBox::ResetRole) button->click();
}

PrintDialogPanels::PrintDialogPanels(PlugInModule &module, QPrintDialog &dialog)
    : QObject(&dialog), module_(module), dialog_(dialog) {
  // Its labels show what the server says of a printer, and its Properties what the PPD says.
  showPlainly(dialog);
  dialog.installEventFilter(this);
  // The dialog tells nobody which printer is chosen, but its combo box does.
  if (auto *printers = dialog.findChild<QComboBox *>("printers"))
    connect(printers, &QComboBox::currentTextChanged, this,
            [this](const QString &printer) { showPanelsOf(printer); });
  if (auto *properties = dialog.findChild<QPushButton *>("properties")) {
    // Qt makes its Properties, and waits for them, while the button says that it was clicked.
    connect(properties, &QPushButton::released, this,
            [this] { QTimer::singleShot(0, this, &PrintDialogPanels::fillProperties); });
    connect(properties, &QPushButton::clicked, this, &PrintDialogPanels::readProperties);
  }
  auto *tabs = dialog.findChild<QTabWidget *>();
  auto *buttons = dialog.findChild<QDialogButtonBox *>();
  if (tabs) addTabKeys(*tabs);
  if (tabs && buttons) help_ = addHelp(*buttons, *tabs);
  if (buttons) buttons->installEventFilter(this);
  // What an earlier dialog has set on the same QPrinter is still set.
  showPanelsOf(dialog.printer()->printerName(),
               [set = cupsOptions(*dialog.printer())](host::PpdSession &session) {
                 session.markSaved(set);
               });
  dialog.setProperty(kHasPanels, true);
}

bool PrintDialogPanels::eventFilter(QObject *watched, QEvent *event) {
  auto *buttons = qobject_cast<QDialogButtonBox *>(watched);
  if (auto *print = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
      print && event->type() == QEvent::LanguageChange)
    QTimer::singleShot(0, print, [print] { print->setText(QPrintDialog::tr("&Print")); });
  if (event->type() == QEvent::ChildPolished) {
    auto *child = static_cast<QChildEvent *>(event)->child();
    if (child->inherits("QPrintPropertiesDialog")) showPlainly(*static_cast<QWidget *>(child));
  }
  return QObject::eventFilter(watched, event);
}

void PrintDialogPanels::showPanelsOf(const QString &printer, const Prepare &prepare) {
  closePages();
  chosen_ = printer;
  if (const auto known = printers_.find(printer);
      known != printers_.end() && known->second.session) {
    printer_ = &known->second;
    return showPages();
  }
  if (printer.isEmpty() || dialog_.printer()->outputFormat() != QPrinter::NativeFormat) return;
  question_ = std::make_unique<Question>(std::bind_front(&Printer::find, printer.toStdString()),
                                         [this, prepare](std::future<Printer> answer) {
                                           keep(std::move(answer), prepare);
                                           showPages();
                                         });
}

void PrintDialogPanels::keep(std::future<Printer> answer, const Prepare &prepare) {
  try {
    const Printer told = answer.get();
    const host::JobOptions saved(told.queue.options(), told.queue.fetchedDefaults());
    printer_ = &(printers_[chosen_] = {saved, told.presets, nullptr});
    // The presets of a queue are those of its instances too.
    for (auto &[name, left] : printers_)
      if (name.section('/', 0, 0) == chosen_.section('/', 0, 0)) left.presets = told.presets;
    printer_->session = told.queue.openSession();
    printer_->session->setFixed(optionsOfQt());
    if (prepare) prepare(*printer_->session);
  } catch (const host::JobError &error) {
    failure_ = QString::fromStdString(error.what());
  } catch (const host::Error &error) {
    // Not a queue, or one without a PPD: a printer that is not ours. A preset may have been
    // deleted.
    if (!printer_ && chosen_.contains('/')) failure_ = QString::fromStdString(error.what());
  }
}

void PrintDialogPanels::showPages() {
  if (printer_ && printer_->session)
    pages_ = std::make_unique<PanelPages>(module_, printer_->session);
  if (!hasPanels()) return;
  if (help_) help_->show();
  presets_ = std::make_unique<PresetRow>(
      chosen_, printer_->presets, *pages_, [this] { return settings(); }, &dialog_);
  connect(presets_.get(), &PresetRow::chosen, this, &PrintDialogPanels::switchTo,
          Qt::QueuedConnection);
  QList<QWidget *> tabs;
  for (Page *page : pages_->pages()) tabs.append(page);
  dialog_.setOptionTabs(tabs);
  auto *tabWidget = dialog_.findChild<QTabWidget *>();
  for (Page *page : pages_->pages()) page->placeAfter(tabWidget->tabBar());
  connect(pages_.get(), &PanelPages::asksFor, tabWidget, &QTabWidget::setCurrentWidget);
  for (QWidget *tab : tabs)
    if (tab->objectName() == openTab_) tabWidget->setCurrentWidget(tab);
}

void PrintDialogPanels::closePages() {
  const auto *tabWidget = dialog_.findChild<QTabWidget *>();
  if (pages_ && tabWidget) openTab_ = tabWidget->currentWidget()->objectName();
  presets_.reset();
  pages_.reset();
  question_.reset();
  printer_ = nullptr;
  failure_.clear();
  if (help_) help_->hide();
}

void PrintDialogPanels::switchTo(const QString &printer) {
  closePages();
  printers_.erase(printer);  // as it is saved, whatever was set before
  auto *printers = dialog_.findChild<QComboBox *>("printers");
  if (!printers) return;
  if (printers->currentText() == printer) return showPanelsOf(printer);
  if (printers->findText(printer) < 0)
    printers->insertItem(printers->findText(printer.section('/', 0, 0)) + 1, printer);
  printers->setCurrentText(printer);
}

std::optional<std::vector<host::OptionChoice>> PrintDialogPanels::settings() {
  if (!settle()) return {};
  host::JobOptions job = jobOptions();
  setShownOptions(dialog_, job);
  return job.kept();
}

bool PrintDialogPanels::waitForPrinter() {
  return !question_ || question_->wait(&dialog_);
}

QString PrintDialogPanels::takeFailure() {
  const QString failure = failure_;
  if (!failure.isEmpty()) showPanelsOf(chosen_);
  return failure;
}

bool PrintDialogPanels::settle() {
  if (!hasPanels()) return true;
  const bool asShown = pages_->print();
  learnFromQt();
  return asShown;
}

std::optional<QString> PrintDialogPanels::followPpd(QWidget *window) {
  if (!hasPanels()) return QString();
  const auto replaced = Printer::tellOfNewPpd(window, chosen_, *printer_->session);
  if (!replaced || replaced->isEmpty()) return replaced;
  // Later: this may be called from an event of the pages.
  const auto show = [this, printer = chosen_, set = Printer::copyOf(*printer_->session)] {
    if (printer != chosen_) return;
    closePages();
    printers_.erase(printer);
    showPanelsOf(printer, set);
  };
  QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
  return replaced;
}

QStringList PrintDialogPanels::refusals() const {
  return hasPanels() ? pages_->refusals() : QStringList();
}

QString PrintDialogPanels::conflicts() const {
  return hasPanels() ? pages_->conflicts() : QString();
}

QDialog *PrintDialogPanels::properties() const {
  for (auto *child : dialog_.findChildren<QDialog *>())
    if (child->inherits("QPrintPropertiesDialog")) return child;
  return nullptr;
}

/// Calls `visit` with the title of every option that has a panel, and which of its choices is
/// marked.
template <class Visit>
void PrintDialogPanels::forEachOption(Visit visit) const {
  const host::PpdSession &session = *printer_->session;
  const auto keys = session.panelKeys();
  session.ppd().forEachOption([&](const ppd_option_t &option) {
    if (!keys.contains(option.keyword)) return;
    const auto marked = session.markedChoice(option.keyword);
    for (int i = 0; marked && i < option.num_choices; ++i)
      if (*marked == option.choices[i].choice)
        visit(option, QString::fromStdString(session.ppd().textOf(option.keyword)), i);
  });
}

void PrintDialogPanels::fillProperties() {
  if (!hasPanels()) return;
  AdvancedOptions options(properties());
  forEachOption([&](const ppd_option_t &, const QString &title, int choice) {
    options.choose(title, choice);
  });
}

void PrintDialogPanels::readProperties() {
  const QDialog *dialog = properties();
  if (!hasPanels() || !dialog || dialog->result() != QDialog::Accepted) return;
  host::PpdSession &session = *printer_->session;
  if (const auto paper = shownPaper(dialog_)) session.mark("PageSize", *paper);
  const AdvancedOptions options(dialog);
  std::vector<host::OptionChoice> picked;
  forEachOption([&](const ppd_option_t &option, const QString &title, int choice) {
    const int shown = options.choice(title).value_or(choice);
    if (shown != choice && shown < option.num_choices)
      picked.push_back({option.keyword, option.choices[shown].choice});
  });
  for (const auto &[key, choice] : picked) session.mark(key, choice);
  if (!picked.empty()) pages_->showMarks();
}

void PrintDialogPanels::learnFromQt() {
  const QPrinter &printer = *dialog_.printer();
  host::PpdSession &session = *printer_->session;
  session.mark("PageSize", printer.pageLayout().pageSize().key().toStdString());
  session.mark("Duplex", duplexChoice(printer));
  const auto ofPanels = session.panelKeys();  // of which Qt lists what it was opened with
  for (const auto &[key, choice] : cupsOptions(printer))
    if (!ofPanels.contains(key)) session.mark(key, choice);
}

host::JobOptions PrintDialogPanels::jobOptions() const {
  host::JobOptions job = printer_ ? printer_->saved : host::JobOptions();
  setPrinterOptions(dialog_, job);
  if (hasPanels()) carryPanels(job);
  return job;
}

void PrintDialogPanels::handOver() {
  if (!hasPanels()) return;
  QPrinter &printer = *dialog_.printer();
  host::JobOptions known = printer_->saved;
  const auto list = cupsOptions(printer);
  for (const auto &[key, choice] : list) known.set(key, choice);
  carryPanels(known);
  host::JobOptions handed(list);
  for (const auto &[key, choice, isDefault] : printer_->session->settledChoices())
    if (const auto value = known.value(key); value && !optionsOfQt().contains(key))
      handed.set(key, *value);
  setCupsOptions(printer, handed.all());
  log()->carries(handed.all());
}

void PrintDialogPanels::carryPanels(host::JobOptions &job) const {
  job.carry(*printer_->session, optionsOfQt());
}

bool PrintDialogPanels::hasPanels() const {
  return pages_ && !pages_->pages().isEmpty();
}

}  // namespace kwopde::dialog
