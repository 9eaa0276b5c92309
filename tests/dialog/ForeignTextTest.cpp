// Markup and control characters in every text that a server, a PPD, a file or a setting can bring:
// all dialogs show them as text. Each kind of text has a mark, so that it is known to have been
// seen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <cstdlib>
#include <regex>
#include <set>

#include "attach/kwopde/attach.h"
#include "dialog/ModuleLoader.h"
#include "dialog/PpdDialog.h"
#include "dialog/PrintDialogPanels.h"
#include "dialog/QueueDialog.h"
#include "dialog/SettingsDialog.h"
#include "queue/PrintQueue.h"
#include "tests/support/TemporaryFolder.h"

namespace kwopde::test {
namespace {

/// Puts a text with a mark behind every text of kwo-7032.ppd, where `<` of a hexadecimal digit is
/// written in hexadecimal.
std::string foreignPpd() {
  std::string ppd = contents(KWOPDE_SOURCE_FOLDER "/resources/ppd/kwo-7032.ppd");
  const std::pair<const char *, const char *> rows[] = {
      {R"((\*PageSize [^/]+/[^:]+):)", "$1 <h1>PAPER</h1>:"},
      {R"((\*OpenUI \*(?!Page)\w+/[^:]+):)", "$1 <3C>b>OPTION</3C>/b><1B>[1m<0A>x:"},
      {R"((\*print\w+ \w+/[^:]+):)", "$1 <img src='/x'>CHOICE<1B>[1m<0A>x:"},
      {R"((\*OpenGroup: \w+/[^\n]+))", "$1 <h1>GROUP</h1>"},
      {R"(NickName: "[^"]+")", "NickName: \"<h1>NICKNAME</h1>\""},
      {R"(\*(UIConstraints: \*printQuality Draft) \*dustRemoval Thorough)",
       "*$1 *dustRemoval Thorough\n*$1 *CustomprintFinish True\n"
       "*UIConstraints: *CustomprintFinish True *printQuality Draft"},
      {R"(\*CloseUI: \*printFinish)",
       "*CloseUI: *printFinish\n*CustomprintFinish True: \"\"\n"
       "*ParamCustomprintFinish Text/<h1>PARAMETER</h1>: 1 string 0 60"},
      {R"(\*cupsLanguages[^\n]+)", ""},
  };
  for (const auto &[pattern, replacement] : rows)
    ppd = std::regex_replace(ppd, std::regex(pattern), replacement);
  return ppd;
}

/// All texts that can be seen, and those of them that Qt shows as rich text.
class Seen {
public:
  /// Looks at every window that is open.
  void look() {
    for (const QWidget *window : QApplication::topLevelWidgets()) {
      if (!window->isVisible()) continue;
      look(*window);
      for (const QWidget *part : window->findChildren<QWidget *>())
        if (part->isVisible()) look(*part);
    }
  }

  std::set<std::string> marks;
  std::set<std::string> rich;

private:
  void look(const QWidget &widget) {
    plain(widget.windowTitle());
    markup(widget.toolTip(), "tool tip");
    markup(widget.statusTip(), "status tip");
    if (!widget.whatsThis().startsWith("<p>")) markup(widget.whatsThis(), "help");
    for (const QAction *action : widget.actions()) {
      plain(action->text());
      const auto *menu = qobject_cast<const QMenu *>(&widget);
      if (!menu || menu->toolTipsVisible()) markup(action->toolTip(), "tool tip");
    }
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
      note(label->text());
      if (label->textFormat() == Qt::RichText ||
          (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text())))
        rich.insert("label: " + label->text().toStdString());
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
      plain(button->text());
    } else if (const auto *group = qobject_cast<const QGroupBox *>(&widget)) {
      plain(group->title());
    } else if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
      plain(edit->text());
    } else if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
      for (int i = 0; i < box->count(); ++i) {
        plain(box->itemText(i));
        markup(box->itemData(i, Qt::ToolTipRole).toString(), "tool tip of an item");
      }
    } else if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        plain(tabs->tabText(i));
        markup(tabs->tabToolTip(i), "tool tip of a tab");
      }
    }
  }

  void note(const QString &text) {
    static const std::regex mark("[A-Z]{4,}");
    const std::string all = text.toStdString();
    for (std::sregex_iterator found(all.begin(), all.end(), mark), end; found != end; ++found)
      marks.insert(found->str());
  }
  /// Widgets of this kind know no markup.
  void plain(const QString &text) { note(text); }
  void markup(const QString &text, const char *what) {
    note(text);
    if (Qt::mightBeRichText(text)) rich.insert(std::string(what) + ": " + text.toStdString());
  }
};

class ForeignText : public testing::Test {
protected:
  void SetUp() override {
    const auto run = [](const std::string &command) {
      EXPECT_EQ(std::system((command + " 2>/dev/null").c_str()), 0) << command;
    };
    run("lpadmin -p foreign -E -v file:/dev/null -D '<h1>INFO</h1>' -L '<img src=x>LOCATION' -P " +
        ppd_);
    run("lpoptions -p foreign -o '<b>key=<b>x'");
    run("lpoptions -p 'foreign/<b>INSTANCE<b>' "
        "-o 'printFinish=Custom.<b>VALUE</b>'");
    printer_.setPrinterName("foreign");
    clock_.setInterval(20);
    // Looks at each question once, and answers it.
    QObject::connect(&clock_, &QTimer::timeout, [this] {
      auto *question = qobject_cast<QDialog *>(QApplication::activeModalWidget());
      if (!question) return;
      seen_.look();
      ++questions_;
      if (auto *properties = question->findChild<QTabWidget *>())
        for (int i = 0; i < properties->count(); ++i) {
          properties->setCurrentIndex(i);
          seen_.look();
        }
      auto *box = qobject_cast<QMessageBox *>(question);
      if (box && box->standardButtons() != QMessageBox::NoButton)
        box->button(box->standardButtons().testFlag(QMessageBox::Close) ? QMessageBox::Close
                                                                        : QMessageBox::Cancel)
            ->click();
      else
        question->reject();
    });
    clock_.start();
  }

  /// Looks at each tab of `dialog`, with the list of its presets open.
  void lookAtTabs(QDialog &dialog) {
    dialog.show();
    if (auto *print = qobject_cast<QPrintDialog *>(&dialog)) dialog::expandOptions(*print);
    auto *tabs = dialog.findChild<QTabWidget *>();
    for (int i = 0; i < tabs->count(); ++i) {
      tabs->setCurrentIndex(i);
      QApplication::processEvents();
      seen_.look();
    }
    if (auto *presets = dialog.findChild<QToolButton *>("presetMenu")) {
      presets->menu()->popup({});
      seen_.look();
      for (const char *action : {"saveAs", "delete"})
        if (auto *item = presets->menu()->findChild<QAction *>(action)) item->trigger();
      presets->menu()->hide();
    }
  }

  TemporaryFolder folder_;
  std::string ppd_ = folder_.write("foreign.ppd", foreignPpd());
  std::string document_ = folder_.write("<h1>FILE<h1>\x1B[1m\nx.txt", "text");
  QPrinter printer_;
  QTimer clock_;
  Seen seen_;
  int questions_ = 0;
};

TEST_F(ForeignText, IsNowhereShownAsMarkup) {
  {
    printer_.setPrinterName("foreign/<b>INSTANCE<b>");
    dialog::QueueDialog dialog(dialog::loadModule(), printer_, {document_});
    lookAtTabs(dialog);
    auto *quality = dialog.findChild<QComboBox *>("printQualityPopUp");
    ASSERT_TRUE(quality);
    dialog.findChild<QTabWidget *>()->setCurrentIndex(2);
    QTest::keyClick(quality, Qt::Key_Home);  // does not go with the saved value
    seen_.look();
    dialog.findChild<QPushButton *>("properties")->click();
    ASSERT_EQ(std::system("cupsreject -r '<h1>REASON</h1>' foreign"), 0);
    dialog.accept();
    ASSERT_EQ(std::system("cupsaccept foreign"), 0);
    EXPECT_FALSE(dialog.jobId());
  }
  EXPECT_EQ(questions_, 4) << "save as, delete, properties, the refusal";
  {
    ASSERT_EQ(std::system("lpoptions -p foreign -o printQuality=Draft -o dustRemoval=Thorough"), 0);
    printer_.setPrinterName("foreign");
    dialog::QueueDialog dialog(dialog::loadModule(), printer_, {document_});
    lookAtTabs(dialog);
    dialog.accept();  // in spite of what does not go together
    dialog::PpdDialog ofFile(dialog::loadModule(), host::PrintQueue("foreign").openSession(),
                             "<h1>DOCUMENT</h1>");
    lookAtTabs(ofFile);
    dialog::SettingsDialog settings(dialog::loadModule(), {"foreign"}, "foreign");
    lookAtTabs(settings);
    QPrinter painted;
    painted.setPrinterName("foreign");
    QPrintDialog attached(&painted);
    ASSERT_TRUE(attachPanels(&attached));
    lookAtTabs(attached);
    attached.accept();  // warns of the same, in a window that stays
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_THAT(seen_.rich, testing::IsEmpty());
  for (const char *mark : {"PAPER", "OPTION", "CHOICE", "GROUP", "NICKNAME", "VALUE", "LOCATION",
                           "INSTANCE", "FILE", "DOCUMENT"})
    EXPECT_THAT(seen_.marks, testing::Contains(mark));
}

}  // namespace
}  // namespace kwopde::test
