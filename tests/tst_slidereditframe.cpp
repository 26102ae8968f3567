#include "editorrow.h"

#include <QtWidgets/QDoubleSpinBox>

using namespace Vantor::Widgets;

// The integer slider editor, and what its floating-point twin does alike.
class tst_SliderEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgets_data();
    void widgets() { run(); }
    void sequences_data();
    void sequences() { run(); }
    void samplingInRealTime();

private:
    static void run()
    {
        QFETCH(Check, check);
        check();
    }
};

namespace {

// What a host's layout and its style sheet find, as one text: layouts with
// spacing and margins, widgets with size limits and properties, a star where
// Tab and click lead to, the spacer with its policy.
QString layoutText(QLayoutItem *item)
{
    QString text;
    QDebug debug(&text);
    debug.noquote().nospace();
    if (const QWidget *widget = item->widget()) {
        debug << widget->objectName() << (widget->focusPolicy() == Qt::StrongFocus ? "* " : " ")
              << widget->minimumWidth() << ".." << widget->maximumWidth() << 'x'
              << widget->minimumHeight() << ".." << widget->maximumHeight();
        for (const QByteArray &name : widget->dynamicPropertyNames()) {
            if (!name.startsWith('_'))
                debug << ' ' << name.constData() << '=' << widget->property(name).toString();
        }
    } else if (const QSpacerItem *spacer = item->spacerItem()) {
        debug << "spacer " << spacer->sizeHint().width() << " policy "
              << int(spacer->sizePolicy().horizontalPolicy());
    } else {
        const QLayout *layout = item->layout();
        const QMargins margins = layout->contentsMargins();
        debug << layout->objectName() << ' ' << layout->spacing() << " [" << margins.left() << ' '
              << margins.top() << ' ' << margins.right() << ' ' << margins.bottom() << "] {";
        for (int i = 0; i < layout->count(); ++i)
            debug << (i > 0 ? ", " : "") << layoutText(layout->itemAt(i));
        debug << '}';
    }
    return text.replace("16777215", "max");
}

template <typename Row>
void compareForm(Row &row, const QString &label, const QString &spinBox, const QString &button)
{
    const QString expected("horizontalLayout_2 0 [0 0 0 0] {"
                           "nameLayout 0 [0 0 0 0] {labelName %1x0..max}, "
                           "sliderLayout 0 [0 0 0 0] {slider* 0..maxx0..max}, "
                           "spinBoxLayout 0 [0 0 0 0] {%2}, buttonLayout 0 [0 0 0 0] {"
                           "sliderEditSubtract* %3 isSliderEditSubtract=true, "
                           "sliderEditPlus* %3 isSliderEditPlus=true, spacer 0 policy 0}}");
    QCOMPARE(layoutText(row.frame->layout()), expected.arg(label, spinBox, button));
    QCOMPARE(row.frame->objectName(), row.isInt ? "SliderEditFrame" : "SliderEditFrameDouble");
    QCOMPARE(row.frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(row.frame->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(row.label->buddy(), row.slider);
    QCOMPARE(row.spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

template <typename Row> void compareLayout(Row &row, std::initializer_list<const char *> parts)
{
    const QString text = layoutText(row.frame->layout());
    for (const char *part : parts)
        QVERIFY2(text.contains(part), qPrintable(part + (" is not in " + text)));
}

template <typename Row> void compareSetters(Row &row)
{
    auto &frame = *row.frame;
    frame.setLabelText("Gain");
    QCOMPARE(frame.labelText(), QString("Gain"));
    QStringList names {row.label->text()};
    for (const QWidget *widget :
         QWidgetList({row.frame, row.slider, row.spinBox, row.minus, row.plus}))
        names.append(widget->accessibleName());
    QCOMPARE(names.join(", "), QString("Gain, Gain, Gain, Gain, Gain \u2212, Gain +"));
    frame.setSliderProperty("channel", 3);
    QCOMPARE(row.slider->property("channel"), QVariant(3));

    frame.layout()->itemAt(2)->layout()->setContentsMargins(1, 2, 3, 4);
    frame.setHorizontalSpacing(5, 7);
    frame.setLabelWidthRange(90, 40);
    frame.setButtonWidthRange(60, 20);
    frame.setSpinBoxFixedWidth(33);
    frame.setSliderVisible(false);
    QVERIFY(row.slider->isHidden());
    compareLayout(row,
                  {"nameLayout 0 [0 0 5 0] {labelName 40..90x", "sliderLayout 0 [0 0 7 0]",
                   "spinBoxLayout 0 [1 2 7 4]", "pinBox* 33..33x", "sliderEditSubtract* 20..60x",
                   "sliderEditPlus* 20..60x", "spacer 20 policy 7"});
    frame.setSpinBoxWidthRange(80, 50);
    frame.setLabelFixedWidth(31);
    frame.setButtonFixedWidth(32);
    frame.setSliderVisible(true);
    QVERIFY(!row.slider->isHidden());
    compareLayout(row,
                  {"labelName 31..31x", "pinBox* 50..80x", "sliderEditSubtract* 32..32x",
                   "sliderEditPlus* 32..32x", "spacer 0 policy 13"});
    if constexpr (Row::isInt) {
        frame.setButtonVisible(false);
        QVERIFY(row.minus->isHidden() && row.plus->isHidden());
        frame.setSingleStep(5);
        QCOMPARE(frame.singleStep(), 5);
        QCOMPARE(row.slider->singleStep(), 5);
    }
    QCOMPARE(row.log.take(), QStringList());
}

// Release mode switches the buttons' repetition off, leaving it and sampling on.
template <typename Row> void compareAutoRepeat(Row &row)
{
    auto &frame = *row.frame;
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
    QCOMPARE(row.log.take().mid(0, 3),
             QStringList({row.report(11), row.report(12), row.report(13)}));
}

// Under a host's own signal block no setter ends it; without one the children
// report nothing either.
template <typename Row> void compareSilence(Row &row)
{
    using SpinBox = std::conditional_t<Row::isInt, QSpinBox, QDoubleSpinBox>;
    auto &frame = *row.frame;
    row.log.watch(qobject_cast<SpinBox *>(row.spinBox),
                  QOverload<typename Row::Value>::of(&SpinBox::valueChanged), "spinBox");
    row.log.watch(row.slider, &QSlider::valueChanged, "slider");
    for (const bool isBlocked : {true, false}) {
        row.spinBox->blockSignals(isBlocked);
        row.slider->blockSignals(isBlocked);
        frame.setRange(0, 50 * Row::unit);
        frame.setValue(70 * Row::unit);
        frame.setRange(5 * Row::unit, 40 * Row::unit);
        frame.setSingleStep(2 * Row::unit);
        if constexpr (!Row::isInt) {
            frame.setMaximum(0.3);
            frame.setMinimum(0.4);
            frame.setDecimals(1);
            frame.setDecimals(2);
        }
        QCOMPARE(row.spinBox->signalsBlocked(), isBlocked);
        QCOMPARE(row.slider->signalsBlocked(), isBlocked);
    }
    QCOMPARE(row.log.take(), QStringList());
    QCOMPARE(row.shown(), QString(Row::isInt ? "40 40" : "0.40 40"));
}

// Clicking or tabbing into the field selects its text, unless it was disabled
// meanwhile or is gone.
template <typename Row> void compareSelectAll(Row &row)
{
    const QString text = row.spinBox->text();
    row.slider->setFocus();
    User::press(Qt::Key_Tab);
    QTRY_COMPARE(row.field->selectedText(), text);
    row.frame->setFocus();
    row.field->deselect();
    User::click(row.spinBox);
    QTRY_COMPARE(row.field->selectedText(), text);
    // At the spin box's own edge, around its field.
    row.field->deselect();
    QTest::mouseClick(row.spinBox, Qt::LeftButton, {}, QPoint(row.spinBox->width() / 2, 1));
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

} // namespace

void tst_SliderEditFrame::widgets_data()
{
    QTest::addColumn<Check>("check");
    QTest::newRow("int, form") << checkOf<SliderEditFrame>([](auto &row) {
        compareForm(row, "0..max", "spinBox* 65..65x30..30 Quelmo_VK=Vk_Number", "49..49x30..30");
    });
    QTest::newRow("double, form") << checkOf<SliderEditFrameDouble>([](auto &row) {
        compareForm(row, "80..80", "doubleSpinBox* 65..65x30..30 Quelmo_VK=Vk_NumberFloat",
                    "51..51x32..32");
    });
    addForBoth("setters", [](auto &row) { compareSetters(row); });
    addForBoth("auto-repeat", [](auto &row) { compareAutoRepeat(row); });
    addForBoth("silence", [](auto &row) { compareSilence(row); });
    addForBoth("select all", [](auto &row) { compareSelectAll(row); });
}

namespace {

// One of the actions below; its words are the name and numbers.
template <typename Row> void perform(Row &row, const QStringList &words)
{
    using Unit = typename Row::Value;
    auto *const frame = row.frame;
    const auto number = [&words](int i) { return words.value(i).toInt(); };
    const auto value = [&](int i) { return static_cast<Unit>(number(i) * Row::unit); };
    const QMap<QString, std::function<void()>> actions {
        {"released", [&] { setMode(frame, Released); }},
        {"sampled", [&] { setMode(frame, Sampled); }},
        {"tick", [&] { tick(frame); }},
        {"timer", [&] { row.log.add(samplingInterval(frame) > 0 ? "runs" : "stands"); }},
        {"hold", [&] { User::grabHandle(row.slider); }},
        {"move", [] {}},
        {"drop", [&] { User::dropHandle(row.slider); }},
        {"groove", [&] { User::clickGroove(row.slider, number(1) > 0); }},
        {"hide", [&] { frame->setSliderVisible(false); }},
        {"leave",
         [&] {
             QEvent leave(QEvent::Leave);
             QApplication::sendEvent(row.slider, &leave);
         }},
        {"disable", [&] { frame->setEnabled(false); }},
        {"enable", [&] { frame->setEnabled(true); }},
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
        {"wheelEnabled", [&] { frame->setSpinBoxWheelEnable(true); }},
        {"value", [&] { frame->setValue(value(1)); }},
        {"range", [&] { frame->setRange(value(1), value(2)); }},
        {"step", [&] { frame->setSingleStep(value(1)); }},
        {"page", [&] { frame->setPageStep(number(1)); }},
        {"direction", [&] { frame->setValueChangeDirection(number(1), int(value(2))); }},
        {"shown", [&] { row.log.add(row.shown()); }},
        {"focused", [&] { row.log.add(frame->hasFocus() ? "editor" : "other"); }},
        {"pressed", [&] {
             if constexpr (Row::isInt)
                 row.log.add(frame->isMousePressed() ? "yes" : "no");
         }}};
    QVERIFY2(actions.contains(words[0]), qPrintable(words[0]));
    actions[words[0]]();
    for (int i = 1; i < words.size() && (words[0] == "hold" || words[0] == "move"); ++i)
        User::moveHandle(row.slider, number(i));
}

// Plays "hold 20 60: 20 60 | drop": what is done and, behind the colon, what
// comes of it. Numbers are slider positions, of reports too; "=40" is a spin box
// and a slider that show it, "=40/39" where they differ. "finished" and "left"
// are the messages of an entry, "page" a turn of the wheel that reached the page.
template <typename Row> void play(Row &row, const QString &steps)
{
    const auto entry = [](const QString &word) {
        const QMap<QString, QString> messages {{"finished", "debug: SpinBox editing finished"},
                                               {"left", "debug: SpinBox lose focus."},
                                               {"page", "page: wheel"}};
        const QStringList parts = word.mid(word.startsWith('=')).split('/');
        bool isNumber = false;
        const auto value = static_cast<typename Row::Value>(parts[0].toInt(&isNumber) * Row::unit);
        if (word.startsWith('='))
            return QString::number(value, 'f', Row::isInt ? 0 : 2) + ' ' + parts.last();
        return isNumber ? QStringLiteral("valueChanged(%1)").arg(value)
                        : messages.value(word, word);
    };
    // A receiver finds the children updated.
    QObject::connect(
        row.frame, &std::remove_pointer_t<decltype(row.frame)>::valueChanged,
        [&row](auto value) { QCOMPARE(row.slider->value(), qRound(double(value) / Row::unit)); });
    for (const QString &step : steps.split(" | ")) {
        perform(row, step.section(": ", 0, 0).split(' '));
        QStringList expected;
        if (step.contains(": ")) {
            for (const QString &word : step.section(": ", 1).split(' '))
                expected.append(entry(word));
        }
        const QStringList actual = row.log.take();
        QVERIFY2(actual == expected, qPrintable(step + " but was " + actual.join(' ')));
    }
}

void addInt(const QString &name, const QString &steps)
{
    QTest::newRow(qPrintable("int, " + name))
        << checkOf<SliderEditFrame>([steps](auto &row) { play(row, steps); });
}

void addDouble(const QString &name, const QString &steps)
{
    QTest::newRow(qPrintable("double, " + name))
        << checkOf<SliderEditFrameDouble>([steps](auto &row) { play(row, steps); });
}

void addBoth(const QString &name, const QString &steps)
{
    addInt(name, steps);
    addDouble(name, steps);
}

} // namespace

void tst_SliderEditFrame::sequences_data()
{
    QTest::addColumn<Check>("check");
    for (const QString mode : {"", "released | ", "sampled | "}) {
        const bool isAtOnce = mode.isEmpty();
        const QString hold = mode + (isAtOnce ? "hold 20 60 40: 20 60 40 | " : "hold 20 60 40 | ");
        const QString last = isAtOnce ? "" : ": 40";
        addBoth(mode + "drag", hold + "drop" + last + " | shown: =40 | timer: stands");
        addBoth(mode + "slider hidden in a drag",
                hold + "hide" + last + " | timer: stands | drop | shown: =40");
        // The handle is held by nobody any more.
        addBoth(mode + "editor disabled in a drag",
                hold + "disable" + last
                    + " | enable | move 70 | timer: stands | drop | shown: =40");
        addBoth(mode + "dropped where taken",
                mode + "hold 30 10" + (isAtOnce ? ": 30 10" : "") + " | drop | shown: =10");
        addBoth(mode + "groove and keys",
                mode
                    + "page 20 | groove 1: 30 | right: 31 | groove 0: 11 | plus: 12 | "
                      "minus: 11 | minus: 10 | shown: =10");
    }
    addBoth("ticks",
            "sampled | hold | timer: runs | tick | move 20 30 | tick: 30 | tick | "
            "move 50 30 | tick | move 40 | tick: 40 | drop | timer: stands | shown: =40");
    addBoth("a host's value in a drag", "sampled | hold | value 50 | drop | shown: =50");
    const QString drag = " | hold 90 95 120 130: ";
    const QString before = "range 0 200 | value 100 | direction ";
    addBoth("allowed to bigger", before + "2 100" + drag + "100 100 120 130 | drop | shown: =130");
    addBoth("no direction", before + "0 100" + drag + "90 95 100 100 | drop | shown: =100");
    addBoth("a held value is reported on every attempt",
            "direction 4 0 | plus: 0 | plus: 0 | shown: =0");
    // The last value is the one that was set, not the clamped one.
    addBoth("a child's echo",
            "value 200 | range 0 300 | step 100 | focus | up | shown: "
            "=200/100 | down: 100 | shown: =100");
    addBoth("a host's value replaces an entry", "type 5 | value 10 | shown: =10");
    addBoth("wheel, disabled", "focus | wheel: page page");
    addBoth("wheel", "wheel: page page | wheelEnabled | wheel: page page | focus | wheel: page 11");

    const QString finished = ": finished finished ";
    const QString left = " finished left | focused: editor | shown: =";
    addInt("expression", "type 12*3\n" + finished + "36" + left + "36");
    addInt("the same value", "type 5*2\n: finished finished" + left + "10");
    addInt("below the range", "type -5\n" + finished + "0" + left + "0");
    addInt("failing expression", "type 1/0\n: finished finished" + left + "10");
    addInt("equals", "type 12*3=: finished 36 finished left | shown: =36");
    addInt("Tab", "type 12*3\t: finished 36 finished | shown: =36");
    addInt("the calculator learns bounds with a value",
           "range 0 300 | type 250\n" + finished
               + "100 finished left | "
                 "type 250\n"
               + finished + "250 finished left | shown: =250");
    addInt("a clamped value is reported when editing ends",
           "value 500 | type \t: finished 100 finished | shown: =100");
    addInt("a failed entry after the range shrank",
           "range 0 243 | value 243 | range 0 191 | "
           "type 1/0\n: finished 191 finished finished left | shown: =191");
    addInt("sampled without release mode",
           "sampled | released | hold 20 40 | tick | shown: =10 | drop: 40");
    for (const QString end : {"drop", "focus", "hide", "disable", "leave"})
        addInt("pressed until " + end,
               "pressed: no | hold | pressed: yes | " + end + " | pressed: no");
    addInt("minus at the minimum", "step 5 | value 5 | minus: 0 | value 3 | minus | shown: =3");
    addInt("plus at the maximum", "step 5 | value 95 | plus: 100 | value 97 | plus | shown: =97");
    const QString wide = "range -2147483648 2147483647 | step 5 | value ";
    addInt("minus past int", wide + "-2147483645 | minus | shown: =-2147483645");
    addInt("plus past int", wide + "2147483644 | plus | shown: =2147483644");

    // No message goes to Qt's log; after "=" the focus stays, so does the value.
    addDouble("expression", "type 1/4\n: 25 | focused: editor | shown: =25");
    addDouble("Tab", "type 1/4\t: 25 | focused: other | shown: =25");
    addDouble("equals", "type 1/4= | focused: other | shown: =25/10");
    addDouble("third decimal", "type 0.259\n: 25 | shown: =25");
    addDouble("the same value", "type 0.1\n | focused: editor | shown: =10");
    addDouble("above the range", "type 9\n: 100 | shown: =100");
    addDouble("failing expression", "type 1/0\n | focused: editor | shown: =10");
    addDouble("a value that the field rounds",
              "value 57 | type \t | shown: =57"); // 57 * 0.01 > 0.57
    addDouble("the spin box follows in release mode",
              "released | hold 20 40 | shown: =40 | drop: 40");
    addDouble("plus at the maximum",
              "step 10 | value 90 | plus: 100 | value 95 | plus | shown: =95");
    addDouble("minus onto the minimum", "step 10 | minus: 0 | shown: =0");
    // 0.2 + 0.1 comes out just above 0.3, 0.3 - 0.1 just below 0.2.
    addDouble("plus within the tolerance",
              "step 10 | range 0 30 | value 20 | plus: 30 | shown: =30");
    addDouble("minus without tolerance", "step 10 | range 20 99 | value 30 | minus | shown: =30");
}

void tst_SliderEditFrame::samplingInRealTime()
{
    EditorRow<SliderEditFrame> row;
    QVERIFY(User::show(row.page));
    row.log.take();
    row.frame->setTimeSamplingRate(5);
    User::grabHandle(row.slider);
    User::moveHandle(row.slider, 40);
    QStringList log;
    QTRY_COMPARE(log += row.log.take(), QStringList(row.report(40)));
    User::dropHandle(row.slider);
    QCOMPARE(row.log.take(), QStringList());
}

int main(int argc, char *argv[])
{
    return runTest<tst_SliderEditFrame>(argc, argv);
}

#include "tst_slidereditframe.moc"
