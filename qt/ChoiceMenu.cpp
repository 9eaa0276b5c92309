#include "qt/ChoiceMenu.h"

#include <QStyle>
#include <QStyleOptionComboBox>
#include <QtMath>
#include <algorithm>

namespace kwopde::qt {

QSize ChoiceMenu::sizeHint() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  // As Qt reckons with an icon, so that these are as high as any menu that has one.
  constexpr int kGap = 2;
  const QFontMetrics metrics = fontMetrics();
  const QSize letters(metrics.horizontalAdvance('X') * minimumContentsLength(),
                      qCeil(QFontMetricsF(font()).height()));
  const QSize content(letters.width() + iconSize().width() + 2 * kGap,
                      std::max(letters.height(), iconSize().height()) + kGap);
  return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

}  // namespace kwopde::qt
