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

// Those of the rows in their order, and values that name none; 16 only with a fourth row.
const QVector<int> flags {2, 4, 8, 16, 32, 0, 6, 30, -2};

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
template <typename Frame> void checkVisibility(UserOf<Frame> &user)
{
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

// The door to each row, by its flag and in a list, and what of 1.0 reads through it. A combination
// names no row.
template <typename Frame> void checkDoor(UserOf<Frame> &user)
{
    const QString warning = "warning: %1 has failed. The type  %2  is invalid.";
    const auto check = [&user, &warning](const QString &task, int flag, bool isRow) {
        QCOMPARE(user.heard(), isRow ? QString() : warning.arg(task).arg(flag));
    };
    for (int i = 0; i < flags.size(); ++i) {
        const auto type = typename Frame::Type(flags[i]);
        SliderEditFrame *const row = i < user.rows.size() ? user.rows[i].whole : nullptr;
        QCOMPARE(user.frame->row(type), row);
        check(isRect<Frame> ? "Get Rect row" : "Get RGB row", flags[i], row);
        QCOMPARE(user.frame->rows().value(i), row);
        if constexpr (isRect<Frame>) {
            if (row)
                row->setRange(i, 100 + i);
            int min = -7, max = -8;
            user.frame->range(type, min, max);
            QCOMPARE(limits(min, max), row ? limits(i, 100 + i) : limits(-7, -8));
            check("Get Rect value range", flags[i], row);
            if (row)
                row->setLabelText(QString::number(i));
            QCOMPARE(user.frame->labelText(type), row ? QString::number(i) : QString());
            check("Set Rect label text", flags[i], row);
        }
    }
}

// The spacing of the editor's layout, policies and size of the spacer at its end.
QList<int> formOf(const QWidget &editor)
{
    const QLayout *layout = editor.layout();
    const QSpacerItem *spacer = layout->itemAt(layout->count() - 1)->spacerItem();
    return {layout->spacing(), spacer->sizePolicy().horizontalPolicy(),
            spacer->sizePolicy().verticalPolicy(), spacer->sizeHint().width(),
            spacer->sizeHint().height()};
}

// The initial values of the four-value editors, and each row at its place in the signal.
template <typename Frame>
void checkColours(UserOf<Frame> &user, const QString &range, const QString &value,
                  const QString &wideRange)
{
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

// Functions by the end of their warning, with their effect on a row; those without a type reach
// all rows. A host may name those of 1.0 by their address: they have no overloads.
template <typename F, typename T = typename F::Type> void addChecks()
{
    const auto add = [](const QString &name, const QString &result, auto function, auto... values) {
        QTest::addRow("%s%s", F::staticMetaObject.className(), qPrintable(name)) << TestCode([=] {
            if constexpr (std::is_invocable_v<decltype(function), F &, T, decltype(values)...>) {
                const auto call = [=](F &f, T type) { std::invoke(function, f, type, values...); };
                checkOperation<F>(name, result, call, false);
            } else {
                const auto call = [=](F &f, T) { std::invoke(function, f, values...); };
                checkOperation<F>(name, result, call, true);
            }
        });
    };
    add(isRect<F> ? " label text" : "All label text", "text=Gain", &F::setLabelText, "Gain");
    add(" label width range", "label=20..90", &F::setLabelWidthRange, 90, 20);
    add(" label fixed width", "label=33..33", &F::setLabelFixedWidth, 33);
    add(" button width range", "button=9..60", &F::setButtonWidthRange, 60, 9);
    add(" button fixed width", "button=41..41", &F::setButtonFixedWidth, 41);
    add(" spinbox width range", "box=9..80", &F::setSpinBoxWidthRange, 80, 9);
    add(" spinbox fixed width", "box=72..72", &F::setSpinBoxFixedWidth, 72);
    add(" value", "value=77", QOverload<T, int>::of(&F::setValue), 77);
    add(isRect<F> ? " value range" : " range", "range=-5..110", &F::setRange, -5, 110);
    add(" single step", "plus=23", &F::setSingleStep, 3);
    add(" page step", "pageStep=7", &F::setPageStep, 7);
    add(" spacing", "gaps=17 23 23 0", &F::setHorizontalSpacing, 17, 23);
    if constexpr (isRect<F>) {
        add(" value change direction", "plus=20 hold 60=20 drop=20 click=20 wheel=20",
            &F::setValueChangeDirection, SliderEditFrame::AllowedToSmaller, 20);
    }
    add(" options", "options=9", &F::setEntryOptions, ExactEntry | EnterStays);
    add(" wheel", "wheel=61", &F::setSpinBoxWheelEnable, true);
    add(" repeat", "autoRepeat=true/true", &F::setAutoRepeat, true);
    add(" repeat delay", "autoRepeatDelay=321/321", &F::setAutoRepeatDelay, 321);
    add(" repeat interval", "autoRepeatInterval=45/45", &F::setAutoRepeatInterval, 45);
    add(" release mode", "hold 60=21", &F::setReleaseMode, true);
    add(" sampling", "autoRepeat=true/true hold 60 ms=5000", &F::setTimeSamplingRate, 5000);
    addFor<F>("visibility", checkVisibility<F>);
    addFor<F>("door", checkDoor<F>);
}

} // namespace

void tst_CompositeEditors::rows_data()
{
    QTest::addColumn<TestCode>("code");
    addChecks<RGBEditFrame>();
    addChecks<RGBAllEditFrame>();
    addChecks<RGBOpacityEditFrame>();
    addChecks<RectEditFrame>();
    const auto checkPress = [](auto &user) {
        for (const EditorRow &row : user.rows) {
            for (const QString action : {"hold", "drop"}) {
                user.perform(row.step(action));
                QCOMPARE(user.frame->isMousePressed(), action == "hold");
            }
        }
    };
    addFor<RectEditFrame>("press", checkPress);
    addFor<RGBEditFrame>("press", checkPress);
    // What only a row can do works through the door.
    rowsAfter<RectEditFrame>("w range 1 1000 | w value 1 | edits | ")(
        "logarithmic row",
        "w scale logarithmic | w hold 500: start w(32) (0,0,32,0) | w drop: end");
    rowsAfter<RGBOpacityEditFrame>()("unit of one row",
                                     "opacity suffix  % | shown: 50 50 50 100 %");
    addFor<RGBAllEditFrame>("colours",
                            [](auto &user) { checkColours(user, "0..255", "50", "-1..999"); });
    addFor<RGBOpacityEditFrame>("colours",
                                [](auto &user) { checkColours(user, "0..100", "100", "0..100"); });
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
    const QList<int> untouched {0, P::Minimum, P::Expanding};
    const QList<int> ignored {9, P::Expanding, P::Ignored, 20, 0};
    const QList<int> expanding {9, P::Expanding, P::Expanding, 20, 20};
    const auto check = [&](auto &editor, const QList<int> &form) {
        const QString name = "Vantor::Widgets::" + editor.objectName();
        QCOMPARE(name, QString(editor.metaObject()->className()));
        QCOMPARE(editor.layout()->contentsMargins(), QMargins());
        QCOMPARE(formOf(editor).mid(0, 3), form);
        QVERIFY(editor.property("isSliderFrame").toBool());
        editor.setVerticalSpacing(9);
        editor.setLastVerticalSpacerExpanding(false);
        QCOMPARE(formOf(editor), ignored);
        editor.setLastVerticalSpacerExpanding(true);
        QCOMPARE(formOf(editor), expanding);
    };
    RGBEditFrame rgb;
    check(rgb, untouched);
    int row = 0;
    for (const char *color : {"isColorControl_Red", "isColorControl_Green", "isColorControl_Blue"})
        QVERIFY(rowsOf(rgb)[row++].slider->property(color).toBool());
    RGBAllEditFrame all;
    check(all, {0, P::Minimum, P::Preferred});
    QCOMPARE(formOf(*all.findChild<RGBEditFrame *>()).mid(0, 3), untouched);
    // A block that is hidden as a whole does not change its rows.
    all.setEditerVisible(10);
    all.setEditerVisible(16);
    QVERIFY(!rowsOf(all)[0].frame->isHidden() && rowsOf(all)[1].frame->isHidden());
    RGBOpacityEditFrame opacity;
    check(opacity, untouched);
    QCOMPARE(formOf(*opacity.findChild<RGBEditFrame *>()), ignored);
    RectEditFrame rect;
    check(rect, untouched);
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
