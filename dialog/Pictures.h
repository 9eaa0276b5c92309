// Pictures of a dialog, a tab each.
#pragma once

#include <QDialog>
#include <QStringList>

namespace kwopde::dialog {

/// Opens each tab of `dialog`, which is shown, in turn and saves a picture of the dialog in
/// `folder`, which is made when it is missing. The files' names, which are those of the pages;
/// throws `Error` when one cannot be written.
QStringList takePictures(QDialog &dialog, const QString &folder);

}  // namespace kwopde::dialog
