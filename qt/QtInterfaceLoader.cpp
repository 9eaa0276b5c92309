#include "qt/QtInterfaceLoader.h"

#include <QCoreApplication>
#include <QLabel>
#include <QtDebug>
#include <utility>

#include "qt/NumberSlider.h"
#include "qt/QtControls.h"
#include "ui_ColorPDE.h"
#include "ui_Media7032PDE.h"
#include "ui_MediaPDE.h"
#include "ui_SharpenPDE.h"

namespace kwopde::qt {

namespace {

/// Makes the widgets of an interface file; `Ui` is what uic makes of it.
template <class Ui>
QWidget *make() {
  auto *const top = new QWidget;
  Ui().setupUi(top);
  return top;
}

void connectControl(QtPanelView &view, QWidget *widget, InterfaceOwner &owner) {
  const QString name = widget->objectName();
  const auto control = view.control(widget);
  if (control && !name.isEmpty()) owner.setOutlet(name.toStdString(), control);
  const auto action = widget->property("action").toString().toStdString();
  if (action.empty()) return;
  // The control lives as long as its widget: the view has both.
  const auto perform = [&owner, action, sender = control.get()] {
    if (!owner.performAction(action, sender)) qWarning("No action %s", action.c_str());
  };
  if (!connectAction(widget, perform))
    qWarning("%s cannot send its action %s", qPrintable(name), action.c_str());
}

}  // namespace

QtInterfaceLoader::Interfaces QtInterfaceLoader::ownInterfaces() {
  return {{"MediaPDE", make<Ui::MediaPDE>},
          {"Media7032PDE", make<Ui::Media7032PDE>},
          {"ColorPDE", make<Ui::ColorPDE>},
          {"SharpenPDE", make<Ui::SharpenPDE>}};
}

QtInterfaceLoader::QtInterfaceLoader(Interfaces interfaces) : interfaces_(std::move(interfaces)) {}

QtInterfaceLoader::~QtInterfaceLoader() {
  if (isAccessible_ && QCoreApplication::instance()) NumberSlider::setAccessible(false);
}

bool QtInterfaceLoader::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  if (!std::exchange(isAccessible_, true)) NumberSlider::setAccessible(true);
  const auto interface = interfaces_.find(name);
  QWidget *const top = interface == interfaces_.end() ? nullptr : interface->second();
  if (!top) {
    qWarning("There is no interface %.*s", static_cast<int>(name.size()), name.data());
    return false;
  }
  const auto view = std::make_shared<QtPanelView>(top);
  for (QLabel *label : top->findChildren<QLabel *>()) {
    label->setTextFormat(Qt::PlainText);
    // Where a caption starts does not depend on its language.
    if (top->isRightToLeft())
      label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
  }
  for (QWidget *child : top->findChildren<QWidget *>()) connectControl(*view, child, owner);
  owner.setOutlet("pdeView", view);
  return true;
}

}  // namespace kwopde::qt
