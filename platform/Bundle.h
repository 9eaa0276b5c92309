// The bundle that the module comes in: its texts and its interface files.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Controls.h"
#include "platform/Object.h"

namespace kwopde {

/// Who an interface file is loaded for: it takes the file's controls and gets their actions.
class InterfaceOwner {
public:
  InterfaceOwner() = default;
  InterfaceOwner(const InterfaceOwner &) = delete;
  InterfaceOwner &operator=(const InterfaceOwner &) = delete;
  virtual ~InterfaceOwner() = default;

  /// Connects the control of the file that is named `outlet`. It stays unconnected when the owner
  /// has no such outlet, or one of another kind. "pdeView" is retained, every other control
  /// borrowed.
  virtual void setOutlet(std::string_view outlet, const std::shared_ptr<View> &view) = 0;

  /// Performs `action` ("changePrintQualityOption:"), sent by `sender`, a control that the user
  /// worked; null when nobody in particular sends it. False, and nothing done, when the owner has
  /// no such action.
  virtual bool performAction(std::string_view action, const Object *sender) = 0;
};

/// Loads interface files; an adapter has one.
class InterfaceLoader {
public:
  InterfaceLoader() = default;
  InterfaceLoader(const InterfaceLoader &) = delete;
  InterfaceLoader &operator=(const InterfaceLoader &) = delete;
  virtual ~InterfaceLoader() = default;

  /// Loads the interface file called `name` (no folder, no ending) and hands its controls to
  /// `owner`, which must outlive them. False, with nothing handed over, when the file is missing or
  /// broken.
  virtual bool loadNibNamed(std::string_view name, InterfaceOwner &owner) = 0;
};

class Bundle : public Object, public std::enable_shared_from_this<Bundle> {
public:
  std::string_view className() const override { return "Bundle"; }

  /// Returns the text for `key` in the user's language, UTF-8. `value` stands in for a missing
  /// text, and the key when that is null; `table` names the string table, null the usual one. No
  /// text gives none.
  virtual std::optional<std::string> localizedStringForKey(const std::string &key,
                                                           const std::string *value,
                                                           const std::string *table) const = 0;

  /// Loads an interface file of the module, as `InterfaceLoader` says; false without a loader. It
  /// belongs to the class, not to one bundle: a panel without a bundle has its controls too.
  static bool loadNibNamed(std::string_view name, InterfaceOwner &owner);

  /// Uses `loader` from now on; borrowed. Null takes it away. Returns the one before it.
  static InterfaceLoader *setInterfaceLoader(InterfaceLoader *loader);
};

}  // namespace kwopde
