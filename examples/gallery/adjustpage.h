#pragma once

#include "page.h"

#include <slidereditframe.h>
#include <slidereditframedouble.h>

// Brightness, contrast and the rest. The brightness has three rows, one for
// each reporting mode: the row that is dragged sets the other two.
class AdjustPage : public Page
{
    Q_OBJECT

public:
    AdjustPage(PictureView *view, LogPane *log);

private:
    using IntRow = Vantor::Widgets::SliderEditFrame;
    using DoubleRow = Vantor::Widgets::SliderEditFrameDouble;

    IntRow *addBrightnessRow(const QString &mode);
    IntRow *addRow(const QString &label, int min, int max, int PictureAdjustment::*field);
    DoubleRow *addRow(const QString &label, double min, double max,
                      double PictureAdjustment::*field);

    QVector<IntRow *> m_brightnessRows;
};
