// Shows a dialog, to a person or for pictures.
#pragma once

#include <QDialog>
#include <string>

namespace kwopde::app {

/// Shows `dialog` and waits for the person; with a `snapshotFolder` takes pictures of its tabs
/// there instead, and accepts it. Returns whether it was accepted.
bool runDialog(QDialog &dialog, const std::string &snapshotFolder);

/// Shows `dialog`, takes pictures of its tabs in `folder`, and names them on standard error.
void showAndTakePictures(QDialog &dialog, const std::string &folder);

}  // namespace kwopde::app
