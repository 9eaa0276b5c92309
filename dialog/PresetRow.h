// The presets of a printer queue, on every page of its panels.
#pragma once

#include <QObject>
#include <QStandardItemModel>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialog/PanelPages.h"
#include "host/OptionChoice.h"
#include "queue/Presets.h"

class QMenu;
class QWidget;

namespace kwopde::dialog {

/// A row at the top of every page, in which a person chooses, keeps and deletes presets.
class PresetRow final : public QObject {
  Q_OBJECT

public:
  /// Returns what is to be kept; none when it cannot be, which the person has then been told.
  using Settings = std::function<std::optional<std::vector<host::OptionChoice>>()>;

  /// `destination` is the queue whose settings `pages` shows, or a preset of it ("photo/glossy"),
  /// and `names` are the queue's presets. Questions to the person appear over `window`. The pages
  /// are borrowed.
  PresetRow(const QString &destination, std::vector<std::string> names, PanelPages &pages,
            Settings settings, QWidget *window);

  /// Keeps `options` for the destination. Returns false when that failed, which the person has been
  /// told.
  bool save(const std::vector<host::OptionChoice> &options);

signals:
  /// The settings of `destination` are to be shown as they are saved. Connect it queued: the pages
  /// are in the middle of an event.
  void chosen(const QString &destination);

private:
  QWidget *makeWidget();
  void showChanged();
  void fillMenu();
  void choose(int index);
  void saveAs();
  void saveAs(const std::string &name);
  void reset();
  void remove();
  bool act(const std::function<void(host::Presets &)> &action);
  QString destinationOf(const std::string &name) const;
  QString titleOf(const std::string &name) const;

  std::string queue_;
  std::string current_;  // the name of a preset; empty for none
  PanelPages &pages_;
  Settings settings_;
  QWidget *window_;
  std::vector<std::string> names_;  // beginning with the empty one of the queue itself
  QStandardItemModel titles_;
  QMenu *menu_;
};

}  // namespace kwopde::dialog
