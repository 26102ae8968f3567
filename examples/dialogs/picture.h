#pragma once

#include <QtGui/QImage>

// What comes of a picture.

// In percent, except for gamma.
struct Colors
{
    int brightness;
    int contrast;
    double gamma;
    int red;
    int green;
    int blue;
};
QImage withColors(const QImage &picture, const Colors &colors);
// The whole picture, dark outside of the crop.
QImage withCrop(const QImage &picture, const QRect &crop);

// A landscape, for a viewer that has no other picture.
QImage samplePicture();
