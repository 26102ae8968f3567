#include "editoruser.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtWidgets/QLayout>

using namespace Vantor::Widgets;

// What every composite editor does alike with its rows: the operations that a
// type flag sends to one row, those that reach all rows, visibility and form. The
// colour editors report and read their values here, too.
class tst_CompositeEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows() { runCheck(); }
    void spacing();
    void blockKeepsItsRows();
    void labelMaxLength();
};

namespace {

// A row as host and user find it.
QStringList settingsOf(const EditorRow &row)
{
    const auto widths = [](const QWidget *widget) {
        return limits(widget->minimumWidth(), widget->maximumWidth());
    };
    const auto right = [&row](const char *layout) {
        return QString::number(row.frame->findChild<QLayout *>(layout)->contentsMargins().right());
    };
    const int value = row.whole->value();
    QStringList settings {"text=" + row.label->text(),
                          "label=" + widths(row.label),
                          "plus=" + widths(row.plus),
                          "box=" + widths(row.spinBox),
                          "gaps=" + right("nameLayout") + ',' + right("sliderLayout"),
                          "value=" + row.spinBox->text(),
                          "range=" + limits(row.slider->minimum(), row.slider->maximum()),
                          "pageStep=" + QString::number(row.slider->pageStep()),
                          "repeat=" + QString::number(row.plus->autoRepeat()),
                          "delay=" + QString::number(row.plus->autoRepeatDelay()),
                          "interval=" + QString::number(row.plus->autoRepeatInterval())};
    row.whole->setValue(20);
    User::click(row.plus);
    settings.append("step=" + QString::number(row.whole->value() - 20));
    row.whole->setValue(20);
    User::grabHandle(row.slider);
    User::moveHandle(row.slider, row.slider->maximum());
    settings.append(row.whole->value() == 20 ? "drag=kept" : "drag=followed");
    settings.append("ticks=" + QString::number(samplingInterval(row.frame)));
    User::dropHandle(row.slider);
    row.whole->setValue(20);
    User::click(row.spinBox);
    User::turnWheel(row.spinBox);
    settings.append(row.whole->value() == 20 ? "wheel=stays" : "wheel=turns");
    row.whole->setValue(value);
    return settings;
}

template <typename Frame> constexpr bool isRect = std::is_same_v<Frame, RectEditFrame>;

// An operation by the end of its warning, what it makes of a row, and how it is called.
template <typename Frame> struct Operation
{
    QString name;
    QString result;
    std::function<void(Frame &, typename Frame::Type)> call;
    bool isForAll = false;
};

template <typename F, typename T = typename F::Type> QVector<Operation<F>> operationsOf()
{
    QVector<Operation<F>> operations {
        {isRect<F> ? " label text" : "All label text", "text=Gain",
         [](F &f, T t) { f.setLabelText(t, "Gain"); }},
        {" label width range", "label=20..90", [](F &f, T t) { f.setLabelWidthRange(t, 90, 20); }},
        {" label fixed width", "label=33..33", [](F &f, T t) { f.setLabelFixedWidth(t, 33); }},
        {" button width range", "plus=30..60", [](F &f, T t) { f.setButtonWidthRange(t, 60, 30); }},
        {" button fixed width", "plus=41..41", [](F &f, T t) { f.setButtonFixedWidth(t, 41); }},
        {" spinbox width range", "box=40..80",
         [](F &f, T t) { f.setSpinBoxWidthRange(t, 80, 40); }},
        {" spinbox fixed width", "box=72..72", [](F &f, T t) { f.setSpinBoxFixedWidth(t, 72); }},
        {" value", "value=77", [](F &f, T t) { f.setValue(t, 77); }},
        {isRect<F> ? " value range" : " range", "range=0..110",
         [](F &f, T t) { f.setRange(t, 0, 110); }},
        {" single step", "step=3", [](F &f, T t) { f.setSingleStep(t, 3); }},
        {" page step", "pageStep=7", [](F &f, T t) { f.setPageStep(t, 7); }},
        {" spacing", "gaps=17,23", [](F &f, T) { f.setHorizontalSpacing(17, 23); }, true},
        {" wheel", "wheel=turns", [](F &f, T) { f.setSpinBoxWheelEnable(true); }, true},
        {" repeat", "repeat=1", [](F &f, T) { f.setAutoRepeat(true); }, true},
        {" repeat delay", "delay=321", [](F &f, T) { f.setAutoRepeatDelay(321); }, true},
        {" repeat interval", "interval=45", [](F &f, T) { f.setAutoRepeatInterval(45); }, true},
        {" release mode", "drag=kept", [](F &f, T) { f.setReleaseMode(true); }, true},
        {" sampling", "repeat=1 ticks=50000", [](F &f, T) { f.setTimeSamplingRate(50000); }, true}};
    if constexpr (isRect<F>) {
        const int directions = SliderEditFrame::AllowedToSmaller;
        operations.append({" value change direction", "step=0 drag=kept",
                           [](F &f, T t) { f.setValueChangeDirection(t, directions, 20); }});
    }
    return operations;
}

// A row's own flag changes that row alone, any other value nothing, and is
// reported in the name of the operation, which may be another class's.
template <typename Frame> void checkOperation(const Operation<Frame> &operation)
{
    UserOf<Frame> user;
    QVector<QStringList> settings;
    for (const EditorRow &row : user.rows)
        settings.append(settingsOf(row));
    const QString warning = QString(isRect<Frame> ? "warning: Set Rect" : "warning: Set RGB")
        + operation.name + " has failed. The type  %1  is invalid.";
    const QList<int> flags {2, 4, 8, 16, -2, 0, 6};
    for (int i = 0; i < (operation.isForAll ? 1 : flags.size()); ++i) {
        user.frame->setEditerVisible(0); // hidden rows are set as well
        user.heard(); // what the readings caused
        operation.call(*user.frame, static_cast<typename Frame::Type>(flags[i]));
        const bool isWrong = !operation.isForAll && i >= user.rows.size();
        QCOMPARE(user.heard(), isWrong ? warning.arg(flags[i]) : QString());
        const QString reporter = isRect<Frame> ? "RectEditFrame" : "RGBEditFrame";
        for (const QString &part :
             {reporter.toLower() + ".cpp ", reporter + "::set", QString(" default")})
            QVERIFY(!isWrong || user.log.lastContext().contains(part));
        user.frame->setEditerVisible(30);
        QCoreApplication::processEvents();
        for (int row = 0; row < user.rows.size(); ++row) {
            const QStringList before = settings[row];
            settings[row] = settingsOf(user.rows[row]);
            QStringList changes = settings[row];
            for (const QString &setting : before)
                changes.removeOne(setting);
            const bool isNamed = operation.isForAll || row == i;
            QCOMPARE(changes.join(' '), isNamed ? operation.result : QString());
        }
    }
}

// A panel or block is hidden as a whole when none of its rows is asked for.
template <typename Frame> void checkVisibility()
{
    UserOf<Frame> user;
    for (int i = 0; i < 64; ++i) {
        const int types = i * 37 % 64;
        user.frame->setEditerVisible(types);
        QMap<QWidget *, bool> panels {{user.frame, true}};
        for (int row = 0; row < user.rows.size(); ++row) {
            const bool isShown = (types & 2 << row) != 0;
            QCOMPARE(user.rows[row].frame->isVisible(), isShown);
            panels[user.rows[row].frame->parentWidget()] |= isShown;
        }
        for (auto panel = panels.begin(); panel != panels.end(); ++panel)
            QCOMPARE(panel.key()->isVisible(), panel.value());
    }
}

// Holds the handle of each row in turn.
template <typename Frame> void checkMousePressed()
{
    UserOf<Frame> user;
    for (const EditorRow &row : user.rows) {
        QVERIFY(!user.frame->isMousePressed());
        User::grabHandle(row.slider);
        QVERIFY(user.frame->isMousePressed());
        User::dropHandle(row.slider);
    }
    QVERIFY(!user.frame->isMousePressed());
}

// Size and policies of the spacer at the end of the editor's layout.
QList<int> lastSpacer(const QWidget &editor)
{
    const QLayout *layout = editor.layout();
    const QSpacerItem *spacer = layout->itemAt(layout->count() - 1)->spacerItem();
    return {spacer->sizeHint().width(), spacer->sizeHint().height(),
            spacer->sizePolicy().horizontalPolicy(), spacer->sizePolicy().verticalPolicy()};
}

// What the four-value editors start with, and each row in its place of the signal.
template <typename Frame> void checkColours(const QString &fourth, int max, int value)
{
    UserOf<Frame> user;
    // The end of editing finds what was set last.
    user.play(QString("ranges: 0..255 0..255 0..255 0..%2 | shown: 50 50 50 %3 | "
                      "%1 click | elsewhere: finished finished | "
                      "r value 10 | g value 20 | b value 30 | %1 value 40 | "
                      "r minus: (9,20,30,40) | g minus: (9,19,30,40) | b minus: (9,19,29,40) | "
                      "%1 minus: (9,19,29,39)")
                  .arg(fourth)
                  .arg(max)
                  .arg(value));
    QVector<int> values(4);
    user.frame->value(values[0], values[1], values[2], values[3]);
    QCOMPARE(values, QVector<int>({9, 19, 29, 39}));
}

template <typename Frame> void addChecks()
{
    const QByteArray name = QByteArray(Frame::staticMetaObject.className()).split(':').last();
    for (const auto &operation : operationsOf<Frame>())
        QTest::newRow(name + operation.name.toUtf8()) << Check([=] { checkOperation(operation); });
    QTest::newRow(name + " visibility") << Check(checkVisibility<Frame>);
}

} // namespace

void tst_CompositeEditors::rows_data()
{
    QTest::addColumn<Check>("check");
    addChecks<RGBEditFrame>();
    addChecks<RGBAllEditFrame>();
    addChecks<RGBOpacityEditFrame>();
    addChecks<RectEditFrame>();
    QTest::newRow("RGBAllEditFrame reports")
        << Check([] { checkColours<RGBAllEditFrame>("all", 255, 50); });
    QTest::newRow("RGBOpacityEditFrame reports")
        << Check([] { checkColours<RGBOpacityEditFrame>("opacity", 100, 100); });
    QTest::newRow("RGBEditFrame pressed") << Check(checkMousePressed<RGBEditFrame>);
    QTest::newRow("RectEditFrame pressed") << Check(checkMousePressed<RectEditFrame>);
}

// Spacings and the spacer at the end, as each editor has them and as the program sets them.
void tst_CompositeEditors::spacing()
{
    using P = QSizePolicy;
    using Numbers = QList<int>;
    const auto check = [](auto &editor, const QSize &size, const Numbers &spacer) {
        const QString name = "Vantor::Widgets::" + editor.objectName();
        QCOMPARE(name, QString(editor.metaObject()->className()));
        QCOMPARE(editor.size(), size);
        QCOMPARE(editor.layout()->contentsMargins(), QMargins());
        QVERIFY(editor.property("isSliderFrame").toBool());
        QCOMPARE(editor.layout()->spacing(), 0);
        editor.setVerticalSpacing(9);
        QCOMPARE(editor.layout()->spacing(), 9);
        QCOMPARE(lastSpacer(editor), spacer);
        editor.setLastVerticalSpacerExpanding(false);
        QCOMPARE(lastSpacer(editor), Numbers({20, 0, P::Expanding, P::Ignored}));
        editor.setLastVerticalSpacerExpanding(true);
        QCOMPARE(lastSpacer(editor), Numbers({20, 20, P::Expanding, P::Expanding}));
    };
    RGBEditFrame rgb;
    check(rgb, {537, 94}, {20, 20, P::Minimum, P::Expanding});
    for (int i = 0; i < 3; ++i) {
        const char *properties[] = {"isColorControl_Red", "isColorControl_Green",
                                    "isColorControl_Blue"};
        QVERIFY(rowsOf(rgb)[i].slider->property(properties[i]).toBool());
    }
    RGBAllEditFrame all;
    check(all, {537, 94}, {20, 20, P::Minimum, P::Preferred});
    QCOMPARE(lastSpacer(*all.findChild<RGBEditFrame *>()),
             Numbers({20, 20, P::Minimum, P::Expanding}));
    QCOMPARE(all.findChild<RGBEditFrame *>()->layout()->spacing(), 0);
    RGBOpacityEditFrame opacity;
    check(opacity, {400, 75}, {20, 277, P::Minimum, P::Expanding});
    QCOMPARE(lastSpacer(*opacity.findChild<RGBEditFrame *>()),
             Numbers({20, 0, P::Expanding, P::Ignored}));
    QCOMPARE(opacity.findChild<RGBEditFrame *>()->layout()->spacing(), 9);

    RectEditFrame rect;
    check(rect, {528, 169}, {20, 14, P::Minimum, P::Expanding});
    // Between a panel's fields and its lock.
    for (const int gap : {9, 5}) {
        for (const char *panel : {"framePosition", "frameSize"})
            QCOMPARE(rect.findChild<QFrame *>(panel)->layout()->spacing(), gap);
        rect.setHorizontalSpacing(3, 5);
    }
    for (const char *fields : {"verticalLayoutFramePosition", "verticalLayoutFrameSize"})
        QCOMPARE(rect.findChild<QLayout *>(fields)->spacing(), 0);
}

// A block that is hidden as a whole leaves its rows as they are.
void tst_CompositeEditors::blockKeepsItsRows()
{
    RGBAllEditFrame frame;
    frame.setEditerVisible(10);
    frame.setEditerVisible(16);
    const auto rows = rowsOf(frame);
    QVERIFY(!rows[0].frame->isHidden() && rows[1].frame->isHidden());
}

// Only the red row's font measures, and the master's own.
void tst_CompositeEditors::labelMaxLength()
{
    using Frame = RGBAllEditFrame;
    Frame frame;
    const auto rows = rowsOf(frame);
    QCOMPARE(frame.labelMaxLength(), 0);
    const int sizes[] = {20, 30, 40, 15};
    for (int i = 0; i < 4; ++i)
        rows[i].frame->setFont(QFont(frame.font().family(), sizes[i]));
    QString text;
    for (const auto type : {Frame::ALL, Frame::B, Frame::R, Frame::G}) {
        frame.setLabelText(type, text += "WW");
        const QFontMetrics metrics = rows[type == Frame::ALL ? 3 : 0].frame->fontMetrics();
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
        QCOMPARE(frame.labelMaxLength(), metrics.horizontalAdvance(text));
#else
        QCOMPARE(frame.labelMaxLength(), metrics.width(text));
#endif
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_CompositeEditors>(argc, argv);
}

#include "tst_compositeeditors.moc"
