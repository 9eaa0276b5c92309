#include "qt/QtInterfaceLoader.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QUiLoader>
#include <QtDebug>

#include "qt/NumberSlider.h"
#include "qt/QtControls.h"

namespace kwopde::qt {

namespace {

/// Makes the widgets of a file, with sliders of our own.
class Builder final : public QUiLoader {
public:
  QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override {
    if (className != QLatin1String("QSlider"))
      return QUiLoader::createWidget(className, parent, name);
    auto *slider = new NumberSlider(parent);
    slider->setObjectName(name);
    return slider;
  }
};

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

QtInterfaceLoader::QtInterfaceLoader(QString folder) : folder_(std::move(folder)) {}

QtInterfaceLoader::~QtInterfaceLoader() {
  if (loader_ && QCoreApplication::instance()) NumberSlider::setAccessible(false);
}

bool QtInterfaceLoader::loadNibNamed(std::string_view name, InterfaceOwner &owner) {
  if (!loader_) {
    loader_ = std::make_unique<Builder>();
    loader_->clearPluginPaths();  // the files use Qt's own widgets only
    NumberSlider::setAccessible(true);
  }
  QFile file(folder_ + '/' + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())) +
             ".ui");
  QWidget *const top = file.open(QIODevice::ReadOnly) ? loader_->load(&file) : nullptr;
  if (!top) {
    qWarning("Interface file %s: %s", qPrintable(file.fileName()),
             qPrintable(file.isOpen() ? loader_->errorString() : file.errorString()));
    return false;
  }
  const auto view = std::make_shared<QtPanelView>(top);
  if (top->objectName() != QLatin1String("pdeView")) {
    qWarning("Interface file %s: the top-level widget is not named pdeView",
             qPrintable(file.fileName()));
    return false;
  }
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
