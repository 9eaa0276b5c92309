#include "dialog/PrinterOptions.h"

#include <QComboBox>
#include <QDialog>
#include <QPageSize>
#include <QPrintEngine>
#include <QRadioButton>
#include <QWindow>
#include <algorithm>

namespace kwopde::dialog {

namespace {

/// The property of Qt's print engine that holds a list of CUPS options, key and value in turn.
constexpr auto kCupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

/// What stands for nothing chosen, for options that Qt's dialog leaves out in that case.
struct Neutral {
  const char *key;
  const char *choice;
};
constexpr Neutral kOfTheDialog[] = {
    {"copies", "1"}, {"page-set", "all"}, {"outputorder", "normal"}};
constexpr Neutral kOfProperties[] = {{"job-hold-until", "no-hold"},
                                     {"job-priority", "50"},
                                     {"job-sheets", "none"},
                                     {"landscape", "false"},
                                     {"number-up", "1"}};

/// How Qt, IPP, PPDs and Qt's dialog call the sides of the paper.
constexpr struct {
  QPrinter::DuplexMode mode;
  const char *sides;
  const char *duplex;
  const char *button;
} kSides[] = {{QPrinter::DuplexNone, "one-sided", "None", "noDuplex"},
              {QPrinter::DuplexShortSide, "two-sided-short-edge", "DuplexTumble", "duplexShort"},
              {QPrinter::DuplexLongSide, "two-sided-long-edge", "DuplexNoTumble", "duplexLong"},
              {QPrinter::DuplexAuto, "two-sided-long-edge", "DuplexNoTumble", nullptr}};

const auto &sidesOf(const QPrinter &printer) {
  return *std::find_if(std::begin(kSides), std::end(kSides),
                       [&](const auto &row) { return row.mode == printer.duplex(); });
}

}  // namespace

bool hasShownProperties(const QPrintDialog &dialog) {
  const auto dialogs = dialog.findChildren<QDialog *>();
  return std::any_of(dialogs.begin(), dialogs.end(), [](const QDialog *child) {
    return child->inherits("QPrintPropertiesDialog") && child->windowHandle();  // it was shown once
  });
}

void setPrinterOptions(const QPrintDialog &dialog, host::JobOptions &job) {
  const QPrinter &printer = *dialog.printer();
  const auto setAll = [&](const auto &neutral, bool isSeen) {
    for (const auto &[key, choice] : neutral)
      if (isSeen) job.setNeutral(key, choice);
  };
  const bool seen = hasShownProperties(dialog);
  setAll(kOfTheDialog, true);
  setAll(kOfProperties, seen);
  const bool paperIsSaved = job.value("media") || job.value("PageSize");
  if (seen || !paperIsSaved) job.set("media", printer.pageLayout().pageSize().key().toStdString());
  job.set("sides", sidesOf(printer).sides);
  if (printer.copyCount() > 1) {
    job.set("copies", std::to_string(printer.copyCount()));
    job.set("Collate", printer.collateCopies() ? "True" : "False");
  }
  if (seen && printer.pageLayout().orientation() == QPageLayout::Landscape)
    job.set("landscape", "true");
  if (printer.pageOrder() == QPrinter::LastPageFirst) job.set("outputorder", "reverse");
  for (const auto &[key, choice] : cupsOptions(printer))
    if (!choice.empty() && (seen || key == "page-set")) job.set(key, choice);
}

void setShownOptions(const QPrintDialog &dialog, host::JobOptions &job) {
  for (const auto &[mode, sides, duplex, button] : kSides) {
    const auto *shown = button ? dialog.findChild<QRadioButton *>(button) : nullptr;
    if (shown && shown->isChecked()) job.set("sides", sides);
  }
  if (const auto paper = shownPaper(dialog)) job.set("media", *paper);
}

std::optional<std::string> shownPaper(const QPrintDialog &dialog) {
  const auto *papers = dialog.findChild<QComboBox *>("pageSizeCombo");
  if (!papers || !hasShownProperties(dialog)) return {};  // accepting makes them for nobody to see
  if (!papers->currentData().canConvert<QPageSize>()) return {};
  return papers->currentData().value<QPageSize>().key().toStdString();
}

std::string duplexChoice(const QPrinter &printer) {
  return sidesOf(printer).duplex;
}

std::set<std::string> optionsOfQt() {
  return {"PageSize", "PageRegion", "Duplex", "Collate"};
}

std::vector<host::OptionChoice> cupsOptions(const QPrinter &printer) {
  const QStringList list = printer.printEngine()->property(kCupsOptions).toStringList();
  std::vector<host::OptionChoice> options;
  for (qsizetype i = 0; i + 1 < list.size(); i += 2)
    options.push_back({list[i].toStdString(), list[i + 1].toStdString()});
  return options;
}

void setCupsOptions(QPrinter &printer, const std::vector<host::OptionChoice> &options) {
  QStringList list;
  for (const auto &[key, choice] : options)
    list << QString::fromStdString(key) << QString::fromStdString(choice);
  printer.printEngine()->setProperty(kCupsOptions, list);
}

}  // namespace kwopde::dialog
