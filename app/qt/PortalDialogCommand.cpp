// kwopde portal-dialog: the print dialog of an application that asks the desktop's portal. The
// portal's service writes what the application asks to standard input, and reads the answer from
// standard output, both as JSON.
#include <cups/cups.h>

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string>

#include "app/Output.h"
#include "app/TraceOption.h"
#include "app/qt/QtCommands.h"
#include "dialog/ModuleLoader.h"
#include "dialog/PrinterOptions.h"
#include "dialog/QueueDialog.h"
#include "host/Error.h"
#include "host/TraceTo.h"

namespace kwopde::app {

namespace {

/// What the application has done itself by the time that its document comes: it makes only the
/// pages that were chosen, and turns them as the page setup says.
constexpr std::array kDoneByTheApplication{"page-ranges", "orientation-requested", "landscape"};

QJsonObject readQuestion() {
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) throw host::Error("standard input is closed");
  const auto question = QJsonDocument::fromJson(input.readAll());
  if (!question.isObject()) throw host::Error("standard input: not what the portal writes");
  return question.object();
}

/// Returns the layout of an application's page setup, which has millimetres; none for an empty one.
std::optional<QPageLayout> layoutOf(const QJsonObject &setup) {
  const QSizeF size(setup["Width"].toDouble(), setup["Height"].toDouble());
  if (size.isEmpty()) return {};
  const auto margin = [&](const char *side) { return setup[QString("Margin") + side].toDouble(); };
  const bool isLandscape = setup["Orientation"].toString().endsWith("landscape");
  return QPageLayout(QPageSize(size, QPageSize::Millimeter, setup["DisplayName"].toString()),
                     isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                     {margin("Left"), margin("Top"), margin("Right"), margin("Bottom")},
                     QPageLayout::Millimeter);
}

/// Returns the name that PWG 5101.1 has for a paper, "iso_a4_210x297mm".
QString paperName(const QPageSize &paper) {
  const QSizeF size = paper.size(QPageSize::Millimeter);
  const pwg_media_t *media =
      pwgMediaForSize(qRound(size.width() * 100), qRound(size.height() * 100));
  return media ? QString(media->pwg) : QString();
}

/// Sets what the application has kept from an earlier time.
void setKept(QPrinter &printer, const QJsonObject &settings) {
  const QString name = settings["printer"].toString();
  if (QPrinterInfo::availablePrinterNames().contains(name)) printer.setPrinterName(name);
  printer.setCopyCount(std::max(settings["n-copies"].toString().toInt(), 1));
  if (settings["collate"].toString() == "false") printer.setCollateCopies(false);
  const QString duplex = settings["duplex"].toString();
  if (duplex == "horizontal") printer.setDuplex(QPrinter::DuplexLongSide);
  if (duplex == "vertical") printer.setDuplex(QPrinter::DuplexShortSide);
}

/// Ties the dialog to the window of the application, on X11.
void setParent(QWidget &dialog, const QString &parent) {
  constexpr const char *kX11 = "x11:";
  if (QGuiApplication::platformName() != "xcb" || !parent.startsWith(kX11)) return;
  QString number = parent.mid(static_cast<int>(std::char_traits<char>::length(kX11)));
  if (number.startsWith("0x")) number.remove(0, 2);
  bool isNumber = false;
  const WId id = number.toULongLong(&isNumber, 16);
  if (!isNumber) return;
  dialog.winId();
  if (QWindow *window = QWindow::fromWinId(id)) dialog.windowHandle()->setTransientParent(window);
}

/// The settings for the application: neutral, since the job has the copies, their order, the sides
/// and the pages a sheet. Pages count from 0.
QJsonObject settingsFor(const QPrinter &printer, const QPageLayout &layout) {
  QStringList ranges;
  for (const auto &range : printer.pageRanges().toRangeList())
    ranges.append(QString("%1-%2").arg(range.from - 1).arg(range.to - 1));
  const bool isLandscape = layout.orientation() == QPageLayout::Landscape;
  QJsonObject settings{{"printer", printer.printerName()},
                       {"n-copies", "1"},
                       {"collate", "false"},
                       {"number-up", "1"},
                       {"reverse", "false"},
                       {"page-set", "all"},
                       {"scale", "100"},
                       {"duplex", "simplex"},
                       {"orientation", isLandscape ? "landscape" : "portrait"},
                       {"output-file-format", "pdf"},
                       {"print-pages", ranges.isEmpty() ? "all" : "ranges"}};
  if (!ranges.isEmpty()) settings["page-ranges"] = ranges.join(',');
  return settings;
}

/// The page setup for the application, whole: some print nothing without one.
QJsonObject pageSetupFor(const QPageLayout &layout) {
  const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
  const QPageSize paper = layout.pageSize();
  const QSizeF size = paper.size(QPageSize::Millimeter);
  const QString name = paperName(paper);
  return {
      {"PPDName", paper.key()},
      {"Name", name.isEmpty() ? paper.key() : name},
      {"DisplayName", paper.name()},
      {"Width", size.width()},
      {"Height", size.height()},
      {"MarginTop", margins.top()},
      {"MarginBottom", margins.bottom()},
      {"MarginLeft", margins.left()},
      {"MarginRight", margins.right()},
      {"Orientation", layout.orientation() == QPageLayout::Landscape ? "landscape" : "portrait"}};
}

/// `isMade`: the document has been made before the dialog opens.
QJsonObject jobOf(const dialog::QueueDialog &dialog, const QPrinter &printer,
                  const QPageLayout &layout, bool isMade) {
  if (printer.outputFormat() == QPrinter::PdfFormat) return {{"file", printer.outputFileName()}};
  const host::PrintJob job = dialog.job();
  QJsonObject options;
  for (const auto &[key, choice] : job.options)
    options[QString::fromStdString(key)] = QString::fromStdString(choice);
  if (!isMade) {
    for (const char *key : kDoneByTheApplication) options.remove(key);
    // Qt counts odd and even in what the application makes.
    for (const auto &[key, choice] : dialog::cupsOptions(printer))
      if (key == "page-set") options["page-set"] = QString::fromStdString(choice);
  }
  // The paper is what the application was told, unless a person has chosen one of the printer's.
  if (const QString paper = paperName(layout.pageSize());
      !paper.isEmpty() && !dialog::shownPaper(dialog)) {
    options.remove("PageSize");
    options["media"] = paper;
  }
  return {{"queue", QString::fromStdString(job.queue)}, {"options", options}};
}

}  // namespace

int runPortalDialogCommand(const PortalDialogOptions &options) {
  const QJsonObject question = readQuestion();
  const auto sink = openTrace(options.trace);
  PlugInModule &module = dialog::loadModule();
  const host::TraceTo trace(module, sink.get());
  QPrinter printer;
  setKept(printer, question["settings"].toObject());

  dialog::QueueDialog dialog(module, printer, {});
  dialog.setOption(QPrintDialog::PrintToFile);
  if (const QString title = question["title"].toString(); !title.isEmpty())
    dialog.setWindowTitle(title);
  setParent(dialog, question["parent"].toString());
  if (dialog.exec() != QDialog::Accepted) return kNotDone;

  // Qt's dialog begins with the printer's usual paper, whatever the application has.
  const auto wanted = layoutOf(question["pageSetup"].toObject());
  const QPageLayout layout = wanted && !dialog::shownPaper(dialog) ? *wanted : printer.pageLayout();
  const QJsonObject answer{
      {"settings", settingsFor(printer, layout)},
      {"pageSetup", pageSetupFor(layout)},
      {"job", jobOf(dialog, printer, layout, question["documentIsMade"].toBool())}};
  writeResult(QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString());
  return kDone;
}

}  // namespace kwopde::app
