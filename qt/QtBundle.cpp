#include "qt/QtBundle.h"

#include <QCoreApplication>
#include <QLocale>

namespace kwopde::qt {

// For the translation tools, which collect texts from sources.
[[maybe_unused]] static const char *const kKeys[] = {
    QT_TRANSLATE_NOOP("Bundle", "MediaPanelName"),
    QT_TRANSLATE_NOOP("Bundle", "ColorPanelName"),
    QT_TRANSLATE_NOOP("Bundle", "SharpenPanelName"),
};

QtBundle::QtBundle(const QString &folder) {
  if (user_.load(QLocale(), "kwopde", "_", folder)) QCoreApplication::installTranslator(&user_);
  (void)english_.load("kwopde_en", folder);
}

std::optional<std::string> QtBundle::localizedStringForKey(const std::string &key,
                                                           const std::string *value,
                                                           const std::string *table) const {
  for (const QTranslator *translator : {&user_, &english_}) {
    const QString text = translator->translate(table ? table->c_str() : "Bundle", key.c_str());
    if (!text.isEmpty()) return text.toStdString();
  }
  return value ? *value : key;
}

}  // namespace kwopde::qt
