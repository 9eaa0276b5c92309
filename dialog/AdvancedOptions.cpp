#include "dialog/AdvancedOptions.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>

namespace kwopde::dialog {

std::optional<int> AdvancedOptions::choice(const QString &title) const {
  const QComboBox *choices = find(title);
  bool isNumber = false;
  const int shown = choices ? choices->currentData().toInt(&isNumber) : 0;
  return isNumber ? std::optional(shown) : std::nullopt;
}

void AdvancedOptions::choose(const QString &title, int choice) {
  QComboBox *choices = find(title);
  const int index = choices ? choices->findData(choice) : -1;
  if (index >= 0) choices->setCurrentIndex(index);
}

QComboBox *AdvancedOptions::find(const QString &title) const {
  if (!properties_) return nullptr;
  for (const auto *form : properties_->findChildren<QFormLayout *>())
    for (int row = 0; row < form->rowCount(); ++row) {
      auto *caption = form->itemAt(row, QFormLayout::LabelRole);
      auto *field = form->itemAt(row, QFormLayout::FieldRole);
      const auto *label = caption ? qobject_cast<QLabel *>(caption->widget()) : nullptr;
      if (!label || !field || !field->widget()) continue;
      if (label->text() == title || label->text() == title + ':')
        return field->widget()->findChild<QComboBox *>();
    }
  return nullptr;
}

}  // namespace kwopde::dialog
