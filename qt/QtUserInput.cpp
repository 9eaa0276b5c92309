#include "qt/QtUserInput.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSlider>

#include "qt/QtControls.h"

namespace kwopde::qt {

namespace {

template <class Widget>
Widget *widgetOf(const View &view) {
  return qobject_cast<Widget *>(static_cast<QWidget *>(view.nativeView()));
}

}  // namespace

bool QtUserInput::pick(PopUpButton &popUp, int index) {
  auto *comboBox = widgetOf<QComboBox>(popUp);
  if (!comboBox) return false;
  // As the combo box itself does it for a click in its list.
  comboBox->setCurrentIndex(index);
  emit comboBox->activated(index);
  return true;
}

bool QtUserInput::slide(Slider &slider, double value) {
  auto *widget = widgetOf<QSlider>(slider);
  if (!widget) return false;
  slider.setDoubleValue(value);
  widget->triggerAction(QSlider::SliderMove);
  return true;
}

bool QtUserInput::type(TextField &field, const std::string &text) {
  auto *lineEdit = widgetOf<QLineEdit>(field);
  if (!lineEdit || lineEdit->isReadOnly()) return false;
  lineEdit->selectAll();
  lineEdit->insert(peoplesText(QString::fromStdString(text)));
  return true;
}

}  // namespace kwopde::qt
