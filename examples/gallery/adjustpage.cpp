#include "adjustpage.h"

AdjustPage::AdjustPage(EditHistory *history, LogPane *log) : Page(tr("Adjust"), history, log)
{
    addHeading(tr("Brightness, reported in three ways"),
               tr("The picture follows each move, the end of a drag, or ten times a second."));
    addBrightnessRow(tr("Continuous"));
    addBrightnessRow(tr("On release"))->setReleaseMode(true);
    addBrightnessRow(tr("Every 100 ms"))->setTimeSamplingRate(100);

    addHeading(
        tr("Tone"),
        tr("Exposure has a logarithmic slider. Each field takes an expression such as 12*3."));
    IntRow *exposure = addIntRow(tr("Exposure"), 1, 100000, &Tone::exposure);
    exposure->setSliderScale(IntRow::LogarithmicScale);
    exposure->setSingleStep(100);
    exposure->setPageStep(100); // in slider positions, half a decade
    exposure->setSuffix(tr(" µs"));
    addIntRow(tr("Contrast"), -100, 100, &Tone::contrast)->setSuffix(tr(" %"));
    addDoubleRow(tr("Gamma"), 0.2, 4.0, &Tone::gamma);
    addDoubleRow(tr("Saturation"), 0.0, 3.0, &Tone::saturation)->setPrefix(tr("×"));

    const int reference = Tone().blackLevel;
    addHeading(
        tr("Held on one side"),
        tr("This level may not fall below %1, whatever is dragged or typed.").arg(reference));
    IntRow *black = addIntRow(tr("Black level"), 0, 255, &Tone::blackLevel);
    black->setValueChangeDirection(IntRow::AllowedToBigger, reference);
    finish();
}

void AdjustPage::clear(Edits &edits, const QSize & /*size*/) const
{
    edits.tone = Tone();
}

AdjustPage::IntRow *AdjustPage::addBrightnessRow(const QString &mode)
{
    IntRow *row = addIntRow(mode, -100, 100, &Tone::brightness);
    row->setSuffix(tr(" %"));
    m_brightnessRows.append(row);
    connect(row, &IntRow::valueChanged, this, [this, row](int val) {
        for (IntRow *other : m_brightnessRows) {
            if (other != row) {
                other->setValue(val);
            }
        }
    });
    return row;
}

AdjustPage::IntRow *AdjustPage::addIntRow(const QString &label, int min, int max, int Tone::*field)
{
    auto *row = addEditor<IntRow>();
    row->setRange(min, max);
    row->setPageStep(10);
    connectRow(row, label, field);
    return row;
}

AdjustPage::DoubleRow *AdjustPage::addDoubleRow(const QString &label, double min, double max,
                                                double Tone::*field)
{
    auto *row = addEditor<DoubleRow>();
    row->setSingleStep(0.05);
    row->setDecimals(3);
    row->setRange(min, max);
    row->setPageStep(250); // in slider positions, thousandths of the value
    connectRow(row, label, field);
    return row;
}

template <typename Row, typename Value>
void AdjustPage::connectRow(Row *row, const QString &label, Value Tone::*field)
{
    row->setLabelText(label);
    row->setDefaultValue(Tone().*field);
    row->setAutoRepeat(true);
    // Aligns the two kinds of rows without a theme, too.
    row->setButtonFixedWidth(51);
    row->setSpinBoxFixedWidth(fieldWidth);
    connect(row, &Row::valueChanged, m_log, m_log->receiver(label, QStringLiteral("valueChanged")));
    connect(row, &Row::valueChanged, this, [this, label, field](Value val) {
        edit(label, [=](Edits &edits) { edits.tone.*field = val; });
    });
    connect(m_history, &EditHistory::restored, row,
            [row, field](const Edits &edits) { row->setValue(edits.tone.*field); });
}
