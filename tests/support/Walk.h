// A dialog as somebody meets it who has no mouse, reads another language, or needs large letters.
#pragma once

#include <QDialog>
#include <QLocale>
#include <QTranslator>
#include <QWidget>
#include <string>
#include <vector>

namespace kwopde::test {

/// Presses Tab in `window`, which is shown, until the focus is where it was. Returns the names of
/// the widgets that had it, in order; a widget without a name goes by its class.
std::vector<std::string> tabOrder(QWidget &window);

/// Shows `dialog` and works its tabs from number `first` on without a mouse: each is reached, all
/// on it has the focus once and a letter of its own behind the Alt key, help is there, and nothing
/// has to be scrolled.
void expectUsable(QDialog &dialog, int first);

/// The languages that the dialogs have translations for.
inline constexpr QLocale::Language kLanguages[] = {QLocale::German,   QLocale::French,
                                                   QLocale::Spanish,  QLocale::Italian,
                                                   QLocale::Japanese, QLocale::Arabic};

/// The dialogs, the panels and Qt speak `language` while it lives.
class Speaking {
public:
  explicit Speaking(QLocale::Language language);
  Speaking(const Speaking &) = delete;
  Speaking &operator=(const Speaking &) = delete;
  ~Speaking();

private:
  const QLocale before_;
  QTranslator panels_;
};

}  // namespace kwopde::test
