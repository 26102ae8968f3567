#include "colourpage.h"

#include <rgballeditframe.h>
#include <rgbeditframe.h>
#include <rgbopacityeditframe.h>
#include <slidereditframe.h>

#include <QtWidgets/QLabel>

using Vantor::Widgets::RGBAllEditFrame;
using Vantor::Widgets::RGBEditFrame;
using Vantor::Widgets::RGBOpacityEditFrame;

namespace {

// The settings that the channels of all three editors share.
template <typename Editor>
void setUpChannels(Editor *editor, int min, int max, const std::array<int, 3> &defaults)
{
    editor->setLabelText(Editor::R, Page::tr("Red"));
    editor->setLabelText(Editor::G, Page::tr("Green"));
    editor->setLabelText(Editor::B, Page::tr("Blue"));
    editor->setRanges(min, max);
    editor->row(Editor::R)->setDefaultValue(defaults[0]);
    editor->row(Editor::G)->setDefaultValue(defaults[1]);
    editor->row(Editor::B)->setDefaultValue(defaults[2]);
    for (auto *row : editor->rows()) {
        row->setSpinBoxFixedWidth(Page::fieldWidth);
    }
    editor->setColoredGrooves(true);
    editor->setVerticalSpacing(0);
    editor->setAutoRepeat(true);
    editor->setLastVerticalSpacerExpanding(false);
}

template <typename Editor> void setSuffix(Editor *editor, const QString &suffix)
{
    for (auto *row : editor->rows()) {
        row->setSuffix(suffix);
    }
}

} // namespace

ColourPage::ColourPage(EditHistory *history, LogPane *log) : Page(tr("Colour"), history, log)
{
    addGain();
    addLift();
    addWash();
    finish();
}

void ColourPage::clear(Edits &edits, const QSize & /*size*/) const
{
    edits.colours = Colours();
}

void ColourPage::addGain()
{
    addHeading(tr("Gain"), tr("Percent of each channel."));
    auto *editor = addEditor<RGBEditFrame>();
    setUpChannels(editor, 0, 200, Colours().gain);
    setSuffix(editor, tr(" %"));
    connect(editor, &RGBEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Gain"), QStringLiteral("valueChanged")));
    connect(editor, &RGBEditFrame::valueChanged, this, [this](int r, int g, int b) {
        edit(tr("Gain"), [=](Edits &edits) { edits.colours.gain = {r, g, b}; });
    });
    connect(m_history, &EditHistory::restored, editor, [editor](const Edits &edits) {
        const auto &gain = edits.colours.gain;
        editor->setValues(gain[0], gain[1], gain[2]);
    });
}

void ColourPage::addLift()
{
    addHeading(tr("Lift"), tr("Added to each channel, scaled by the master."));
    auto *editor = addEditor<RGBAllEditFrame>();
    // The channels are a separate editor with its own spacer at the end.
    editor->findChild<RGBEditFrame *>()->setLastVerticalSpacerExpanding(false);
    setUpChannels(editor, -100, 100, Colours().lift);
    setSuffix(editor, tr(" %"));
    editor->setLabelText(RGBAllEditFrame::ALL, tr("Master"));
    editor->setRange(RGBAllEditFrame::ALL, 0, 100);
    editor->row(RGBAllEditFrame::ALL)->setDefaultValue(Colours().liftMaster);
    connect(editor, &RGBAllEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Lift"), QStringLiteral("valueChanged")));
    connect(editor, &RGBAllEditFrame::valueChanged, this, [this](int r, int g, int b, int all) {
        edit(tr("Lift"), [=](Edits &edits) {
            edits.colours.lift = {r, g, b};
            edits.colours.liftMaster = all;
        });
    });
    connect(m_history, &EditHistory::restored, editor, [editor](const Edits &edits) {
        const auto &lift = edits.colours.lift;
        editor->setValues(lift[0], lift[1], lift[2], edits.colours.liftMaster);
    });
}

void ColourPage::addWash()
{
    // At an opacity of 0 the colour shows nowhere else.
    auto *swatch = new QLabel;
    swatch->setObjectName(QStringLiteral("swatch"));
    swatch->setAccessibleName(tr("Colour of the wash"));
    connect(m_history, &EditHistory::changed, swatch, [swatch](const Edits &edits) {
        QPixmap colour(56, 32);
        colour.fill(edits.colours.wash.rgb());
        swatch->setPixmap(colour);
    });
    addHeading(tr("Wash"), tr("A colour laid over the picture."), swatch);
    auto *editor = addEditor<RGBOpacityEditFrame>();
    const QColor wash = Colours().wash;
    setUpChannels(editor, 0, 255, {wash.red(), wash.green(), wash.blue()});
    editor->setLabelText(RGBOpacityEditFrame::Opacity, tr("Opacity"));
    auto *const opacity = editor->row(RGBOpacityEditFrame::Opacity);
    opacity->setSuffix(tr(" %"));
    opacity->setDefaultValue(0);
    connect(editor, &RGBOpacityEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Wash"), QStringLiteral("valueChanged")));
    connect(editor, &RGBOpacityEditFrame::valueChanged, this, [this, editor] {
        edit(tr("Wash"), [editor](Edits &edits) { edits.colours.wash = editor->color(); });
    });
    connect(m_history, &EditHistory::restored, editor,
            [editor](const Edits &edits) { editor->setColor(edits.colours.wash); });
}
