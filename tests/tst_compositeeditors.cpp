#include "edituser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QLayout>

using namespace Vantor::Widgets;

// What every composite editor does alike with its rows: the operations that a
// type flag sends to one row, those that reach all rows, visibility and spacing.
class tst_CompositeEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows();
    void spacing();
    void spacingOfPanels();
};

namespace {

// A row as host and user find it. Drag and wheel are slow to try out.
using Settings = QMap<QString, QString>;

Settings settingsOf(const Row &row, bool withGestures)
{
    const auto widths = [](const QWidget *widget) {
        return limits(widget->minimumWidth(), widget->maximumWidth());
    };
    const auto right = [&row](const char *layout) {
        return row.frame->findChild<QLayout *>(layout)->contentsMargins().right();
    };
    const auto both = [](const auto &first, const auto &second) {
        return QStringLiteral("%1,%2").arg(first).arg(second);
    };
    Settings settings {
        {"text", row.label->text()},
        {"labelWidth", widths(row.label)},
        {"buttonWidths", both(widths(row.minus), widths(row.plus))},
        {"spinBoxWidth", widths(row.spinBox)},
        {"spacings", both(right("nameLayout"), right("sliderLayout"))},
        {"value", row.spinBox->text()},
        {"range", limits(row.frame->minimum(), row.frame->maximum())},
        {"pageStep", QString::number(row.slider->pageStep())},
        {"repeat", both(row.minus->autoRepeat(), row.plus->autoRepeat())},
        {"delay", both(row.minus->autoRepeatDelay(), row.plus->autoRepeatDelay())},
        {"interval", both(row.minus->autoRepeatInterval(), row.plus->autoRepeatInterval())}};
    const int value = row.frame->value();
    row.frame->setValue(20);
    User::click(row.plus);
    settings["plus"] = QString::number(row.frame->value());
    if (withGestures) {
        // While the user holds the handle away from the value.
        row.frame->setValue(20);
        User::grabHandle(row.slider);
        User::moveHandle(row.slider, row.slider->maximum());
        settings["drag"] = row.frame->value() == 20 ? "kept" : "followed";
        settings["sampling"] = QString::number(samplingInterval(row.frame));
        User::dropHandle(row.slider);
        row.frame->setValue(20);
        User::click(row.spinBox);
        User::turnWheel(row.spinBox);
        settings["wheel"] = row.frame->value() == 20 ? "stays" : "turns";
    }
    row.frame->setValue(value);
    return settings;
}

// An operation and what it makes of a row, "delay=321,321": of the row that the
// flag names, or of all rows where there is no warning for a wrong flag.
template <typename Frame> struct Operation
{
    const char *name;
    QString warning;
    std::function<void(Frame &, typename Frame::Type)> call;
    QString result;
};

template <typename Frame> QVector<Operation<Frame>> operations()
{
    using F = Frame;
    using T = typename Frame::Type;
    const bool isRect = std::is_base_of<RectEditFrame, Frame>::value;
    const QString set = isRect ? "Set Rect " : "Set RGB ";
    return {
        {"setLabelText", isRect ? "Set Rect label text" : "Set RGBAll label text",
         [](F &f, T t) { f.setLabelText(t, "Gain"); }, "text=Gain"},
        {"setLabelWidthRange", set + "label width range",
         [](F &f, T t) { f.setLabelWidthRange(t, 90, 20); }, "labelWidth=20..90"},
        {"setLabelFixedWidth", set + "label fixed width",
         [](F &f, T t) { f.setLabelFixedWidth(t, 33); }, "labelWidth=33..33"},
        {"setButtonWidthRange", set + "button width range",
         [](F &f, T t) { f.setButtonWidthRange(t, 60, 30); }, "buttonWidths=30..60,30..60"},
        {"setButtonFixedWidth", set + "button fixed width",
         [](F &f, T t) { f.setButtonFixedWidth(t, 41); }, "buttonWidths=41..41,41..41"},
        {"setSpinBoxWidthRange", set + "spinbox width range",
         [](F &f, T t) { f.setSpinBoxWidthRange(t, 80, 40); }, "spinBoxWidth=40..80"},
        {"setSpinBoxFixedWidth", set + "spinbox fixed width",
         [](F &f, T t) { f.setSpinBoxFixedWidth(t, 72); }, "spinBoxWidth=72..72"},
        {"setValue", set + "value", [](F &f, T t) { f.setValue(t, 77); }, "value=77"},
        {"setRange", isRect ? "Set Rect value range" : "Set RGB range",
         [](F &f, T t) { f.setRange(t, 0, 110); }, "range=0..110"},
        {"setSingleStep", set + "single step", [](F &f, T t) { f.setSingleStep(t, 3); }, "plus=23"},
        {"setPageStep", set + "page step", [](F &f, T t) { f.setPageStep(t, 7); }, "pageStep=7"},
        {"setHorizontalSpacing", "", [](F &f, T) { f.setHorizontalSpacing(17, 23); },
         "spacings=17,23"},
        {"setSpinBoxWheelEnable", "", [](F &f, T) { f.setSpinBoxWheelEnable(true); },
         "wheel=turns"},
        {"setAutoRepeat", "", [](F &f, T) { f.setAutoRepeat(true); }, "repeat=1,1"},
        {"setAutoRepeatDelay", "", [](F &f, T) { f.setAutoRepeatDelay(321); }, "delay=321,321"},
        {"setAutoRepeatInterval", "", [](F &f, T) { f.setAutoRepeatInterval(45); },
         "interval=45,45"},
        {"setReleaseMode", "", [](F &f, T) { f.setReleaseMode(true); }, "drag=kept"},
        {"setTimeSamplingRate", "", [](F &f, T) { f.setTimeSamplingRate(60000); },
         "sampling=60000 repeat=1,1"},
    };
}

// A row's own flag changes that row alone, any other value nothing, and is
// reported in the name of the operation, which may be another class's.
template <typename Frame>
void checkOperation(const Operation<Frame> &operation, const QString &reporter)
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    QVERIFY(User::show(frame));
    EventLog log;
    log.watch(&frame, &Frame::valueChanged, "valueChanged");
    const bool isForAll = operation.warning.isEmpty();
    QMap<int, Settings> expected;
    for (auto row = rows.begin(); row != rows.end(); ++row)
        expected[row.key()] = settingsOf(*row, isForAll);
    const QList<int> flags =
        isForAll ? QList<int>({30}) : QList<int>({-2, 0, 1, 2, 4, 8, 16, 3, 6, 24, 30, 32, 64});
    for (const int flag : flags) {
        frame.setEditerVisible(0); // hidden rows are set as well
        log.take(); // what the readings caused
        operation.call(frame, static_cast<typename Frame::Type>(flag));
        QStringList warnings;
        if (!isForAll && !rows.contains(flag)) {
            warnings.append("warning: " + operation.warning + " has failed. The type  "
                            + QString::number(flag) + "  is invalid.");
            for (const QString &part :
                 {reporter.toLower() + ".cpp ", reporter + "::" + operation.name + '(',
                  QString(" default")})
                QVERIFY2(log.lastContext().contains(part), qPrintable(log.lastContext()));
        }
        QCOMPARE(log.take(), warnings);
        frame.setEditerVisible(30);
        QCoreApplication::processEvents();
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            if (isForAll || flag == row.key()) {
                for (const QString &setting : operation.result.split(' '))
                    expected[row.key()][setting.section('=', 0, 0)] = setting.section('=', 1);
            }
            QCOMPARE(settingsOf(*row, isForAll), expected[row.key()]);
        }
    }
}

template <typename Frame> void checkVisibility()
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    for (int i = 0; i < 64; ++i) {
        const int types = i * 37 % 64;
        frame.setEditerVisible(types);
        for (auto row = rows.begin(); row != rows.end(); ++row)
            QCOMPARE(row->frame->isVisibleTo(&frame), (types & row.key()) != 0);
    }
}

// The spacer at the end of the editor's layout.
QString lastSpacer(const QWidget &editor)
{
    const QLayout *layout = editor.layout();
    const QSpacerItem *spacer = layout->itemAt(layout->count() - 1)->spacerItem();
    const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    return QStringLiteral("%1x%2 %3 %4")
        .arg(spacer->sizeHint().width())
        .arg(spacer->sizeHint().height())
        .arg(policies.valueToKey(spacer->sizePolicy().horizontalPolicy()))
        .arg(policies.valueToKey(spacer->sizePolicy().verticalPolicy()));
}

template <typename Frame> void checkLastSpacer()
{
    Frame frame;
    frame.setLastVerticalSpacerExpanding(false);
    QCOMPARE(lastSpacer(frame), QString("20x0 Expanding Ignored"));
    frame.setLastVerticalSpacerExpanding(true);
    QCOMPARE(lastSpacer(frame), QString("20x20 Expanding Expanding"));
}

// Holds the handle of each row in turn.
template <typename Frame> void checkMousePressed()
{
    Frame frame;
    QVERIFY(User::show(frame));
    for (const Row &row : rowsOf(frame)) {
        QVERIFY(!frame.isMousePressed());
        User::grabHandle(row.slider);
        QVERIFY(frame.isMousePressed());
        User::dropHandle(row.slider);
    }
    QVERIFY(!frame.isMousePressed());
}

// The class whose warnings it shows may be another one's.
template <typename Frame>
void addChecks(const char *reporter, const QVector<Operation<Frame>> &furtherOperations = {})
{
    const QByteArray name = QByteArray(Frame::staticMetaObject.className()).split(':').last();
    for (const auto &operation : operations<Frame>() + furtherOperations) {
        QTest::addRow("%s::%s", name.constData(), operation.name)
            << Check([=] { checkOperation(operation, reporter); });
    }
    QTest::addRow("%s::setEditerVisible", name.constData()) << Check(checkVisibility<Frame>);
    QTest::addRow("%s::setLastVerticalSpacerExpanding", name.constData())
        << Check(checkLastSpacer<Frame>);
}

} // namespace

void tst_CompositeEditors::rows_data()
{
    QTest::addColumn<Check>("check");
    addChecks<RGBEditFrame>("RGBEditFrame");
    addChecks<RGBAllEditFrame>("RGBEditFrame");
    addChecks<RGBOpacityEditFrame>("RGBEditFrame");
    const auto hold = [](RectEditFrame &frame, RectEditFrame::Type type) {
        frame.setValueChangeDirection(type, SliderEditFrame::AllowedToSmaller, 20);
    };
    addChecks<RectEditFrame>(
        "RectEditFrame",
        {{"setValueChangeDirection", "Set Rect value change direction", hold, "plus=20"}});
    QTest::newRow("RGBEditFrame::isMousePressed") << Check(checkMousePressed<RGBEditFrame>);
    QTest::newRow("RectEditFrame::isMousePressed") << Check(checkMousePressed<RectEditFrame>);
}

void tst_CompositeEditors::rows()
{
    QFETCH(Check, check);
    check();
}

void tst_CompositeEditors::spacing()
{
    const auto block = [](QWidget &frame) { return frame.findChild<RGBEditFrame *>(); };
    RGBEditFrame rgb;
    RGBAllEditFrame all;
    RGBOpacityEditFrame opacity;
    QCOMPARE(lastSpacer(rgb), QString("20x20 Minimum Expanding"));
    QCOMPARE(lastSpacer(all), QString("20x20 Minimum Preferred"));
    QCOMPARE(lastSpacer(*block(all)), QString("20x20 Minimum Expanding"));
    QCOMPARE(lastSpacer(opacity), QString("20x277 Minimum Expanding"));
    QCOMPARE(lastSpacer(*block(opacity)), QString("20x0 Expanding Ignored"));
    all.setLastVerticalSpacerExpanding(false);
    QCOMPARE(lastSpacer(*block(all)), QString("20x20 Minimum Expanding"));
    opacity.setLastVerticalSpacerExpanding(true);
    QCOMPARE(lastSpacer(*block(opacity)), QString("20x0 Expanding Ignored"));

    rgb.setVerticalSpacing(9);
    QCOMPARE(rgb.layout()->spacing(), 9);
    all.setVerticalSpacing(6);
    QCOMPARE(all.layout()->spacing(), 6);
    QCOMPARE(block(all)->layout()->spacing(), 0);
    opacity.setVerticalSpacing(4);
    QCOMPARE(opacity.layout()->spacing(), 4);
    QCOMPARE(block(opacity)->layout()->spacing(), 4);
}

void tst_CompositeEditors::spacingOfPanels()
{
    RectEditFrame frame;
    const auto spacings = [&frame] {
        QList<int> values {frame.layout()->spacing()};
        for (const char *panel : {"framePosition", "frameSize"})
            values.append(frame.findChild<QFrame *>(panel)->layout()->spacing());
        for (const char *column : {"verticalLayoutFramePosition", "verticalLayoutFrameSize"})
            values.append(frame.findChild<QLayout *>(column)->spacing());
        return values;
    };
    QCOMPARE(spacings(), QList<int>({0, 0, 0, 0, 0}));
    frame.setVerticalSpacing(8);
    QCOMPARE(spacings(), QList<int>({8, 8, 8, 0, 0}));
    frame.setHorizontalSpacing(3, 5);
    QCOMPARE(spacings(), QList<int>({8, 5, 5, 0, 0}));
    QCOMPARE(lastSpacer(frame), QString("20x14 Minimum Expanding"));
}

int main(int argc, char *argv[])
{
    return runTest<tst_CompositeEditors>(argc, argv);
}

#include "tst_compositeeditors.moc"
