// A tab's page: its content, and around it what the host has to say.
#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace kwopde::dialog {

class Page : public QWidget {
  Q_OBJECT

public:
  Page();

  QSize sizeHint() const override;

  /// Asks for room for every panel without a scroll bar, but for no more than half the screen.
  QSize minimumSizeHint() const override;

  /// Says no: the lines that come and go do not change what the page asks for.
  bool hasHeightForWidth() const override { return false; }

  /// Lets the Tab key visit the page's controls after `before`, a widget of the same window.
  void placeAfter(QWidget *before);

  /// Puts `header`, which now belongs to the page, above the content.
  void setHeader(QWidget *header);

  /// Shows the help of the page, when there is any.
  void showHelp();

  /// Shows `text` below the content, with a link that undoes what it tells if `canUndo`; empty
  /// takes the box away. Screen readers hear it.
  void setNotice(const QString &text, bool canUndo = false);

  /// Shows `text` below the content, as long as the page lives.
  void setRemark(const QString &text);

  /// Shows as the last line how many settings of the page differ from the printer's defaults, with
  /// a button that resets them; nothing for 0. The line's room stays.
  void setDifferences(int count);

  /// Leaves the wheel to the page where it is over a control that does not have the focus: it
  /// scrolls, and changes no setting.
  bool eventFilter(QObject *watched, QEvent *event) override;

signals:
  /// What the notice tells of is to be undone.
  void undoRequested();

  /// The page's settings are to be the printer's defaults.
  void resetRequested();

protected:
  /// Returns what the page's help says; rich text.
  virtual QString help() { return {}; }

  /// Shows `content`, which now belongs to the page, in place of what was there. It scrolls where a
  /// large font does not leave it room.
  void setContent(QWidget *content);

private:
  void addLine(QFrame *line, QLabel *text, QPushButton *button);
  void orderFocus();
  void keepWheelFrom(QWidget *part);

  QWidget *header_ = nullptr;
  QScrollArea *area_;
  QLabel *remark_;
  QVBoxLayout *layout_;
  QFrame *box_;
  QLabel *notice_;
  QPushButton *undo_;
  QFrame *last_;
  QLabel *differences_;
};

}  // namespace kwopde::dialog
