#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>

#include <array>

// The editors' values for the pixels of the picture. The defaults leave them unchanged.
struct Tone
{
    int brightness = 0; // -100 to 100
    int exposure = 1000; // in microseconds, 1 to 100,000
    int contrast = 0; // -100 to 100
    double gamma = 1.0;
    double saturation = 1.0; // 0 is grey
    int blackLevel = 16; // 16 to 255, of a video signal: 16 is black
};

struct Colours
{
    std::array<int, 3> gain = {100, 100, 100}; // percent, red, green, blue
    std::array<int, 3> lift = {0, 0, 0}; // -100 to 100, added to each channel
    int liftMaster = 100; // percent of the lift
    QColor wash = QColor(255, 140, 40, 0); // its alpha is the opacity
};

bool operator==(const Tone &a, const Tone &b);
bool operator==(const Colours &a, const Colours &b);

// Changes a picture of the format RGB32 or ARGB32 and keeps its alpha. Everything but the
// saturation uses one lookup table per channel, so that the visible part is ready
// within the time of one frame.
void adjust(QImage &picture, const Tone &tone, const Colours &colours);
