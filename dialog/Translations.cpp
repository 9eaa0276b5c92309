#include "dialog/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kwopde::dialog {

namespace {

void install(const QString &name, const QString &folder) {
  auto *application = QCoreApplication::instance();
  if (application->findChild<QTranslator *>(name)) return;
  auto *translator = new QTranslator(application);
  translator->setObjectName(name);
  if (translator->load(QLocale(), name, "_", folder))
    QCoreApplication::installTranslator(translator);
}

}  // namespace

void installTranslations() {
  install("kwopde-host", ":/kwopde-host");
}

void installQtTranslations() {
  install("qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath));
}

}  // namespace kwopde::dialog
