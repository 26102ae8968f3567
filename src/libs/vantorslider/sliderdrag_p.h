#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QMouseEvent;
QT_END_NAMESPACE

namespace Vantor::Widgets {

class SliderEditSlider;

namespace Internal {

// How the pointer moves the handle of a slider with the options GrooveMovesHandle and FineDrag.
// Without them the slider has no such object.
//
// All lengths are in pixels along the slider. The place of the handle is that of its left edge.
class SliderDrag
{
public:
    explicit SliderDrag(SliderEditSlider *slider) : m_slider(slider) { }

    // Each passes the event on to QSlider, unchanged or moved, or sets the slider's position.
    void press(QMouseEvent *event);
    void move(QMouseEvent *event);

private:
    struct Track;

    Track track() const;
    double speed(const QMouseEvent *event, const Track &track) const;
    double catchUp(double step, const Track &track) const;

    SliderEditSlider *const m_slider;
    double m_grip = 0; // from the left edge of the handle to the point where it was pressed
    double m_pointer = 0; // where the handle would be under the pointer
    double m_place = 0; // where it is, if they differ
    bool m_isApart = false;
};

} // namespace Internal
} // namespace Vantor::Widgets
