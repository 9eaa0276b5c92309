// A tab's page: its content, and below it a line for what the host has to say.
#pragma once

#include <QWidget>

class QLabel;
class QScrollArea;

namespace kwopde::dialog {

class Page : public QWidget {
  Q_OBJECT

public:
  Page();

  QSize sizeHint() const override;

  /// Shows `text` below the content; empty takes the line away. Screen readers hear it.
  void setNotice(const QString &text);

  /// Shows `text` as the last line of the page, as long as the page lives.
  void setRemark(const QString &text);

protected:
  /// Shows `content`, which now belongs to the page, in place of what was there. It scrolls where a
  /// large font does not leave it room.
  void setContent(QWidget *content);

private:
  QScrollArea *area_;
  QLabel *remark_;
  QLabel *notice_;
};

}  // namespace kwopde::dialog
