#pragma once

#include "editorrow.h"

// What the integer and the floating-point slider editor do alike.
namespace SliderEditCases {

// What a host's layout and its style sheet find, as one text: layouts with
// spacing and margins, widgets with size limits and properties, the spacer with
// its policy.
inline QString layoutText(QLayoutItem *item)
{
    if (const QWidget *widget = item->widget()) {
        QString text = QStringLiteral("%1 %2..%3x%4..%5")
                           .arg(widget->objectName())
                           .arg(widget->minimumWidth())
                           .arg(widget->maximumWidth())
                           .arg(widget->minimumHeight())
                           .arg(widget->maximumHeight());
        for (const QByteArray &name : widget->dynamicPropertyNames()) {
            if (!name.startsWith('_'))
                text += ' ' + name + '=' + widget->property(name).toString();
        }
        return text.replace("16777215", "max");
    }
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

template <typename Frame> void compareForm(EditorRow<Frame> &row, const QString &layout)
{
    QCOMPARE(layoutText(row.frame->layout()), layout);
    QCOMPARE(row.frame->objectName(),
             QString(Frame::staticMetaObject.className()).section(':', -1));
    QCOMPARE(row.frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(row.label->buddy(), row.slider);
    QCOMPARE(row.spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

template <typename Frame> void compareSetters(EditorRow<Frame> &row)
{
    Frame &frame = *row.frame;
    frame.setLabelText("Gain");
    QCOMPARE(frame.labelText(), QString("Gain"));
    QStringList names {row.label->text()};
    for (const QWidget *widget : QWidgetList({row.slider, row.spinBox, row.minus, row.plus}))
        names.append(widget->accessibleName());
    QCOMPARE(names.join(", "), QString("Gain, Gain, Gain, Gain \u2212, Gain +"));
    frame.setSliderProperty("channel", 3);
    QCOMPARE(row.slider->property("channel"), QVariant(3));

    QLayout *layout = frame.layout();
    layout->itemAt(2)->layout()->setContentsMargins(1, 2, 3, 4);
    frame.setHorizontalSpacing(5, 7);
    frame.setLabelWidthRange(90, 40);
    frame.setButtonWidthRange(60, 20);
    frame.setSpinBoxFixedWidth(33);
    frame.setSliderVisible(false);
    QVERIFY(row.slider->isHidden());
    const QString text = layoutText(layout);
    for (const char *part :
         {"nameLayout 0 [0 0 5 0] {labelName 40..90x", "sliderLayout 0 [0 0 7 0]",
          "spinBoxLayout 0 [1 2 7 4]", "pinBox 33..33x", "sliderEditSubtract 20..60x",
          "sliderEditPlus 20..60x", "spacer 20 policy 7"})
        QVERIFY2(text.contains(part), part);
    frame.setSpinBoxWidthRange(80, 50);
    frame.setLabelFixedWidth(31);
    frame.setButtonFixedWidth(32);
    frame.setSliderVisible(true);
    QVERIFY(!row.slider->isHidden());
    const QString fixedText = layoutText(layout);
    for (const char *part : {"labelName 31..31x", "pinBox 50..80x", "sliderEditSubtract 32..32x",
                             "sliderEditPlus 32..32x", "spacer 0 policy 13"})
        QVERIFY2(fixedText.contains(part), part);
    QCOMPARE(row.log.take(), QStringList());
}

// Release mode switches the buttons' repetition off, leaving it and sampling on.
template <typename Frame> void compareAutoRepeat(EditorRow<Frame> &row)
{
    Frame &frame = *row.frame;
    const std::function<void()> calls[] = {[] {},
                                           [&] { frame.setAutoRepeat(true); },
                                           [&] { frame.setReleaseMode(true); },
                                           [&] { frame.setReleaseMode(false); },
                                           [&] { frame.setAutoRepeat(false); },
                                           [&] { frame.setTimeSamplingRate(50); }};
    for (int i = 0; i < 6; ++i) {
        calls[i]();
        QCOMPARE(row.minus->autoRepeat(), i % 2 == 1);
        QCOMPARE(row.plus->autoRepeat(), i % 2 == 1);
    }
    frame.setAutoRepeatDelay(10);
    frame.setAutoRepeatInterval(5);
    // Each repetition is a step with its own signal.
    QTest::mousePress(row.plus, Qt::LeftButton);
    QTRY_VERIFY(row.slider->value() >= 13);
    QTest::mouseRelease(row.plus, Qt::LeftButton);
    QCOMPARE(row.log.take().mid(0, 3), reports({11 * row.unit, 12 * row.unit, 13 * row.unit}));
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

// Plays "hold 20 60: 20 60 | drop": what is done and, behind the colon, what
// comes of it. Numbers are slider positions, of reports too; "=40" is a spin box
// and a slider that show it, "=40/39" where they differ. "finished" and "left"
// are the messages of an entry, "page" a turn of the wheel that reached the page.
template <typename Frame> void play(EditorRow<Frame> &row, const QString &steps)
{
    using Row = EditorRow<Frame>;
    const auto textAt = [](const QString &position) {
        return QString::number(position.toInt() * Row::unit, 'f', Row::isInt ? 0 : 2);
    };
    const auto entry = [&](const QString &word) {
        const QMap<QString, QString> messages {{"finished", "debug: SpinBox editing finished"},
                                               {"left", "debug: SpinBox lose focus."},
                                               {"page", "page: wheel"}};
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        if (isNumber)
            return reports({number * Row::unit}).constFirst();
        if (word.startsWith('='))
            return textAt(word.mid(1).section('/', 0, 0)) + '/' + word.mid(1).section('/', -1);
        return messages.value(word, word);
    };
    // A receiver finds the children updated.
    QObject::connect(row.frame, &Frame::valueChanged, [&](typename Row::Value value) {
        QCOMPARE(row.slider->value(), qRound(double(value) / Row::unit));
    });
    for (const QString &step : steps.split(" | ")) {
        const QStringList words = step.section(": ", 0, 0).split(' ');
        const auto number = [&words](int i) { return words.value(i).toInt(); };
        const auto value = [&](int i) { return number(i) * Row::unit; };
        QMap<QString, std::function<void()>> actions {
            {"released", [&] { row.frame->setReleaseMode(true); }},
            {"sampled", [&] { row.frame->setTimeSamplingRate(60000); }},
            {"tick", [&] { tick(row.frame); }},
            {"timer", [&] { row.log.add(samplingInterval(row.frame) > 0 ? "runs" : "stands"); }},
            {"hold", [&] { User::grabHandle(row.slider); }},
            {"move", [] {}},
            {"drop", [&] { User::dropHandle(row.slider); }},
            {"groove", [&] { User::clickGroove(row.slider, number(1) > 0); }},
            {"hide", [&] { row.frame->setSliderVisible(false); }},
            {"leave",
             [&] {
                 QEvent leave(QEvent::Leave);
                 QApplication::sendEvent(row.slider, &leave);
             }},
            {"disable", [&] { row.frame->setEnabled(false); }},
            {"enable", [&] { row.frame->setEnabled(true); }},
            {"plus", [&] { User::click(row.plus); }},
            {"minus", [&] { User::click(row.minus); }},
            {"focus", [&] { row.spinBox->setFocus(); }},
            {"up", [&] { User::press(Qt::Key_Up); }},
            {"down", [&] { User::press(Qt::Key_Down); }},
            {"right", [&] { User::press(Qt::Key_Right); }},
            {"type", [&] { row.type(words[1]); }},
            {"wheel",
             [&] {
                 User::turnWheel(row.slider);
                 User::turnWheel(row.spinBox);
             }},
            {"wheelEnabled", [&] { row.frame->setSpinBoxWheelEnable(true); }},
            {"value", [&] { row.frame->setValue(value(1)); }},
            {"range", [&] { row.frame->setRange(value(1), value(2)); }},
            {"step", [&] { row.frame->setSingleStep(value(1)); }},
            {"page", [&] { row.frame->setPageStep(number(1)); }},
            {"direction", [&] { row.frame->setValueChangeDirection(number(1), int(value(2))); }},
            {"shown", [&] { row.log.add(row.shown().replace(' ', '/')); }},
            {"focused", [&] { row.log.add(row.frame->hasFocus() ? "editor" : "other"); }}};
        if constexpr (Row::isInt)
            actions["pressed"] = [&] { row.log.add(row.frame->isMousePressed() ? "yes" : "no"); };
        QVERIFY2(actions.contains(words[0]), qPrintable(step));
        actions[words[0]]();
        if (words[0] == "hold" || words[0] == "move") {
            for (int i = 1; i < words.size(); ++i)
                User::moveHandle(row.slider, number(i));
        }
        QStringList expected;
        if (step.contains(": ")) {
            for (const QString &word : step.section(": ", 1).split(' '))
                expected.append(entry(word));
        }
        const QStringList actual = row.log.take();
        QVERIFY2(actual == expected, qPrintable(step + " but was " + actual.join(' ')));
    }
}

inline void addRow(const QString &name, const QString &steps)
{
    QTest::newRow(qPrintable(name)) << steps;
}

// The sequences that are the same for both editors.
inline void addSequences()
{
    QTest::addColumn<QString>("steps");
    const QString modes[] = {"", "released | ", "sampled | "};
    for (const QString &mode : modes) {
        const QString hold =
            mode + (mode.isEmpty() ? "hold 20 60 40: 20 60 40 | " : "hold 20 60 40 | ");
        const QString last = mode.isEmpty() ? "" : ": 40";
        addRow(mode + "drag", hold + "drop" + last + " | shown: =40 | timer: stands");
        addRow(mode + "slider hidden in a drag",
               hold + "hide" + last + " | timer: stands | drop | shown: =40");
        // The handle is held by nobody any more.
        addRow(mode + "editor disabled in a drag",
               hold + "disable" + last + " | enable | move 70 | timer: stands | drop | shown: =40");
        addRow(mode + "dropped where taken",
               mode + "hold 30 10" + (mode.isEmpty() ? ": 30 10" : "") + " | drop | shown: =10");
        addRow(mode + "groove and keys",
               mode
                   + "page 20 | groove 1: 30 | right: 31 | groove 0: 11 | plus: 12 | "
                     "minus: 11 | minus: 10 | shown: =10");
    }
    addRow("ticks",
           "sampled | hold | timer: runs | tick | move 20 30 | tick: 30 | tick | "
           "move 50 30 | tick | move 40 | tick: 40 | drop | timer: stands | shown: =40");
    addRow("a host's value in a drag", "sampled | hold | value 50 | drop | shown: =50");
    const QString drag = " | hold 90 95 120 130: ";
    const QString before = "range 0 200 | value 100 | direction ";
    addRow("allowed to bigger", before + "2 100" + drag + "100 100 120 130 | drop | shown: =130");
    addRow("allowed to smaller", before + "4 100" + drag + "90 95 100 100 | drop | shown: =100");
    addRow("no direction", before + "0 100" + drag + "90 95 100 100 | drop | shown: =100");
    addRow("any direction", before + "6 100" + drag + "90 95 120 130 | drop | shown: =130");
    addRow("a held value is reported on every attempt",
           "direction 4 0 | plus: 0 | plus: 0 | shown: =0");
    // The last value is the one that was set, not the clamped one.
    addRow("a child's echo",
           "value 200 | range 0 300 | step 100 | focus | up | shown: "
           "=200/100 | down: 100 | shown: =100");
    addRow("wheel", "wheel: page page | wheelEnabled | wheel: page page | focus | wheel: page 11");
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
