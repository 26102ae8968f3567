#pragma once

#include <QtCore/QString>

class MainWindow;

// Writes a picture of each page in each theme, plain, on a small screen, in a large
// font and from right to left, of each editor and of the number pad. Returns false when a
// file cannot be written.
bool takeShots(MainWindow &window, const QString &folder);
