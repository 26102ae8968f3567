#pragma once

#include <QtCore/QString>

// Writes pictures of the three dialogs, and of the same ones of Qt's own widgets beside them, in
// the application's style: dialogs-fusion-light.png and dialogs-fusion-dark.png. Returns false when
// a file cannot be written. The application has no theme yet.
bool writePictures(const QString &folder);
