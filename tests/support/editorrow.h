#pragma once

#include "eventlog.h"
#include "userevents.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

// The page around the widget under test. What reaches it is in the log.
class Page : public QWidget
{
public:
    explicit Page(EventLog &log) : m_log(log)
    {
        setLayout(new QVBoxLayout);
        resize(1000, 100);
    }

protected:
    void wheelEvent(QWheelEvent *) override { m_log.add("page: wheel"); }
    void keyPressEvent(QKeyEvent *event) override
    {
        m_log.add("page: key " + QString::number(event->key(), 16));
    }

private:
    EventLog &m_log;
};

// How a drag is reported.
enum Mode { Continuous, Released, Sampled, SampledReleased };
Q_DECLARE_METATYPE(Mode)

// A slider editor on a page, its children and the log of its signal. The slider
// is wide enough for a pixel per position with ranges up to some 600.
template <typename Frame> struct EditorRow
{
    EventLog log;
    Page page {log};
    Frame *frame = new Frame(&page);
    QLabel *label = frame->template findChild<QLabel *>("labelName");
    QSlider *slider = frame->template findChild<QSlider *>("slider");
    QAbstractSpinBox *spinBox = frame->template findChild<QAbstractSpinBox *>();
    QLineEdit *field = spinBox->template findChild<QLineEdit *>();
    QToolButton *minus = frame->template findChild<QToolButton *>("sliderEditSubtract");
    QToolButton *plus = frame->template findChild<QToolButton *>("sliderEditPlus");

    EditorRow()
    {
        page.layout()->addWidget(frame);
        log.watch(frame, &Frame::valueChanged, "valueChanged");
    }

    // Types over what the field shows.
    void type(const QString &text)
    {
        User::click(spinBox);
        QCoreApplication::processEvents(); // the field selects its text a moment later
        User::type(text);
    }

    // The interval of sampling is long: tests let the ticks come themselves.
    void setMode(Mode mode)
    {
        if (mode == Sampled || mode == SampledReleased)
            frame->setTimeSamplingRate(60000);
        if (mode == Released || mode == SampledReleased)
            frame->setReleaseMode(true);
    }
    QStringList logAfterTick()
    {
        tick(frame);
        return log.take();
    }
    // The spin box's text and the slider's value.
    QString shown() const { return spinBox->text() + ' ' + QString::number(slider->value()); }
};

template <typename Value> QStringList reports(std::initializer_list<Value> values)
{
    QStringList entries;
    for (const Value value : values)
        entries.append(QStringLiteral("valueChanged(%1)").arg(value));
    return entries;
}

inline QString widths(const QWidget *widget)
{
    return QStringLiteral("%1..%2").arg(widget->minimumWidth()).arg(widget->maximumWidth());
}

inline QString heights(const QWidget *widget)
{
    return QStringLiteral("%1..%2").arg(widget->minimumHeight()).arg(widget->maximumHeight());
}

// What a style sheet or a host's layout finds, as one text: layouts with their
// spacing and margins, the widgets' sizes, the spacer with its policy.
inline QString layoutText(QLayoutItem *item)
{
    if (const QWidget *widget = item->widget())
        return widget->objectName() + ' ' + widths(widget) + 'x' + heights(widget);
    if (const QSpacerItem *spacer = item->spacerItem())
        return QStringLiteral("spacer %1 policy %2")
            .arg(spacer->sizeHint().width())
            .arg(spacer->sizePolicy().horizontalPolicy());
    const QLayout *layout = item->layout();
    const QMargins margins = layout->contentsMargins();
    QStringList items;
    for (int i = 0; i < layout->count(); ++i)
        items.append(layoutText(layout->itemAt(i)));
    return QStringLiteral("%1 %2 [%3 %4 %5 %6] {%7}")
        .arg(layout->objectName())
        .arg(layout->spacing())
        .arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom())
        .arg(items.join(", "));
}

// The settings that both slider editors have alike.
template <typename Frame> void compareForm(EditorRow<Frame> &row, const QVariant &keyboard)
{
    QCOMPARE(row.frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(row.frame->frameShadow(), QFrame::Raised);
    QCOMPARE(row.frame->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.minus->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.plus->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.frame->property("isSliderFrame"), QVariant(true));
    QCOMPARE(row.minus->property("isSliderEditSubtract"), QVariant(true));
    QCOMPARE(row.plus->property("isSliderEditPlus"), QVariant(true));
    QCOMPARE(row.spinBox->property("Quelmo_VK"), keyboard);
    QCOMPARE(row.label->buddy(), row.slider);
    QCOMPARE(row.label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(row.label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(row.spinBox->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(row.spinBox->alignment(), Qt::AlignCenter);
    QCOMPARE(row.spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(!row.minus->autoRepeat() && !row.plus->autoRepeat());
}

template <typename Frame> void compareSetters(EditorRow<Frame> &row)
{
    Frame &frame = *row.frame;
    frame.setLabelText("Gain");
    QCOMPARE(frame.labelText(), QString("Gain"));
    QCOMPARE(row.label->text(), QString("Gain"));
    QCOMPARE(row.slider->accessibleName(), QString("Gain"));
    QCOMPARE(row.spinBox->accessibleName(), QString("Gain"));
    QCOMPARE(row.minus->accessibleName(), QString("Gain \u2212"));
    QCOMPARE(row.plus->accessibleName(), QString("Gain +"));
    QVERIFY(row.minus->text().isEmpty() && row.plus->text().isEmpty());

    frame.setSliderProperty("channel", 3);
    QCOMPARE(row.slider->property("channel"), QVariant(3));
    frame.setAutoRepeatDelay(70);
    frame.setAutoRepeatInterval(30);
    frame.setPageStep(17);
    for (const QToolButton *button : {row.minus, row.plus}) {
        frame.setAutoRepeat(true);
        QVERIFY(button->autoRepeat());
        frame.setReleaseMode(true);
        QVERIFY(!button->autoRepeat());
        frame.setReleaseMode(false);
        QVERIFY(button->autoRepeat());
        frame.setReleaseMode(true);
        frame.setTimeSamplingRate(50);
        QVERIFY(button->autoRepeat());
        QCOMPARE(button->autoRepeatDelay(), 70);
        QCOMPARE(button->autoRepeatInterval(), 30);
    }
    QCOMPARE(row.slider->pageStep(), 17);

    QLayout *layout = frame.layout();
    const auto margins = [layout](int i) { return layout->itemAt(i)->layout()->contentsMargins(); };
    layout->itemAt(2)->layout()->setContentsMargins(1, 2, 3, 4);
    frame.setHorizontalSpacing(5, 7);
    QCOMPARE(margins(0), QMargins(0, 0, 5, 0));
    QCOMPARE(margins(1), QMargins(0, 0, 7, 0));
    QCOMPARE(margins(2), QMargins(1, 2, 7, 4));
    frame.setLabelWidthRange(90, 40);
    frame.setButtonWidthRange(60, 20);
    frame.setSpinBoxWidthRange(80, 50);
    QCOMPARE(widths(row.label), QString("40..90"));
    QCOMPARE(widths(row.minus), QString("20..60"));
    QCOMPARE(widths(row.plus), QString("20..60"));
    QCOMPARE(widths(row.spinBox), QString("50..80"));
    frame.setLabelFixedWidth(31);
    frame.setButtonFixedWidth(32);
    frame.setSpinBoxFixedWidth(33);
    QCOMPARE(widths(row.label), QString("31..31"));
    QCOMPARE(widths(row.minus), QString("32..32"));
    QCOMPARE(widths(row.plus), QString("32..32"));
    QCOMPARE(widths(row.spinBox), QString("33..33"));

    QLayoutItem *spacer = layout->itemAt(3)->layout()->itemAt(2);
    frame.setSliderVisible(false);
    QVERIFY(row.slider->isHidden());
    QCOMPARE(layoutText(spacer), QStringLiteral("spacer 20 policy %1").arg(QSizePolicy::Expanding));
    frame.setSliderVisible(true);
    QVERIFY(!row.slider->isHidden());
    QCOMPARE(layoutText(spacer), QStringLiteral("spacer 0 policy %1").arg(QSizePolicy::Ignored));
    QCOMPARE(row.log.take(), QStringList());
}
