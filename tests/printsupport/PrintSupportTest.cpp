// Applications that were not changed, with the panels in their dialogs; on a private server.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>

#include "tests/support/JobAttributes.h"

namespace kwopde::test {
namespace {

/// Runs the bare application. Returns the titles of its tabs.
QStringList run(const QString &application, const QString &way, const QString &support) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_PLUGIN_PATH", KWOPDE_PLUGINS);
  environment.insert("QT_PRINTER_MODULE", support);
  process.setProcessEnvironment(environment);
  process.start(application, {way});
  EXPECT_TRUE(process.waitForFinished(30000)) << way.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput()).split('\n');
}

TEST(PrintSupport, AttachesThePanelsToEveryDialogOfAnApplication) {
  for (const QString &application : QString(KWOPDE_BARE_APPLICATIONS).split(':'))
    for (const char *way : {"open", "exec", "show", "subclass"}) {
      SCOPED_TRACE((application + ' ' + way).toStdString());
      const QStringList tabs = run(application, way, "kwopde");
      EXPECT_TRUE(tabs.contains("Media") && tabs.contains("Color")) << tabs.join(' ').toStdString();
      EXPECT_EQ(attributesOf(lastJob())["pageScale"], "85");
    }
}

TEST(PrintSupport, LeavesAnExemptedApplicationAlone) {
  for (const QString &application : QString(KWOPDE_BARE_APPLICATIONS).split(':')) {
    const int before = lastJob();
    EXPECT_FALSE(run(application, "open", "cupsprintersupport").contains("Media"));
    EXPECT_EQ(lastJob(), before + 1);
    EXPECT_EQ(attributesOf(lastJob())["pageScale"], "");
  }
}

}  // namespace
}  // namespace kwopde::test
