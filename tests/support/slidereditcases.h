#pragma once

#include "editorrow.h"

// What the integer and the floating-point slider editor do alike.
namespace SliderEditCases {

inline QString widths(const QWidget *widget)
{
    return QStringLiteral("%1..%2").arg(widget->minimumWidth()).arg(widget->maximumWidth());
}

inline QString heights(const QWidget *widget)
{
    return QStringLiteral("%1..%2").arg(widget->minimumHeight()).arg(widget->maximumHeight());
}

// What a host's layout finds, as one text: layouts with spacing and margins,
// widgets with their size limits, the spacer with its policy.
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
        .arg(layout->objectName(), QString::number(layout->spacing()))
        .arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom())
        .arg(items.join(", "));
}

template <typename Frame>
void compareForm(EditorRow<Frame> &row, const QString &keyboard, const QString &layout)
{
    QCOMPARE(layoutText(row.frame->layout()), layout);
    QCOMPARE(row.frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(row.frame->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.minus->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.plus->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.frame->property("isSliderFrame"), QVariant(true));
    QCOMPARE(row.minus->property("isSliderEditSubtract"), QVariant(true));
    QCOMPARE(row.plus->property("isSliderEditPlus"), QVariant(true));
    QCOMPARE(row.spinBox->property("Quelmo_VK"), QVariant(keyboard));
    QCOMPARE(row.label->buddy(), row.slider);
    QCOMPARE(row.label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(row.spinBox->alignment(), Qt::AlignCenter);
    QCOMPARE(row.spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(!row.slider->hasTracking());
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
    frame.setSliderProperty("channel", 3);
    QCOMPARE(row.slider->property("channel"), QVariant(3));

    frame.setAutoRepeatDelay(70);
    frame.setAutoRepeatInterval(30);
    for (const QToolButton *button : {row.minus, row.plus}) {
        QVERIFY(!button->autoRepeat());
        frame.setAutoRepeat(true);
        QVERIFY(button->autoRepeat());
        frame.setReleaseMode(true);
        QVERIFY(!button->autoRepeat());
        frame.setReleaseMode(false);
        QVERIFY(button->autoRepeat());
        frame.setAutoRepeat(false);
        frame.setTimeSamplingRate(50);
        QVERIFY(button->autoRepeat());
        QCOMPARE(button->autoRepeatDelay(), 70);
        QCOMPARE(button->autoRepeatInterval(), 30);
        frame.setAutoRepeat(false);
    }

    QLayout *layout = frame.layout();
    const auto margins = [layout](int i) { return layout->itemAt(i)->layout()->contentsMargins(); };
    layout->itemAt(2)->layout()->setContentsMargins(1, 2, 3, 4);
    frame.setHorizontalSpacing(5, 7);
    QCOMPARE(margins(0), QMargins(0, 0, 5, 0));
    QCOMPARE(margins(1), QMargins(0, 0, 7, 0));
    QCOMPARE(margins(2), QMargins(1, 2, 7, 4));
    const auto allWidths = [&row] {
        return widths(row.label) + ' ' + widths(row.spinBox) + ' ' + widths(row.minus) + ' '
            + widths(row.plus);
    };
    frame.setLabelWidthRange(90, 40);
    frame.setButtonWidthRange(60, 20);
    frame.setSpinBoxWidthRange(80, 50);
    QCOMPARE(allWidths(), QString("40..90 50..80 20..60 20..60"));
    frame.setLabelFixedWidth(31);
    frame.setButtonFixedWidth(32);
    frame.setSpinBoxFixedWidth(33);
    QCOMPARE(allWidths(), QString("31..31 33..33 32..32 32..32"));

    QLayoutItem *spacer = layout->itemAt(3)->layout()->itemAt(2);
    frame.setSliderVisible(false);
    QVERIFY(row.slider->isHidden());
    QCOMPARE(layoutText(spacer), QStringLiteral("spacer 20 policy %1").arg(QSizePolicy::Expanding));
    frame.setSliderVisible(true);
    QVERIFY(!row.slider->isHidden());
    QCOMPARE(layoutText(spacer), QStringLiteral("spacer 0 policy %1").arg(QSizePolicy::Ignored));
    QCOMPARE(row.log.take(), QStringList());
}

// Under a host's own signal block no setter ends it; without one the children
// report nothing either.
template <typename Frame, typename SpinBox>
void compareSilence(EditorRow<Frame> &row, const std::function<void()> &callSetters)
{
    row.spinBox->blockSignals(true);
    row.slider->blockSignals(true);
    callSetters();
    QVERIFY(row.spinBox->blockSignals(false));
    QVERIFY(row.slider->blockSignals(false));
    using Value = typename EditorRow<Frame>::Value;
    row.log.watch(qobject_cast<SpinBox *>(row.spinBox),
                  QOverload<Value>::of(&SpinBox::valueChanged), "spinBox");
    row.log.watch(row.slider, &QSlider::valueChanged, "slider");
    row.frame->setValue(100 * EditorRow<Frame>::unit);
    callSetters();
    QCOMPARE(row.log.take(), QStringList());
}

// The columns of a table of sequences: what the user does and what comes of it.
template <typename Frame>
void addSequence(const QString &name, const Action<Frame> &action, const QStringList &log,
                 const QString &shown)
{
    QString visible = name;
    visible.replace('\n', "\\n").replace('\t', "\\t").replace('\b', "\\b");
    QTest::newRow(qPrintable(visible)) << action << log << shown;
}

// The sequences that are the same for both, in slider positions.
template <typename Frame> void addSequences()
{
    using Row = EditorRow<Frame>;
    const auto at = [](std::initializer_list<int> positions) {
        QStringList entries;
        for (const int position : positions)
            entries += reports({position * Row::unit});
        return entries;
    };
    const auto add = [](const QString &name, const Action<Frame> &action, const QStringList &log,
                        int position) {
        const QString text = QString::number(position * Row::unit, 'f', Row::isInt ? 0 : 2);
        addSequence<Frame>(name, action, log, text + ' ' + QString::number(position));
    };
    QTest::addColumn<Action<Frame>>("action");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QString>("shown");

    add(
        "drag",
        [](Row &row) {
            row.drag({20, 60, 40});
        },
        at({20, 60, 40}) << "drop", 40);
    for (const Mode mode : {Continuous, Released, Sampled}) {
        const QString name = QStringList({"", ", released", ", sampled"}).at(mode);
        const QStringList last = mode == Continuous ? QStringList() : at({40});
        const auto hold = [mode](Row &row) {
            row.setMode(mode);
            row.hold({20, 60, 40});
            row.log.take();
        };
        add(
            "drop" + name,
            [=](Row &row) {
                hold(row);
                row.drop();
            },
            QStringList("drop") << last, 40);
        add(
            "slider hidden in a drag" + name,
            [=](Row &row) {
                hold(row);
                row.frame->setSliderVisible(false);
                QCOMPARE(samplingInterval(row.frame), -1);
                row.drop();
            },
            QStringList(last) << "drop", 40);
        add(
            "editor disabled in a drag" + name,
            [=](Row &row) {
                hold(row);
                row.frame->setEnabled(false);
                row.frame->setEnabled(true);
                User::moveHandle(row.slider, 70); // held by nobody any more
                QCOMPARE(row.slider->sliderPosition(), 40);
                QCOMPARE(samplingInterval(row.frame), -1);
                row.drop();
            },
            QStringList(last) << "drop", 40);
        add(
            "dropped where taken" + name,
            [mode](Row &row) {
                row.setMode(mode);
                row.hold({30, 10});
                row.log.take();
                row.drop();
            },
            {"drop"}, 10);
        add(
            "groove and keys" + name,
            [mode](Row &row) {
                row.setMode(mode);
                row.frame->setPageStep(20);
                User::clickGroove(row.slider, true);
                User::press(Qt::Key_Right);
                User::clickGroove(row.slider, false);
                row.click(row.plus);
                row.click(row.minus, 2);
            },
            at({30, 31, 11, 12, 11, 10}), 10);
    }
    add(
        "ticks",
        [](Row &row) {
            row.setMode(Sampled);
            row.hold({});
            QCOMPARE(samplingInterval(row.frame), 60000);
            row.tick();
            User::moveHandle(row.slider, 20);
            User::moveHandle(row.slider, 30);
            row.tick();
            row.tick();
            User::moveHandle(row.slider, 50);
            User::moveHandle(row.slider, 30);
            row.tick();
            User::moveHandle(row.slider, 40);
            row.tick();
            row.drop();
            QCOMPARE(samplingInterval(row.frame), -1);
        },
        QStringList({"tick", "tick"}) + at({30}) + QStringList({"tick", "tick", "tick"}) + at({40})
            + QStringList("drop"),
        40);

    add(
        "a host's value in a drag",
        [](Row &row) {
            row.setMode(Sampled);
            row.hold({});
            row.frame->setValue(50 * Row::unit);
            row.drop();
        },
        {"drop"}, 50);

    const auto direct = [add](const char *name, int directions, const QStringList &log, int end) {
        // A receiver finds the children updated.
        add(
            name,
            [directions](Row &row) {
                row.frame->setRange(0, 200 * Row::unit);
                row.frame->setValue(100 * Row::unit);
                QObject::connect(
                    row.frame, &Frame::valueChanged, row.frame, [&row](typename Row::Value value) {
                        QCOMPARE(row.slider->value(), qRound(double(value) / Row::unit));
                    });
                row.frame->setValueChangeDirection(directions, int(100 * Row::unit));
                row.drag({90, 95, 120, 130});
            },
            QStringList(log) << "drop", end);
    };
    direct("allowed to bigger", Frame::AllowedToBigger, at({100, 100, 120, 130}), 130);
    direct("allowed to smaller", Frame::AllowedToSmaller, at({90, 95, 100, 100}), 100);
    direct("no direction", 0, at({90, 95, 100, 100}), 100);
    direct("any direction", Frame::AllowedToAny, at({90, 95, 120, 130}), 130);
    add(
        "a held value is reported on every attempt",
        [](Row &row) {
            row.frame->setValueChangeDirection(Frame::AllowedToSmaller, 0);
            row.click(row.plus, 2);
        },
        at({0, 0}), 0);
    // The last value is the one that was set, not the clamped one.
    add(
        "a child's echo",
        [](Row &row) {
            row.frame->setValue(200 * Row::unit);
            row.frame->setRange(0, 300 * Row::unit);
            row.frame->setSingleStep(100 * Row::unit);
            row.spinBox->setFocus();
            User::press(Qt::Key_Up);
            QCOMPARE(row.slider->value(), 100);
            User::press(Qt::Key_Down);
        },
        at({100}), 100);
    add(
        "wheel",
        [](Row &row) {
            User::turnWheel(row.slider);
            User::turnWheel(row.spinBox);
            row.frame->setSpinBoxWheelEnable(true);
            row.spinBox->setFocus();
            User::turnWheel(row.spinBox);
        },
        QStringList({"page: wheel", "page: wheel"}) << at({11}), 11);
}

// Clicking or tabbing into the field selects its text, unless it was disabled
// meanwhile or is gone.
template <typename Frame> void compareSelectAll(EditorRow<Frame> &row)
{
    const QString text = row.spinBox->text();
    row.slider->setFocus();
    User::press(Qt::Key_Tab);
    QTRY_COMPARE(row.field->selectedText(), text);
    row.frame->setFocus();
    row.field->deselect();
    User::click(row.spinBox);
    QTRY_COMPARE(row.field->selectedText(), text);

    row.frame->setFocus();
    row.spinBox->setFocus();
    row.spinBox->setEnabled(false);
    row.field->deselect();
    QCoreApplication::processEvents();
    QCOMPARE(row.field->selectedText(), QString());
    row.spinBox->setEnabled(true);
    row.spinBox->setFocus();
    delete row.frame;
    QCoreApplication::processEvents();
}

} // namespace SliderEditCases
