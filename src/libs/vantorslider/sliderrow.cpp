#include "sliderrow_p.h"

#include "childwidget_p.h"
#include "qlineeditcal.h"
#include "slidereditframe_p.h"

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpacerItem>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

void setRightMargin(QLayout *layout, int right)
{
    QMargins margins = layout->contentsMargins();
    margins.setRight(right);
    layout->setContentsMargins(margins);
}

} // namespace

void SliderRow::prepare(QWidget *frame) const
{
    // Enter in the spin box gives the focus to the frame.
    frame->setFocusPolicy(Qt::StrongFocus);
    minus->setProperty("isSliderEditSubtract", true);
    minus->setFocusPolicy(Qt::StrongFocus);
    plus->setProperty("isSliderEditPlus", true);
    plus->setFocusPolicy(Qt::StrongFocus);
    spinBox->installEventFilter(frame);
}

void SliderRow::setHorizontalSpacing(int labelToSlider, int sliderToRest) const
{
    setRightMargin(nameLayout, labelToSlider);
    setRightMargin(sliderLayout, sliderToRest);
    setRightMargin(spinBoxLayout, sliderToRest);
}

// Only the label says what the row is for. A screen reader needs its text as the accessible name
// of each child that takes the focus.
void SliderRow::setLabelText(const QString &text) const
{
    label->setText(text);
    // In a label "&" marks a shortcut and "&&" is shown as "&".
    const QString name =
        QString(text).replace(QRegularExpression(QStringLiteral("&(.?)")), QStringLiteral("\\1"));
    spinBox->parentWidget()->setAccessibleName(name);
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
}

void SliderRow::setFieldFocus() const
{
    spinBox->setFocus(Qt::OtherFocusReason);
    spinBox->selectAll();
}

// Queued, because the spin box moves the cursor when it handles the event.
void SliderRow::selectAllOnEntry(QWidget *frame, const QEvent *event) const
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::MouseButtonPress) {
        return;
    }
    const auto *calculator = spinBox->findChild<LineEditCal *>();
    if (calculator != nullptr && calculator->isInOwnPopup()) {
        return; // the user returns from it and continues typing
    }
    QTimer::singleShot(0, Qt::PreciseTimer, frame, [field = spinBox] {
        if (field->isEnabled()) {
            field->selectAll();
        }
    });
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
