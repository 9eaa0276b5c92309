// A dialog as somebody meets it who has no mouse, reads another language, or needs large letters.
#pragma once

#include <QLocale>
#include <QTranslator>
#include <QWidget>
#include <string>
#include <vector>

namespace kwopde::test {

/// Presses Tab in `window`, which is shown, until the focus is where it was. Returns the names of
/// the widgets that had it, in order; a widget without a name goes by its class.
std::vector<std::string> tabOrder(QWidget &window);

/// Returns the names of the widgets in `window` that can be seen and want the Tab key, sorted.
std::vector<std::string> tabStops(const QWidget &window);

/// Returns the texts that can be seen in the window of `page` and share a letter behind the Alt key
/// with one on `page`.
std::vector<std::string> sharedMnemonics(const QWidget &page);

/// Presses the help key in `window`. Returns what is told, and closes it; empty for nothing.
std::string helpOf(QWidget &window);

/// Returns how much more height and width than its room the part of `page` needs that scrolls:
/// "9+0"; empty when it has its room.
std::string cutOff(const QWidget &page);

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
