// An option of a panel on its page, and what the dialog adds to the panel's widgets for it.
#pragma once

#include <QObject>
#include <QString>
#include <optional>
#include <string_view>

#include "host/PpdSession.h"
#include "platform/Panel.h"
#include "platform/PanelInspector.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

namespace kwopde::dialog {

/// Gives a number's field arrows, its slider the range of the numbers that the printer takes, and
/// both a tool tip that tells it; a menu that the printer lacks says so, and none offers a custom
/// value without its number. The caption is bold while what is shown is not the printer's default.
class OptionRow final : public QObject {
  Q_OBJECT

public:
  /// `panel`, whose view exists, and `session` are borrowed. The view's own widgets may be gone
  /// before the row is.
  OptionRow(const Panel &panel, const PanelOption &option, const host::PpdSession &session,
            QObject *parent);

  const std::string &key() const { return option_.key; }

  /// Returns the option's name as the page has it; empty for a menu.
  QString number() const;

  /// Returns whether the printer has the option.
  bool isAvailable() const;

  /// Returns whether what is shown, if only typed so far, is other than the printer's default.
  bool differs() const;

  /// Lets the row show what is marked now, and the caption whether that differs.
  void refresh();

signals:
  /// A person has typed, stepped or slid: what is shown is not marked yet.
  void edited();

  /// A person has left the field with what was typed there.
  void finished();

private:
  template <class Widget>
  Widget *widgetAt(std::string_view outlet) const;
  void prepareMenu();
  void prepareNumber();
  void prepareCaption();
  void withholdCustom();
  std::optional<double> defaultNumber() const;

  const Panel &panel_;
  const PanelOption option_;
  const host::PpdSession &session_;
  QComboBox *menu_;
  QLineEdit *field_;
  QSlider *slider_;
  QLabel *caption_ = nullptr;
};

}  // namespace kwopde::dialog
