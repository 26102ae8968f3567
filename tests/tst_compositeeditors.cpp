#include "editoruser.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

using namespace Vantor::Widgets;

// What every composite editor does alike with its rows: the operations that a
// type flag sends to one row, those that reach all rows, visibility and form. The
// colour editors report and read their values here, too.
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

// A row as host and user find it, and the values that gestures bring it to.
QStringList settingsOf(EditorUser &user, const EditorRow &row)
{
    QStringList settings;
    settings << "text=" + row.label->text() << "value=" + row.spinBox->text()
             << "label=" + limits(row.label->minimumWidth(), row.label->maximumWidth())
             << "button=" + limits(row.plus->minimumWidth(), row.plus->maximumWidth())
             << "box=" + limits(row.spinBox->minimumWidth(), row.spinBox->maximumWidth())
             << "range=" + limits(row.slider->minimum(), row.slider->maximum())
             << QString("pageStep=%1").arg(row.slider->pageStep());
    for (const char *name : {"autoRepeat", "autoRepeatDelay", "autoRepeatInterval"})
        settings << name + ('=' + row.minus->property(name).toString()) + '/'
                + row.plus->property(name).toString();
    for (const QLayout *layout : row.frame->findChildren<QLayout *>())
        settings << QString("gap=%1").arg(layout->contentsMargins().right());
    const int value = row.whole->value();
    row.whole->setValue(20);
    for (const QString action : {"plus", "hold 60", "drop", "click", "wheel"}) {
        user.perform(row.step(action));
        settings << action + QString("=%1").arg(row.whole->value())
                 << action + QString(" ms=%1").arg(samplingInterval(row.frame));
    }
    row.whole->setValue(value);
    return settings;
}

template <typename F> constexpr bool isRect = std::is_same_v<F, RectEditFrame>;
template <typename F> using Call = std::function<void(F &, typename F::Type)>;

// A row's own flag changes that row alone, any other value nothing, and is
// reported in the name of the operation, which may be another class's.
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
        user.heard(); // what the readings caused
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

// A panel or block is hidden as a whole when none of its rows is asked for.
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

// Holds the handle of each row in turn.
template <typename Frame> void checkMousePressed()
{
    UserOf<Frame> user;
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

// What the four-value editors start with, and each row in its place of the signal.
template <typename Frame> void checkColours(const QString &range, const QString &value)
{
    UserOf<Frame> user;
    // The end of editing finds what was set last.
    user.play(QString("ranges: 0..255 0..255 0..255 %2 | shown: 50 50 50 %3 | "
                      "%1 click | elsewhere: finished finished | "
                      "r value 10 | g value 20 | b value 30 | %1 value 40 | "
                      "r minus: (9,20,30,40) | g minus: (9,19,30,40) | b minus: (9,19,29,40) | "
                      "%1 minus: (9,19,29,39)")
                  .arg(user.rows[3].name, range, value));
    int r = 0, g = 0, b = 0, own = 0;
    user.frame->value(r, g, b, own);
    QCOMPARE(QVector<int>({r, g, b, own}), QVector<int>({9, 19, 29, 39}));
}

// Operations by the end of their warning, with what they make of a row.
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
    add(" label width range", "label=20..90", [](F &f, T t) { f.setLabelWidthRange(t, 90, 20); });
    add(" label fixed width", "label=33..33", [](F &f, T t) { f.setLabelFixedWidth(t, 33); });
    add(" button width range", "button=9..60", [](F &f, T t) { f.setButtonWidthRange(t, 60, 9); });
    add(" button fixed width", "button=41..41", [](F &f, T t) { f.setButtonFixedWidth(t, 41); });
    add(" spinbox width range", "box=9..80", [](F &f, T t) { f.setSpinBoxWidthRange(t, 80, 9); });
    add(" spinbox fixed width", "box=72..72", [](F &f, T t) { f.setSpinBoxFixedWidth(t, 72); });
    add(" value", "value=77", [](F &f, T t) { f.setValue(t, 77); });
    add(isRect<F> ? " value range" : " range", "range=-5..110",
        [](F &f, T t) { f.setRange(t, -5, 110); });
    add(" single step", "plus=23", [](F &f, T t) { f.setSingleStep(t, 3); });
    add(" page step", "pageStep=7", [](F &f, T t) { f.setPageStep(t, 7); });
    addAll(" spacing", "gap=17 gap=23 gap=23", [](F &f, T) { f.setHorizontalSpacing(17, 23); });
    addAll(" wheel", "wheel=61", [](F &f, T) { f.setSpinBoxWheelEnable(true); });
    addAll(" repeat", "autoRepeat=true/true", [](F &f, T) { f.setAutoRepeat(true); });
    addAll(" repeat delay", "autoRepeatDelay=321/321", [](F &f, T) { f.setAutoRepeatDelay(321); });
    addAll(" repeat interval", "autoRepeatInterval=45/45",
           [](F &f, T) { f.setAutoRepeatInterval(45); });
    addAll(" release mode", "hold 60=21", [](F &f, T) { f.setReleaseMode(true); });
    addAll(" sampling", "autoRepeat=true/true hold 60 ms=5000",
           [](F &f, T) { f.setTimeSamplingRate(5000); });
    if constexpr (isRect<F>) {
        add(" value change direction", "plus=20 hold 60=20 drop=20 click=20 wheel=20",
            [](F &f, T t) { f.setValueChangeDirection(t, SliderEditFrame::AllowedToSmaller, 20); });
    }
    QTest::addRow("%s visibility", F::staticMetaObject.className()) << TestCode(checkVisibility<F>);
}

} // namespace

void tst_CompositeEditors::rows_data()
{
    QTest::addColumn<TestCode>("code");
    addChecks<RGBEditFrame>();
    addChecks<RGBAllEditFrame>();
    addChecks<RGBOpacityEditFrame>();
    addChecks<RectEditFrame>();
    QTest::newRow("all") << TestCode([] { checkColours<RGBAllEditFrame>("0..255", "50"); });
    QTest::newRow("opacity") << TestCode(
        [] { checkColours<RGBOpacityEditFrame>("0..100", "100"); });
    QTest::newRow("RGBEditFrame pressed") << TestCode(checkMousePressed<RGBEditFrame>);
    QTest::newRow("RectEditFrame pressed") << TestCode(checkMousePressed<RectEditFrame>);
}

// An editor's form, what the program sets of it, and what reaches the block of channels.
void tst_CompositeEditors::form()
{
    using P = QSizePolicy;
    const QList<int> ignored {9, 20, 0, P::Expanding, P::Ignored};
    const QList<int> expanding {9, 20, 20, P::Expanding, P::Expanding};
    const auto check = [&](auto &editor, const QSize &size, const QList<int> &form) {
        const QString name = "Vantor::Widgets::" + editor.objectName();
        QCOMPARE(name, QString(editor.metaObject()->className()));
        QCOMPARE(editor.size(), size);
        QCOMPARE(editor.layout()->contentsMargins(), QMargins());
        QCOMPARE(formOf(editor), form);
        QVERIFY(editor.property("isSliderFrame").toBool());
        editor.setVerticalSpacing(9);
        editor.setLastVerticalSpacerExpanding(false);
        QCOMPARE(formOf(editor), ignored);
        editor.setLastVerticalSpacerExpanding(true);
        QCOMPARE(formOf(editor), expanding);
    };
    RGBEditFrame rgb;
    const QList<int> untouched {0, 20, 20, P::Minimum, P::Expanding};
    check(rgb, {537, 94}, untouched);
    int row = 0;
    for (const char *color : {"isColorControl_Red", "isColorControl_Green", "isColorControl_Blue"})
        QVERIFY(rowsOf(rgb)[row++].slider->property(color).toBool());
    RGBAllEditFrame all;
    check(all, {537, 94}, {0, 20, 20, P::Minimum, P::Preferred});
    QCOMPARE(formOf(*all.findChild<RGBEditFrame *>()), untouched);
    // A block that is hidden as a whole leaves its rows as they are.
    all.setEditerVisible(10);
    all.setEditerVisible(16);
    QVERIFY(!rowsOf(all)[0].frame->isHidden() && rowsOf(all)[1].frame->isHidden());
    RGBOpacityEditFrame opacity;
    check(opacity, {400, 75}, {0, 20, 277, P::Minimum, P::Expanding});
    QCOMPARE(formOf(*opacity.findChild<RGBEditFrame *>()), ignored);
    RectEditFrame rect;
    check(rect, {528, 169}, {0, 20, 14, P::Minimum, P::Expanding});
    // Between a panel's fields and its lock.
    for (const int gap : {9, 5}) {
        for (const char *panel : {"framePosition", "frameSize"})
            QCOMPARE(rect.findChild<QFrame *>(panel)->layout()->spacing(), gap);
        rect.setHorizontalSpacing(3, 5);
    }
    for (const char *fields : {"verticalLayoutFramePosition", "verticalLayoutFrameSize"})
        QCOMPARE(rect.findChild<QLayout *>(fields)->spacing(), 0);
}

// Only the red row's font measures, and the master's own.
void tst_CompositeEditors::labelMaxLength()
{
    RGBAllEditFrame frame;
    const auto rows = rowsOf(frame);
    QCOMPARE(frame.labelMaxLength(), 0);
    for (int i = 0; i < 4; ++i)
        rows[i].frame->setFont(QFont(frame.font().family(), 40 - 5 * i));
    QString text;
    for (const int i : {3, 2, 0, 1}) {
        frame.setLabelText(RGBAllEditFrame::Type(2 << i), text += "WW");
        const QFontMetrics metrics = rows[i == 3 ? 3 : 0].frame->fontMetrics();
        // To a pixel: one may round otherwise than the other.
        QVERIFY(qAbs(frame.labelMaxLength() - metrics.size(0, text).width()) <= 1);
    }
}

QTEST_MAIN(tst_CompositeEditors)

#include "tst_compositeeditors.moc"
