// Loads interface files made with Qt Designer.
#pragma once

#include <QString>

#include "platform/Bundle.h"

class QUiLoader;

namespace kwopde::qt {

/// An outlet is the widget whose objectName is the outlet's name; the file's top-level widget is
/// the outlet "pdeView". Dynamic properties say the rest: "action" names the action that a control
/// sends, "tag" is a number to find a label by; those of sliders and fields for numbers are told of
/// at `NumberSlider`.
class QtInterfaceLoader final : public InterfaceLoader {
public:
  /// `folder` holds the files, named after the interface with the ending ".ui".
  explicit QtInterfaceLoader(QString folder);
  ~QtInterfaceLoader() override;

  bool loadNibNamed(std::string_view name, InterfaceOwner &owner) override;

private:
  QString folder_;
  std::unique_ptr<QUiLoader> loader_;
};

}  // namespace kwopde::qt
