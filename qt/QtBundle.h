// The module's texts, from Qt translations.
#pragma once

#include <QTranslator>

#include "platform/Bundle.h"

namespace kwopde::qt {

/// Finds texts by key in the user's language, else in English. While it lives, the texts of the
/// interface files are shown in the user's language too.
class QtBundle final : public Bundle {
public:
  /// `folder` holds the translations, "kwopde_LANGUAGE.qm". The user's language is Qt's default
  /// locale at the time of this call.
  explicit QtBundle(const QString &folder);

  std::string_view className() const override { return "QtBundle"; }

  /// Looks the key up in the translation context that `table` names; the usual one is "Bundle".
  std::optional<std::string> localizedStringForKey(const std::string &key, const std::string *value,
                                                   const std::string *table) const override;

private:
  QTranslator user_;
  QTranslator english_;
};

}  // namespace kwopde::qt
