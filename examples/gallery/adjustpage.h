#pragma once

#include "page.h"

#include <slidereditframe.h>
#include <slidereditframedouble.h>

// Brightness, exposure and the rest. The brightness has three rows, one for
// each reporting mode: the row that is dragged sets the other two.
class AdjustPage : public Page
{
    Q_OBJECT

public:
    AdjustPage(EditHistory *history, LogPane *log);

    void clear(Edits &edits, const QSize &size) const override;

private:
    using IntRow = Vantor::Widgets::SliderEditFrame;
    using DoubleRow = Vantor::Widgets::SliderEditFrameDouble;

    IntRow *addBrightnessRow(const QString &mode);
    IntRow *addIntRow(const QString &label, int min, int max, int Tone::*field);
    DoubleRow *addDoubleRow(const QString &label, double min, double max, double Tone::*field);
    template <typename Row, typename Value>
    void connectRow(Row *row, const QString &label, Value Tone::*field);

    QVector<IntRow *> m_brightnessRows;
};
