// Makes the views of the interface files.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <string_view>

#include "platform/Bundle.h"

namespace kwopde::qt {

/// Interface files made with Qt Designer, compiled in. An outlet is the widget whose objectName is
/// the outlet's name; the top-level widget is the outlet "pdeView". Dynamic properties say the
/// rest: "action" names the action that a control sends, "tag" is a number to find a label by;
/// those of sliders and fields for numbers are told of at `NumberSlider`.
class QtInterfaceLoader final : public InterfaceLoader {
public:
  /// What makes the widgets of each interface, by its name; the caller owns what is made, and null
  /// stands for a view that cannot be made.
  using Interfaces = std::map<std::string_view, std::function<QWidget *()>>;

  /// With the interfaces of our own panels unless told otherwise.
  explicit QtInterfaceLoader(Interfaces interfaces = ownInterfaces());
  ~QtInterfaceLoader() override;

  bool loadNibNamed(std::string_view name, InterfaceOwner &owner) override;

  static Interfaces ownInterfaces();

private:
  const Interfaces interfaces_;
  bool isAccessible_ = false;
};

}  // namespace kwopde::qt
