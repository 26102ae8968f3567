#pragma once

#include "entryoptions.h"

#include <QtCore/QtGlobal>

#include <functional>

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

namespace Vantor::Widgets {

class SliderEditSlider;

namespace Internal {

// The children of a slider editor and what the integer and the floating-point editor do with
// them in the same way.
struct SliderRow
{
    template <typename Form>
    SliderRow(const Form &form, QAbstractSpinBox *field, QWidget *editor)
        : frame(editor), nameLayout(form.nameLayout), label(form.labelName),
          sliderLayout(form.sliderLayout), slider(form.slider), spinBoxLayout(form.spinBoxLayout),
          spinBox(field), minus(form.sliderEditSubtract), plus(form.sliderEditPlus),
          lastSpacer(form.lastHorizontalSpacer)
    {
    }

    // Called once after setupUi(): sets focus policies and style properties, and has the frame
    // filter the events of the spin box and its own.
    void prepare() const;

    // The gaps between the children, in the direction of the frame.
    void setHorizontalSpacing(int labelToSlider, int sliderToRest) const;
    void mirrorGaps() const;
    void setLabelText(const QString &text) const;
    void setSliderVisible(bool isVisible) const;
    void setSliderOptions(SliderOptions options) const;
    void setFieldFocus() const;

    // Calls the operation for plus, then for minus: a member function of theirs, or a function
    // that takes a widget.
    template <typename Operation, typename... Arguments>
    void bothButtons(Operation operation, const Arguments &...arguments) const
    {
        std::invoke(operation, plus, arguments...);
        std::invoke(operation, minus, arguments...);
    }

    // Whether the event repeats an Enter that is held since it has ended an entry and moved the
    // focus to the frame. It must not press a default button.
    static bool isHeldEnter(const QEvent *event);

    // A click or Tab into the spin box selects its text.
    void selectTextAfter(const QEvent *event) const;

    QWidget *frame;
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
} // namespace Vantor::Widgets
