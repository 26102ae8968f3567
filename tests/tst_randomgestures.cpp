#include "editoruser.h"

#include <QtCore/QRegularExpression>

#include <random>

using namespace Vantor::Widgets;

// Invariants that must hold after every gesture of a user. The same seed repeats the same
// gestures; VANTORSLIDER_SEED and VANTORSLIDER_GESTURES (a number per editor) set
// others.
class tst_RandomGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editors_data();
    void editors() { runTestCode(); }
    void lockDoesNotDrift();
};

namespace {

// The user's actions with a row. "#" is a position, sometimes beyond the range.
const QStringList gestures =
    QString(
        "plus; minus; enter (#+7-7)/1; type (#+7-7)/1\t; enter #,5; type #*1=+ | keys \t; "
        "type 7 | escape | keys \t; enter 1/0; type #/1 | finish | keys \t; "
        "click | press End | keys *1\t; click | press Home | press Shift+End | keys #\t; "
        "click | up | down | down | keys \n; groove before; groove after; wheel; hold | drop; "
        "hold | move # | move # | tick | drop; hold | move # | tick | move # | drop; "
        "hold | move # | dialog | drop; type #/1 | dialog; type # | minus; hold | move # | hide "
        "| show; type # | disable | enable; space | type # | hold | drop; reset; "
        "hold | move # | pageMenu | drop; type # | screenReader | keys \t")
        .split("; ");

// The user's action during which the program deletes the editor.
const QStringList lastGestures {"plus", "hold | move 20", "type 5", "type 5/"};

// A new editor with its user and program, and their invariants.
template <typename Frame> class Session
{
public:
    // The program's first step, and then any of its steps. "?" is a position
    // within any range that leaves space for another one in the area: a value beyond the
    // range is stored as it was set, and counts as new when an entry ends.
    Session(const QString &start, const QStringList &steps, std::mt19937 &random)
        : m_programSteps(steps), m_random(random)
    {
        playProgram("edits | " + start + any({"", " | released", " | sampled"}) + " | options "
                    + any({"", "exact"}) + any({"", " comma"}) + any({"", " escape"})
                    + any({"", " stays"}) + " | " + steps[0]);
    }

    // All steps so far, as a row for a table.
    QString play(int count)
    {
        QStringList all = gestures + gestures + m_programSteps;
        if (std::is_base_of_v<RectEditFrame, Frame> && !isMask)
            all += QStringList {"lock", "lock"};
        for (int i = 0; i < count && !QTest::currentTestFailed(); ++i) {
            const QString action = any(all);
            if (m_programSteps.contains(action))
                playProgram(action);
            else
                playUser(number(0, int(m_user.rows.size()) - 1), action);
        }
        deleteEditor();
        return m_done.join(" | ").replace('\t', "\\t").replace('\n', "\\n");
    }

private:
    int number(int low, int high) { return std::uniform_int_distribution<>(low, high)(m_random); }
    QString any(const QStringList &texts) { return texts[number(0, int(texts.size()) - 1)]; }

    int value(int row) const { return m_user.rows[row].slider->value(); }
    int min(int row) const { return m_user.rows[row].slider->minimum(); }
    int max(int row) const { return m_user.rows[row].slider->maximum(); }
    // The maximum that the area leaves for a field, given its position or size, or for a
    // margin, given the opposite one.
    int room(int row) const
    {
        if (isMask)
            return max(row) - value(row ^ 1);
        return isCrop ? min(row & 1) + max(row | 2) - value(row ^ 2) : max(row);
    }

    // The numbers, without their units.
    QString shown() const
    {
        return m_user.shown().remove(QRegularExpression("[$a-z]")).replace(' ', ',');
    }

    // Causes no records.
    void playProgram(QString steps)
    {
        while (steps.contains('?'))
            steps.replace(steps.indexOf('?'), 1, QString::number(number(9, 180)));
        m_done.append(steps);
        m_user.play(steps);
        m_reported = shown();
    }

    void playUser(int row, QString gesture)
    {
        while (gesture.contains('#'))
            gesture.replace(gesture.indexOf('#'), 1,
                            QString::number(number(min(row) - 5, max(row) + 5)));
        if (!m_user.isWhole)
            gesture.replace("/1", "/100");
        const bool isLock = gesture == "lock";
        gesture.replace("lock", row < 2 ? "lock position" : "lock size");
        QVector<int> &lock = m_locks[row / 2];
        const QRegularExpression change("(?:^| )\\(?(-?\\d[^ )]*)"),
            held("(?:crop|mask)\\(([^)]*)");
        QRegularExpressionMatch match;
        QString changed;
        for (const QString &action : gesture.split(" | ")) {
            const QString step = m_user.rows[row].step(action);
            m_user.perform(step);
            const QString heard = m_user.heard();
            m_done.append(step + ": " + heard);
            const auto most = qMax(1, int(m_isInEdit) + int(heard.count("start")));
            verifyEdits(heard);
            QVERIFY(!heard.contains("warning") && !heard.contains("too early"));
            // What a lock has clamped is reported before the entry, also after it is open again.
            const bool isEntry = QRegularExpression("enter|type|keys").match(gesture).hasMatch();
            const int clamped = isEntry && m_wasLocked[row / 2] ? 1 : 0;
            QVERIFY(heard.count(change) <= most + clamped);
            if (heard.lastIndexOf(change, -1, &match) >= 0)
                changed = match.captured(1);
            if (heard.lastIndexOf(isCrop || isMask ? held : change, -1, &match) >= 0)
                m_reported = match.captured(1);
        }
        QVERIFY(!m_isInEdit);
        QCOMPARE(shown(), m_reported);
        for (const EditorRow &each : m_user.rows)
            QVERIFY(!each.whole || each.whole->sliderScale() != SliderEditFrame::LinearScale
                    || each.whole->value() == each.slider->value());
        m_wasLocked[row / 2] |= isLock;
        if (isLock)
            lock = lock.isEmpty() ? QVector<int> {value(row & 2), value(row | 1)} : QVector<int>();
        else if (!changed.isEmpty())
            verifyField(row, changed.section(',', row, row).toInt(), lock);
    }

    // Starts and ends alternate, and all reports come between them.
    void verifyEdits(const QString &heard)
    {
        static const QSet<QString> others {"", "finished", "left", "page", "key"};
        for (const QString &word : heard.split(' ')) {
            const bool isLock = word.contains("Lock");
            if (word == "start" || word == "late")
                QVERIFY(!std::exchange(m_isInEdit, true) && word == "start");
            else if (word == "end")
                QVERIFY(std::exchange(m_isInEdit, false));
            else
                QVERIFY(m_isInEdit || isLock || others.contains(word));
        }
    }

    // Nothing more is recorded, whatever the user was doing.
    void deleteEditor()
    {
        if (QTest::currentTestFailed())
            return;
        for (const QString &action : any(lastGestures).split(" | "))
            m_user.perform(m_user.rows.first().step(action));
        verifyEdits(m_user.heard());
        delete m_user.frame;
        QCoreApplication::processEvents();
        QCOMPARE(m_user.heard(), QString());
    }

    // Of the field that the user has changed and the field locked to it.
    void verifyField(int row, int changed, const QVector<int> &lock)
    {
        QVERIFY(value(row) <= room(row));
        const int partner = row ^ 1, from = lock.value(row & 1), to = lock.value(partner & 1);
        if (lock.isEmpty() || (row > 1 && from <= 0))
            return;
        const int val = row < 2 ? to + changed - from : qRound(double(changed) * to / from);
        const int most = row < 2 ? max(partner) : qMin(max(partner), room(partner));
        QCOMPARE(value(partner), qBound(min(partner), val, most));
    }

    static constexpr bool isCrop = std::is_same_v<Frame, CropEditFrame>;
    static constexpr bool isMask = std::is_same_v<Frame, MaskEditFrame>;

    const QStringList m_programSteps;
    std::mt19937 &m_random;
    UserOf<Frame> m_user;
    QVector<int> m_locks[2]; // the positions and the sizes where they were locked
    bool m_wasLocked[2] = {};
    QStringList m_done;
    QString m_reported;
    bool m_isInEdit = false;
};

template <typename Frame>
void add(const QString &start, const QStringList &steps, const QString &name = {})
{
    QTest::addRow("%s%s", Frame::staticMetaObject.className(), qPrintable(name)) << TestCode([=] {
        std::mt19937 random(unsigned(qEnvironmentVariableIntValue("VANTORSLIDER_SEED")));
        const int set = qEnvironmentVariableIntValue("VANTORSLIDER_GESTURES");
        for (int left = set > 0 ? set : 1000; left > 0 && !QTest::currentTestFailed(); left -= 50) {
            const QString done = Session<Frame>(start, steps, random).play(qMin(left, 50));
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(done));
        }
    });
}

} // namespace

// For orders of gestures that no row covers.
void tst_RandomGestures::editors_data()
{
    QTest::addColumn<TestCode>("code");
    const QStringList steps =
        QString("value ?; default ?; singleStep 1; singleStep 7; direction 2 "
                "?; direction 4 ?; direction 6 ?; prefix $; suffix px; suffix ")
            .split("; ");
    add<SliderEditFrame>("range -30 400", steps);
    add<SliderEditFrameDouble>("range -30 400", steps);
    const QString scale = "range 1 4000 | scale logarithmic";
    add<SliderEditFrame>(scale, steps, ", logarithmic");
    // Its reference is a whole number, which is out of this range.
    add<SliderEditFrameDouble>(scale, steps.filter(QRegularExpression("^(?!direction)")),
                               ", logarithmic");
    const QStringList colors {"r value ?", "g value ?", "b value ?", "g default ?"};
    add<RGBEditFrame>("g value 9", colors);
    add<RGBAllEditFrame>("all value 9", colors + QStringList {"all value ?"});
    add<RGBOpacityEditFrame>("opacity value 9", colors + QStringList {"opacity value 40"});
    add<RectEditFrame>("x range 0 640 | y range 0 360 | w range 0 640 | h range 0 360",
                       {"set ? ? ? ?", "x default ?", "h default ?"});
    add<CropEditFrame>("areaFrom 9 0 0 0 640 360",
                       {"crop ? ? ? ?", "y default ?", "w default ?", "w resetValue"});
    add<MaskEditFrame>("area 640 360",
                       {"mask ? ? ? ?", "x default ?", "w default ?", "x resetValue"});
}

// Rounding errors add up only over many edits.
void tst_RandomGestures::lockDoesNotDrift()
{
    EditorUser user(new RectEditFrame);
    user.play("w range 0 4000 | h range 0 4000 | set 0 0 1920 1080 | lock size: sizeLock(true)");
    for (int i = 0; i < 10000; ++i) {
        user.perform(QString(i % 2 == 0 ? "w " : "h ") + (i / 2 % 3 == 0 ? "minus" : "plus"));
        const int w = user.rows[2].slider->value(), h = user.rows[3].slider->value();
        QVERIFY2(qAbs(w * 1080 - h * 1920) * 2 <= 1920, qPrintable(user.shown()));
    }
}

QTEST_MAIN(tst_RandomGestures)

#include "tst_randomgestures.moc"
