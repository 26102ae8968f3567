#pragma once

#include <QtGui/QImage>

// The picture that is shown without a file: a grid with pixel numbers, colour bars,
// grey ramps and circles, so that every adjustment is visible.
QImage testCard(const QSize &size = QSize(1920, 1080));

// The second picture, which the layout page places on the first.
QImage layerPicture(const QSize &size = QSize(480, 270));
