#include "sliderrow_p.h"

#include "calculatorspinbox_p.h"
#include "childwidget_p.h"
#include "flickfilter_p.h"
#include "qlineeditcal.h"
#include "slidereditframe_p.h"

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QTextDocument>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpacerItem>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace Vantor::Widgets::Internal {

namespace {

// The gap to the next child. Qt does not mirror the margins of a layout.
void setGap(QLayout *layout, int gap, Qt::LayoutDirection direction)
{
    QMargins margins = layout->contentsMargins();
    direction == Qt::LeftToRight ? margins.setRight(gap) : margins.setLeft(gap);
    layout->setContentsMargins(margins);
}

// What a screen reader says. In a plain label "&" marks a shortcut and "&&" is shown as "&".
QString spoken(const QLabel *label)
{
    const QString text = label->text();
    const bool isRich = label->textFormat() == Qt::RichText
        || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    static const QRegularExpression shortcut(QStringLiteral("&(.?)"));
    return isRich ? QTextDocumentFragment::fromHtml(text).toPlainText()
                  : QString(text).replace(shortcut, QStringLiteral("\\1"));
}

} // namespace

void SliderRow::prepare() const
{
    // Enter in the spin box gives the focus to the frame.
    frame->setFocusPolicy(Qt::StrongFocus);
    minus->setProperty("isSliderEditSubtract", true);
    minus->setFocusPolicy(Qt::StrongFocus);
    plus->setProperty("isSliderEditPlus", true);
    plus->setFocusPolicy(Qt::StrongFocus);
    spinBox->installEventFilter(frame);
    frame->installEventFilter(frame);
}

void SliderRow::setHorizontalSpacing(int labelToSlider, int sliderToRest) const
{
    const Qt::LayoutDirection direction = frame->layoutDirection();
    setGap(nameLayout, labelToSlider, direction);
    setGap(sliderLayout, sliderToRest, direction);
    setGap(spinBoxLayout, sliderToRest, direction);
}

void SliderRow::mirrorGaps() const
{
    for (QLayout *layout : {nameLayout, sliderLayout, spinBoxLayout}) {
        const QMargins margins = layout->contentsMargins();
        layout->setContentsMargins(margins.right(), margins.top(), margins.left(),
                                   margins.bottom());
    }
}

// Only the label says what the row is for. A screen reader needs its text as the accessible name
// of each child that takes the focus.
void SliderRow::setLabelText(const QString &text) const
{
    label->setText(text);
    const QString name = spoken(label);
    frame->setAccessibleName(name);
    slider->setAccessibleName(name);
    spinBox->setAccessibleName(name);
    minus->setAccessibleName(name + QStringLiteral(" \u2212"));
    plus->setAccessibleName(name + QStringLiteral(" +"));
}

void SliderRow::setSliderVisible(bool isVisible) const
{
    // Without the slider the spacer takes the free width, so that the other children stay beside
    // the label.
    if (isVisible) {
        lastSpacer->changeSize(0, 20, QSizePolicy::Ignored, QSizePolicy::Minimum);
    } else {
        lastSpacer->changeSize(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    }
    setShown(slider, isVisible);
    // The label's shortcut gives the focus to its buddy, the slider.
    slider->setFocusProxy(isVisible ? nullptr : spinBox);
}

void SliderRow::setSliderOptions(SliderOptions options) const
{
    slider->setOptions(options);
    FlickFilter::setOn(frame, options.testFlag(FlickScrolls));
}

void SliderRow::setFieldFocus() const
{
    spinBox->setFocus(Qt::OtherFocusReason);
    spinBox->selectAll();
}

bool SliderRow::isHeldEnter(const QEvent *event)
{
    const auto *const key = static_cast<const QKeyEvent *>(event);
    return event->type() == QEvent::KeyPress && key->isAutoRepeat() && isFinishingKey(key);
}

// The selection is queued, because the spin box moves the cursor when it handles the event.
void SliderRow::selectTextAfter(const QEvent *event) const
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::MouseButtonPress) {
        return;
    }
    const auto *calculator = spinBox->findChild<LineEditCal *>();
    if (calculator != nullptr && calculator->isInOwnPopup()) {
        return; // the user returns from it and continues typing
    }
    QTimer::singleShot(0, Qt::PreciseTimer, frame, [field = spinBox, calculator] {
        // An item view creates its editor at a key, and then passes it on.
        const bool isTyped = calculator != nullptr && calculator->isModified();
        if (field->isEnabled() && (!isTyped || itemEditorAround(field) == nullptr)) {
            field->selectAll();
        }
    });
}

} // namespace Vantor::Widgets::Internal
