#include "colourpage.h"

#include <rgballeditframe.h>
#include <rgbeditframe.h>
#include <rgbopacityeditframe.h>

using Vantor::Widgets::RGBAllEditFrame;
using Vantor::Widgets::RGBEditFrame;
using Vantor::Widgets::RGBOpacityEditFrame;

namespace {

// The settings that the channels of all three editors have in common.
template <typename Editor>
void setUpChannels(Editor *editor, int min, int max, const std::array<int, 3> &values)
{
    const typename Editor::Type types[] = {Editor::R, Editor::G, Editor::B};
    const QString labels[] = {Page::tr("Red"), Page::tr("Green"), Page::tr("Blue")};
    for (std::size_t i = 0; i < values.size(); ++i) {
        editor->setLabelText(types[i], labels[i]);
        editor->setRange(types[i], min, max);
        editor->setValue(types[i], values[i]);
    }
    editor->setVerticalSpacing(0);
    editor->setAutoRepeat(true);
    editor->setLastVerticalSpacerExpanding(false);
}

} // namespace

ColourPage::ColourPage(PictureView *view, LogPane *log) : Page(tr("Colour"), view, log)
{
    addGain();
    addLift();
    addWash();
    finish();
}

void ColourPage::addGain()
{
    addHeading(tr("Gain"), tr("Percent of each channel."));
    auto *editor = addEditor<RGBEditFrame>();
    setUpChannels(editor, 0, 200, m_view->adjustment().gain);
    connect(editor, &RGBEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Gain"), QStringLiteral("valueChanged")));
    connect(editor, &RGBEditFrame::valueChanged, this, [this](int r, int g, int b) {
        adjust([=](PictureAdjustment &adjustment) { adjustment.gain = {r, g, b}; });
    });
}

void ColourPage::addLift()
{
    addHeading(tr("Lift"), tr("Added to each channel, scaled by the master."));
    auto *editor = addEditor<RGBAllEditFrame>();
    setUpChannels(editor, -100, 100, m_view->adjustment().lift);
    editor->setLabelText(RGBAllEditFrame::ALL, tr("Master"));
    editor->setRange(RGBAllEditFrame::ALL, 0, 100);
    editor->setValue(RGBAllEditFrame::ALL, m_view->adjustment().liftMaster);
    connect(editor, &RGBAllEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Lift"), QStringLiteral("valueChanged")));
    connect(editor, &RGBAllEditFrame::valueChanged, this, [this](int r, int g, int b, int all) {
        adjust([=](PictureAdjustment &adjustment) {
            adjustment.lift = {r, g, b};
            adjustment.liftMaster = all;
        });
    });
}

void ColourPage::addWash()
{
    addHeading(tr("Wash"), tr("A colour laid over the picture."));
    auto *editor = addEditor<RGBOpacityEditFrame>();
    const QColor wash = m_view->adjustment().wash;
    setUpChannels(editor, 0, 255, {wash.red(), wash.green(), wash.blue()});
    editor->setLabelText(RGBOpacityEditFrame::Opacity, tr("Opacity"));
    editor->setValue(RGBOpacityEditFrame::Opacity, m_view->adjustment().washOpacity);
    connect(editor, &RGBOpacityEditFrame::valueChanged, m_log,
            m_log->receiver(tr("Wash"), QStringLiteral("valueChanged")));
    connect(editor, &RGBOpacityEditFrame::valueChanged, this,
            [this](int r, int g, int b, int opacity) {
                adjust([=](PictureAdjustment &adjustment) {
                    adjustment.wash = QColor(r, g, b);
                    adjustment.washOpacity = opacity;
                });
            });
}
