#include "qt/ChoiceMenu.h"

#include <QStyle>
#include <QStyleOptionComboBox>

namespace kwopde::qt {

QSize ChoiceMenu::sizeHint() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QFontMetrics metrics = fontMetrics();
  const QSize letters(metrics.horizontalAdvance('X') * minimumContentsLength(), metrics.height());
  return style()->sizeFromContents(QStyle::CT_ComboBox, &option, letters, this);
}

}  // namespace kwopde::qt
