#include "editoruser.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <functional>

using namespace Vantor::Widgets;

// How every composite editor handles its rows: the functions that address one row by
// a type flag, those that reach all rows, visibility and form. Tests the reports and
// getters of the colour editors, too.
class tst_CompositeEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows() { runTestCode(); }
    void form();
    void labelMaxLength();
};

namespace {

// A row as host and user see it, and its values after gestures.
QStringList settingsOf(EditorUser &user, const EditorRow &row)
{
    QStringList settings;
    settings << "text=" + row.label->text()
             << "value=" + row.spinBox->property("cleanText").toString()
             << "unit=" + row.whole->prefix() + '#' + row.whole->suffix()
             << "label=" + limits(row.label->minimumWidth(), row.label->maximumWidth())
             << "button=" + limits(row.plus->minimumWidth(), row.plus->maximumWidth())
             << "box=" + limits(row.spinBox->minimumWidth(), row.spinBox->maximumWidth())
             << "range=" + limits(row.slider->minimum(), row.slider->maximum())
             << QString("pageStep=%1").arg(row.slider->pageStep())
             << QString("options=%1").arg(int(row.whole->entryOptions()));
    for (const char *name : {"autoRepeat", "autoRepeatDelay", "autoRepeatInterval"})
        settings << name + ('=' + row.minus->property(name).toString()) + '/'
                + row.plus->property(name).toString();
    settings << "gaps=" + gaps(row);
    const int value = row.whole->value();
    row.whole->setValue(20);
    for (const QString action : {"reset", "plus", "hold 60", "drop", "click", "wheel"}) {
        user.perform(row.step(action));
        settings << action + QString("=%1").arg(row.whole->value())
                 << action + QString(" ms=%1").arg(samplingInterval(row.frame));
    }
    row.whole->setValue(value);
    return settings;
}

template <typename F> constexpr bool isRect = std::is_same_v<F, RectEditFrame>;
template <typename F> using Call = std::function<void(F &, typename F::Type)>;

// A row's own flag changes only that row. Any other value changes nothing and is
// reported with the name of the function, which may be another class's.
template <typename F>
void checkOperation(const QString &name, const QString &result, const Call<F> &call, bool isForAll)
{
    UserOf<F> user;
    QVector<QStringList> settings;
    for (const EditorRow &row : user.rows)
        settings.append(settingsOf(user, row));
    const QString base = isRect<F> ? "Rect" : "RGB";
    const auto warning = "warning: Set " + base + name + " has failed. The type  %1  is invalid.";
    const QString context = "(?i)%1editframe\\.cpp .*%1EditFrame::set.* default";
    // The rows' own in their order, and others.
    QList<int> flags {2 << settings.size(), -2, 0, 6};
    for (auto row = settings.size(); row > 0; --row)
        flags.prepend(1 << row);
    for (int i = 0; i < (isForAll ? 1 : flags.size()); ++i) {
        user.frame->setEditerVisible(0); // hidden rows are set as well
        user.heard(); // the warnings of the getters
        call(*user.frame, typename F::Type(flags[i]));
        const bool isWrong = !isForAll && i >= user.rows.size();
        QCOMPARE(user.heard(), isWrong ? warning.arg(flags[i]) : QString());
        QVERIFY(!isWrong || user.log.lastContext().contains(QRegularExpression(context.arg(base))));
        user.frame->setEditerVisible(~0);
        QCoreApplication::processEvents();
        for (int row = 0; row < user.rows.size(); ++row) {
            QStringList changes = settingsOf(user, user.rows[row]);
            for (const QString &setting : settings[row])
                changes.removeOne(setting);
            QCOMPARE(changes.join(' '), isForAll || row <= i ? result : QString());
        }
    }
}

// A panel or block is hidden as a whole if none of its rows is to be shown.
template <typename Frame> void checkVisibility()
{
    UserOf<Frame> user;
    for (const int types : {2, 4, 8, 16, 33, 30, 6, 24, 14}) {
        user.frame->setEditerVisible(types);
        QMap<QWidget *, int> panels {{user.frame, 1}};
        for (int row = 0; row < user.rows.size(); ++row) {
            QCOMPARE(user.rows[row].frame->isVisible(), (types & 2 << row) != 0);
            panels[user.rows[row].frame->parentWidget()] |= types & 2 << row;
        }
        for (QWidget *panel : panels.keys())
            QCOMPARE(panel->isVisible(), panels[panel] != 0);
    }
}

// The door to each row, by its flag and in a list. A combination names no row.
template <typename Frame> void checkDoor()
{
    UserOf<Frame> user;
    const QString warning = QString("warning: Get %1 row has failed. The type  %2  is invalid.")
                                .arg(isRect<Frame> ? "Rect" : "RGB");
    for (const int flag : {2, 4, 8, 16, 0, 6, 24, 30, -2}) {
        int i = 0;
        while (i < user.rows.size() && 2 << i != flag)
            ++i;
        const bool isRow = i < user.rows.size();
        QCOMPARE(user.frame->row(typename Frame::Type(flag)), isRow ? user.rows[i].whole : nullptr);
        QCOMPARE(user.heard(), isRow ? QString() : warning.arg(flag));
    }
    QCOMPARE(user.frame->rows().size(), user.rows.size());
    for (int i = 0; i < user.rows.size(); ++i)
        QCOMPARE(user.frame->rows()[i], user.rows[i].whole);
}

// The getters of 1.0.
void checkRectGetters(UserOf<RectEditFrame> &user)
{
    for (const int flag : {2, 4, 8, 16, 0, 6}) {
        const auto type = static_cast<RectEditFrame::Type>(flag);
        user.frame->setLabelText(type, QString::number(flag));
        user.frame->setRange(type, flag, 100 + flag);
        user.heard(); // the warnings of the setters
        int min = -7, max = -8;
        user.frame->range(type, min, max);
        user.log.add(limits(min, max) + ' ' + user.frame->labelText(type));
        const bool isRow = flag == 2 || flag == 4 || flag == 8 || flag == 16;
        const QString none = "warning: Get Rect value range has failed. The type  %1  is invalid. "
                             "warning: Set Rect label text has failed. The type  %1  is invalid. "
                             "-7..-8 ";
        QCOMPARE(user.heard(),
                 isRow ? QString("%1..%2 %1").arg(flag).arg(100 + flag) : none.arg(flag));
    }
}

// Holds the handle of each row in turn.
template <typename Frame> void checkPress(UserOf<Frame> &user)
{
    for (const EditorRow &row : user.rows) {
        user.perform(row.step("hold"));
        QVERIFY(user.frame->isMousePressed());
        user.perform(row.step("drop"));
        QVERIFY(!user.frame->isMousePressed());
    }
}

// The spacing of the editor's layout, size and policies of the spacer at its end.
QList<int> formOf(const QWidget &editor)
{
    const QLayout *layout = editor.layout();
    const QSpacerItem *spacer = layout->itemAt(layout->count() - 1)->spacerItem();
    return {layout->spacing(), spacer->sizeHint().width(), spacer->sizeHint().height(),
            spacer->sizePolicy().horizontalPolicy(), spacer->sizePolicy().verticalPolicy()};
}

// The initial values of the four-value editors, and each row at its place in the signal.
template <typename Frame>
void checkColours(const QString &range, const QString &value, const QString &wideRange)
{
    UserOf<Frame> user;
    // The end of editing uses the value that was set last.
    user.play(QString("ranges: 0..255 0..255 0..255 %2 | shown: 50 50 50 %3 | "
                      "%1 click | elsewhere: finished finished")
                  .arg(user.rows[3].name, range, value));
    user.frame->setValues(10, 20, 30, 40);
    user.play(QString("r minus: (9,20,30,40) | g minus: (9,19,30,40) | b minus: (9,19,29,40) | "
                      "%1 minus: (9,19,29,39)")
                  .arg(user.rows[3].name));
    int r = 0, g = 0, b = 0, own = 0;
    std::invoke(&Frame::value, user.frame, r, g, b, own);
    QCOMPARE(QVector<int>({r, g, b, own}), QVector<int>({9, 19, 29, 39}));
    user.frame->setRanges(-1, 999);
    user.play("ranges: -1..999 -1..999 -1..999 " + wideRange);
}

// Functions by the end of their warning, with their effect on a row. A host may name those
// of 1.0 by their address: they have no overloads.
template <typename F, typename T = typename F::Type> void addChecks()
{
    const auto add = [](const QString &name, const QString &result, const Call<F> &call,
                        bool isForAll = false) {
        QTest::addRow("%s%s", F::staticMetaObject.className(), qPrintable(name))
            << TestCode([=] { checkOperation(name, result, call, isForAll); });
    };
    const auto addAll = [&add](const QString &name, const QString &result, const Call<F> &call) {
        add(name, result, call, true);
    };
    add(isRect<F> ? " label text" : "All label text", "text=Gain",
        [](F &f, T t) { f.setLabelText(t, "Gain"); });
    add(" label width range", "label=20..90",
        [](F &f, T t) { std::invoke(&F::setLabelWidthRange, f, t, 90, 20); });
    add(" label fixed width", "label=33..33",
        [](F &f, T t) { std::invoke(&F::setLabelFixedWidth, f, t, 33); });
    add(" button width range", "button=9..60",
        [](F &f, T t) { std::invoke(&F::setButtonWidthRange, f, t, 60, 9); });
    add(" button fixed width", "button=41..41",
        [](F &f, T t) { std::invoke(&F::setButtonFixedWidth, f, t, 41); });
    add(" spinbox width range", "box=9..80",
        [](F &f, T t) { std::invoke(&F::setSpinBoxWidthRange, f, t, 80, 9); });
    add(" spinbox fixed width", "box=72..72",
        [](F &f, T t) { std::invoke(&F::setSpinBoxFixedWidth, f, t, 72); });
    add(" value", "value=77", [](F &f, T t) { f.setValue(t, 77); });
    add(isRect<F> ? " value range" : " range", "range=-5..110",
        [](F &f, T t) { std::invoke(&F::setRange, f, t, -5, 110); });
    add(" single step", "plus=23", [](F &f, T t) { f.setSingleStep(t, 3); });
    add(" page step", "pageStep=7", [](F &f, T t) { f.setPageStep(t, 7); });
    addAll(" spacing", "gaps=17 23 23 0", [](F &f, T) { f.setHorizontalSpacing(17, 23); });
    if constexpr (isRect<F>) {
        add(" value change direction", "plus=20 hold 60=20 drop=20 click=20 wheel=20",
            [](F &f, T t) { f.setValueChangeDirection(t, SliderEditFrame::AllowedToSmaller, 20); });
    }
    addAll(" options", "options=9", [](F &f, T) { f.setEntryOptions(ExactEntry | EnterStays); });
    addAll(" wheel", "wheel=61", [](F &f, T) { f.setSpinBoxWheelEnable(true); });
    addAll(" repeat", "autoRepeat=true/true", [](F &f, T) { f.setAutoRepeat(true); });
    addAll(" repeat delay", "autoRepeatDelay=321/321", [](F &f, T) { f.setAutoRepeatDelay(321); });
    addAll(" repeat interval", "autoRepeatInterval=45/45",
           [](F &f, T) { f.setAutoRepeatInterval(45); });
    addAll(" release mode", "hold 60=21", [](F &f, T) { f.setReleaseMode(true); });
    addAll(" sampling", "autoRepeat=true/true hold 60 ms=5000",
           [](F &f, T) { f.setTimeSamplingRate(5000); });
    const auto addCheck = [](const char *name, void (*check)()) {
        QTest::addRow("%s %s", F::staticMetaObject.className(), name) << TestCode(check);
    };
    addCheck("visibility", checkVisibility<F>);
    addCheck("door", checkDoor<F>);
}

} // namespace

void tst_CompositeEditors::rows_data()
{
    QTest::addColumn<TestCode>("code");
    addChecks<RGBEditFrame>();
    addChecks<RGBAllEditFrame>();
    addChecks<RGBOpacityEditFrame>();
    addChecks<RectEditFrame>();
    addFor<RectEditFrame>("getters", checkRectGetters);
    addFor<RectEditFrame>("press", checkPress<RectEditFrame>);
    addFor<RGBEditFrame>("press", checkPress<RGBEditFrame>);
    // What only a row can do works through the door.
    const auto rect = rowsAfter<RectEditFrame>("w range 1 1000 | w value 1 | edits | ");
    rect("logarithmic row",
         "w scale logarithmic | w hold 500: start w(32) (0,0,32,0) | w drop: end");
    const auto opacity = rowsAfter<RGBOpacityEditFrame>("edits | ");
    opacity("unit of one row", "opacity suffix  % | shown: 50 50 50 100 %");
    QTest::newRow("all") << TestCode(
        [] { checkColours<RGBAllEditFrame>("0..255", "50", "-1..999"); });
    QTest::newRow("opacity") << TestCode(
        [] { checkColours<RGBOpacityEditFrame>("0..100", "100", "0..100"); });
    addFor<RGBEditFrame>("all channels at once", [](auto &user) {
        user.frame->setRanges(-1, 999);
        user.frame->setValues(700, 800, 900);
        user.play("ranges: -1..999 -1..999 -1..999 | b plus: (700,800,901) | shown: 700 800 901");
    });
}

// An editor's form, the settings of the program, and those that reach the block of channels.
void tst_CompositeEditors::form()
{
    using P = QSizePolicy;
    const QList<int> ignored {9, 20, 0, P::Expanding, P::Ignored};
    const QList<int> expanding {9, 20, 20, P::Expanding, P::Expanding};
    const auto check = [&](auto &editor, const QList<int> &form) {
        const QString name = "Vantor::Widgets::" + editor.objectName();
        QCOMPARE(name, QString(editor.metaObject()->className()));
        QCOMPARE(editor.layout()->contentsMargins(), QMargins());
        QCOMPARE(formOf(editor), form);
        QVERIFY(editor.property("isSliderFrame").toBool());
        editor.setEntryOptions(DecimalComma);
        QCOMPARE(int(editor.entryOptions()), int(DecimalComma));
        editor.setVerticalSpacing(9);
        editor.setLastVerticalSpacerExpanding(false);
        QCOMPARE(formOf(editor), ignored);
        editor.setLastVerticalSpacerExpanding(true);
        QCOMPARE(formOf(editor), expanding);
    };
    RGBEditFrame rgb;
    const QList<int> untouched {0, 20, 20, P::Minimum, P::Expanding};
    check(rgb, untouched);
    int row = 0;
    for (const char *color : {"isColorControl_Red", "isColorControl_Green", "isColorControl_Blue"})
        QVERIFY(rowsOf(rgb)[row++].slider->property(color).toBool());
    RGBAllEditFrame all;
    check(all, {0, 20, 20, P::Minimum, P::Preferred});
    QCOMPARE(formOf(*all.findChild<RGBEditFrame *>()), untouched);
    // A block that is hidden as a whole does not change its rows.
    all.setEditerVisible(10);
    all.setEditerVisible(16);
    QVERIFY(!rowsOf(all)[0].frame->isHidden() && rowsOf(all)[1].frame->isHidden());
    RGBOpacityEditFrame opacity;
    check(opacity, {0, 20, 277, P::Minimum, P::Expanding});
    QCOMPARE(formOf(*opacity.findChild<RGBEditFrame *>()), ignored);
    RectEditFrame rect;
    check(rect, {0, 20, 14, P::Minimum, P::Expanding});
    // Between a panel's fields and its lock.
    for (const int gap : {9, 5}) {
        for (const char *panel : {"framePosition", "frameSize"})
            QCOMPARE(rect.findChild<QFrame *>(panel)->layout()->spacing(), gap);
        rect.setHorizontalSpacing(3, 5);
    }
    for (const char *fields : {"verticalLayoutFramePosition", "verticalLayoutFrameSize"})
        QCOMPARE(rect.findChild<QLayout *>(fields)->spacing(), 0);
}

// Labels are measured with the first row's font; a row beside the channels uses its own.
void tst_CompositeEditors::labelMaxLength()
{
    const auto check = [](auto &&frame, int ownRow) {
        const auto rows = rowsOf(frame);
        QCOMPARE(frame.labelMaxLength(), 0);
        for (int i = 0; i < rows.size(); ++i)
            rows[i].frame->setFont(QFont(frame.font().family(), 40 - 5 * i));
        QString text;
        for (const int i : {3, 2, 0, 1}) {
            if (i >= rows.size())
                continue;
            rows[i].label->setText(text += "WW");
            const QFontMetrics metrics = rows[i == ownRow ? i : 0].frame->fontMetrics();
            // Within a pixel: the two may round differently.
            QVERIFY(qAbs(frame.labelMaxLength() - metrics.size(0, text).width()) <= 1);
        }
    };
    check(RGBEditFrame(), -1);
    check(RGBAllEditFrame(), 3);
}

QTEST_MAIN(tst_CompositeEditors)

#include "tst_compositeeditors.moc"
