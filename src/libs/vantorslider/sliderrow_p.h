#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QEvent;
class QLabel;
class QSpacerItem;
class QString;
class QToolButton;
class QVBoxLayout;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

class SliderEditSlider;

namespace Internal {

// The children of a slider editor and what the integer and the floating-point editor do with
// them in the same way.
struct SliderRow
{
    template <typename Form>
    SliderRow(const Form &form, QAbstractSpinBox *field)
        : nameLayout(form.nameLayout), label(form.labelName), sliderLayout(form.sliderLayout),
          slider(form.slider), spinBoxLayout(form.spinBoxLayout), spinBox(field),
          minus(form.sliderEditSubtract), plus(form.sliderEditPlus),
          lastSpacer(form.lastHorizontalSpacer)
    {
    }

    // Called once after setupUi(): sets focus policies, style properties and the event filter.
    void prepare(QWidget *frame) const;

    void setHorizontalSpacing(int labelToSlider, int sliderToRest) const;
    void setLabelText(const QString &text) const;
    void setSliderVisible(bool isVisible) const;

    void setButtonWidthRange(int maximum, int minimum) const;
    void setButtonFixedWidth(int width) const;
    void setButtonVisible(bool isVisible) const;
    void setFieldFocus() const;
    void setAutoRepeat(bool isRepeating) const;
    void setAutoRepeatDelay(int milliseconds) const;
    void setAutoRepeatInterval(int milliseconds) const;

    // Called by the frame's event filter: a click or Tab into the spin box selects its text.
    void selectAllOnEntry(QWidget *frame, const QEvent *event) const;

    QVBoxLayout *nameLayout;
    QLabel *label;
    QVBoxLayout *sliderLayout;
    SliderEditSlider *slider;
    QVBoxLayout *spinBoxLayout;
    QAbstractSpinBox *spinBox;
    QToolButton *minus;
    QToolButton *plus;
    QSpacerItem *lastSpacer;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
