// The printer's own options in Qt's Properties.
#pragma once

#include <QString>
#include <optional>

class QComboBox;
class QDialog;

namespace kwopde::dialog {

/// Options go by the title that the PPD gives them, and choices by their place in the PPD.
class AdvancedOptions {
public:
  /// Looks into `properties`, which is Qt's and borrowed; null has no options.
  explicit AdvancedOptions(const QDialog *properties) : properties_(properties) {}

  /// Returns which choice is shown for an option; none when it is not there.
  std::optional<int> choice(const QString &title) const;

  /// Shows a choice, which Qt then takes for picked. Changes nothing when it is not there.
  void choose(const QString &title, int choice);

private:
  QComboBox *find(const QString &title) const;

  const QDialog *properties_;
};

}  // namespace kwopde::dialog
