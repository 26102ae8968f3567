#include "bareeditors.h"

#include "ui_barepanels.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLineEdit>

BareRow::BareRow(QWidget *parent) : QFrame(parent)
{
    ui.setupUi(this);
    setFocusPolicy(Qt::StrongFocus);
    ui.sliderEditSubtract->setFocusPolicy(Qt::StrongFocus);
    ui.sliderEditPlus->setFocusPolicy(Qt::StrongFocus);
    ui.spinBox->setAttribute(Qt::WA_AcceptTouchEvents);
    ui.spinBox->setFocusPolicy(Qt::StrongFocus);
}

void BareRow::setRange(int min, int max)
{
    ui.spinBox->setRange(min, max);
    ui.slider->setRange(min, max);
}

void BareRow::setValue(int val)
{
    const QSignalBlocker spinBoxBlocker(ui.spinBox);
    const QSignalBlocker sliderBlocker(ui.slider);
    ui.spinBox->setValue(val);
    ui.slider->setValue(val);
}

BareRows::BareRows(QWidget *parent) : QFrame(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 4; ++i) {
        auto *row = new BareRow(this);
        row->setRange(0, 255);
        row->setValue(50);
        layout->addWidget(row);
    }
}

BarePanels::BarePanels(QWidget *parent) : QFrame(parent)
{
    Ui::BarePanels ui;
    ui.setupUi(this);
    ui.toolButtonLockPosition->hide();
    ui.toolButtonLockSize->hide();
}

RewritingSpinBox::RewritingSpinBox(QWidget *parent) : QSpinBox(parent)
{
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setKeyboardTracking(false);
    auto *field = new QLineEdit;
    connect(field, &QLineEdit::textChanged, field, [field](const QString &text) {
        const int cursor = field->cursorPosition();
        const QSignalBlocker blocker(field);
        field->setText(text);
        field->setCursorPosition(cursor);
    });
    setLineEdit(field);
}

QValidator::State RewritingSpinBox::validate(QString &text, int &pos) const
{
    Q_UNUSED(text)
    Q_UNUSED(pos)
    return QValidator::Acceptable;
}
