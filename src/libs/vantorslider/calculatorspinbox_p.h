#pragma once

#include <QtCore/QLocale>

#include <cmath>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QKeyEvent;
class QString;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the two calculator spin boxes share without a common base of their own.

// keyboard: the kind of on-screen keyboard that the host is to show.
void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard);

bool isFinishingKey(const QKeyEvent *event);

// The number that the text of a calculator spin box stands for. Qt takes the
// range's start for what it can't read and for what is out of range, which the
// calculator's result may be: it is clamped in float, to the range of the last
// setSpinBoxCal(), and rounded to its own decimals. Here the nearer end is taken,
// and what is no number leaves the value.
template <typename SpinBox> double numberFromText(const SpinBox *spinBox, QString text)
{
    if (text.startsWith(spinBox->prefix())) {
        text.remove(0, spinBox->prefix().length());
    }
    if (text.endsWith(spinBox->suffix())) {
        text.chop(spinBox->suffix().length());
    }
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text, &isNumber);
    if (!isNumber || std::isnan(number)) {
        return spinBox->value();
    }
    return qBound<double>(spinBox->minimum(), number, spinBox->maximum());
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
