// A pop-up menu whose width does not depend on its choices.
#pragma once

#include <QComboBox>

namespace kwopde::qt {

/// Has room for the property `minimumContentsLength` of letters, and more where a layout has more.
/// Qt's own policy for that makes the list of every menu at once; here it is made when it is
/// opened. The trace knows it as a QComboBox.
class ChoiceMenu final : public QComboBox {
public:
  using QComboBox::QComboBox;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace kwopde::qt
