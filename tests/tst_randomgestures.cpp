#include "cropeditframe.h"
#include "editoruser.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtCore/QRegularExpression>

#include <random>

using namespace Vantor::Widgets;

// What must hold whatever a user does, looked at after every gesture. The same seed
// does the same; VANTORSLIDER_SEED and VANTORSLIDER_GESTURES (a number per editor)
// choose others.
class tst_RandomGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editors_data();
    void editors() { runCheck(); }
    void lockDoesNotDrift();
};

namespace {

int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

// What the user does with a row. "#" is a position, at times beyond the range.
const QStringList gestures =
    QString("plus; minus; enter (#+7-7)/1; type (#+7-7)/1\t; click | up | keys \n; "
            "click | down | keys \n; groove before; groove after; wheel; hold | drop; "
            "hold | move # | drop; hold | move # | move # | tick | drop; "
            "hold | move # | tick | move # | tick | move # | drop")
        .split("; ");

// What the program does: first of all, and then any of its steps. "?" is a position
// within the range that leaves room for another one in the area: a value beyond the
// range is remembered as it was set, and counts as new when an entry ends.
struct Program
{
    QString start;
    QStringList steps;
    bool hasLocks = false;
};

// A new editor with its user and program, and what must hold of them.
template <typename Frame> class Session
{
public:
    Session(const Program &program, double unit, std::mt19937 &random)
        : m_program(program), m_user(new Frame, unit), m_random(random),
          m_hasLocks(program.hasLocks && number(0, 1) == 0)
    {
        const QString mode = any({"", " | released", " | sampled"});
        for (const QString &step : (program.start + mode + " | " + program.steps[0]).split(" | "))
            playProgram(step);
    }

    void play(int count)
    {
        for (int i = 0; i < count && !QTest::currentTestFailed(); ++i) {
            if (number(0, 9) == 0)
                playProgram(any(m_program.steps));
            else if (m_hasLocks && number(0, 9) == 0)
                playUser(0, any({"lock position", "lock size"}));
            else
                playUser(number(0, static_cast<int>(m_user.rows.size()) - 1), any(gestures));
        }
    }

private:
    int number(int least, int greatest)
    {
        return std::uniform_int_distribution<int>(least, greatest)(m_random);
    }
    QString any(const QStringList &texts)
    {
        return texts[number(0, static_cast<int>(texts.size()) - 1)];
    }

    int value(int row) const { return m_user.rows[row].slider->value(); }
    int min(int row) const { return m_user.rows[row].slider->minimum(); }
    int max(int row) const { return m_user.rows[row].slider->maximum(); }
    // The most that the area leaves for a field beside its position or size, or for a
    // margin beside the opposite one.
    int room(int row) const
    {
        if (isMask)
            return max(row) - value(row ^ 1);
        return isCrop ? min(row & 1) + max(row | 2) - value(row ^ 2) : max(row);
    }

    void playProgram(QString step)
    {
        for (int row = 0; step.contains('?'); ++row)
            step.replace(step.indexOf('?'), 1, QString::number(number(min(row), max(row) / 2)));
        const QString heard = perform(step);
        verify(heard.isEmpty(), "The program is heard");
        m_reported = m_user.shown();
    }

    void playUser(int row, QString gesture)
    {
        while (gesture.contains('#'))
            gesture.replace(gesture.indexOf('#'), 1,
                            QString::number(number(min(row) - 5, max(row) + 5)));
        if (!m_user.rows[0].whole)
            gesture.replace("/1", "/100");
        const bool isLock = gesture.startsWith("lock"), isEntry = gesture.contains('(');
        bool isChange = false;
        for (const QString &action : gesture.split(" | ")) {
            const QString heard = perform(isLock ? action : m_user.rows[row].step(action));
            verify(!heard.contains("warning") && !heard.contains("too early"), "A complaint");
            int count = 0;
            for (const QString &word : heard.split(' ')) {
                const QString values = word.section('(', -1).remove(')').replace(',', ' ');
                const bool isReport = word.contains(QRegularExpression("^[(\\d-]"));
                if (isReport) {
                    ++count;
                    m_changed = values.split(' ');
                }
                if (isCrop || isMask ? word.contains(QRegularExpression("^crop|^mask")) : isReport)
                    m_reported = values;
            }
            // What a lock has clamped is reported before the entry.
            verify(count <= (isEntry && m_hasLocks ? 2 : 1), "More than one report");
            isChange = isChange || count > 0;
        }
        verify(m_user.shown() == m_reported, "The last report is not what is shown");
        for (const EditorRow &each : m_user.rows)
            verify(!each.whole || each.whole->value() == each.slider->value(), "Not held");
        if (isLock)
            toggleLock(gesture == "lock size");
        else if (isChange && std::is_base_of_v<RectEditFrame, Frame>)
            verifyRect(row);
    }

    void toggleLock(bool isSize)
    {
        m_isLocked[isSize] = !m_isLocked[isSize];
        for (const int row : {0 + 2 * isSize, 1 + 2 * isSize})
            m_lockedValues[row] = value(row);
    }

    // Of the field that the user has changed and what is locked to it.
    void verifyRect(int row)
    {
        verify(value(row) <= room(row), "Out of the area");
        const int partner = row ^ 1, changed = m_changed[row].toInt();
        const bool isOffset = row < 2;
        const int from = m_lockedValues[row], to = m_lockedValues[partner];
        if (!m_isLocked[row / 2] || (!isOffset && from <= 0))
            return;
        const int val = isOffset ? to + changed - from : qRound(double(changed) * to / from);
        const int most = isOffset ? max(partner) : qMin(max(partner), room(partner));
        verify(value(partner) == qBound(min(partner), val, most), "Not as locked");
    }

    QString perform(const QString &step)
    {
        m_user.perform(step);
        const QString heard = m_user.heard();
        m_steps.append(heard.isEmpty() ? step : step + ": " + heard);
        return heard;
    }
    // A failure shows all that was done: a row for a table.
    void verify(bool isTrue, const char *fault)
    {
        if (isTrue || QTest::currentTestFailed())
            return;
        const QString row = m_steps.join(" | ").replace('\t', "\\t").replace('\n', "\\n");
        QFAIL(qPrintable(QString("%1 after\n%2\nshown: %3").arg(fault, row, m_user.shown())));
    }

    static constexpr bool isCrop = std::is_same_v<Frame, CropEditFrame>;
    static constexpr bool isMask = std::is_same_v<Frame, MaskEditFrame>;

    const Program m_program;
    EditorUser m_user;
    std::mt19937 &m_random;
    const bool m_hasLocks;
    bool m_isLocked[2] = {false, false}; // position, size
    int m_lockedValues[4] = {0, 0, 0, 0};
    QStringList m_steps, m_changed;
    QString m_reported;
};

template <typename Frame> void add(const Program &program, double unit = 1)
{
    constexpr int length = 50;
    QTest::newRow(Frame::staticMetaObject.className()) << Check([=] {
        std::mt19937 random(static_cast<unsigned>(setting("VANTORSLIDER_SEED", 1)));
        int left = setting("VANTORSLIDER_GESTURES", 1000);
        for (; left > 0 && !QTest::currentTestFailed(); left -= length)
            Session<Frame>(program, unit, random).play(qMin(left, length));
    });
}

} // namespace

void tst_RandomGestures::editors_data()
{
    qInfo("seed %d", setting("VANTORSLIDER_SEED", 1));
    QTest::addColumn<Check>("check");
    const Program row {
        "range -30 400",
        {"value ?", "step 1", "step 7", "direction 2 ?", "direction 4 ?", "direction 6 ?"}};
    add<SliderEditFrame>(row);
    add<SliderEditFrameDouble>(row, 0.01);
    const QStringList colors {"r value ?", "g value ?", "b value ?"};
    add<RGBEditFrame>({"g value 9", colors});
    add<RGBAllEditFrame>({"all value 9", colors + QStringList {"all value ?"}});
    add<RGBOpacityEditFrame>({"opacity value 9", colors + QStringList {"opacity value 40"}});
    add<RectEditFrame>(
        {"x range 0 640 | y range 0 360 | w range 0 640 | h range 0 360", {"set ? ? ? ?"}, true});
    add<CropEditFrame>({"areaFrom 9 0 0 0 640 360", {"crop ? ? ? ?"}, true});
    add<MaskEditFrame>({"area 640 360", {"mask ? ? ? ?"}});
}

void tst_RandomGestures::lockDoesNotDrift()
{
    EditorUser user(new RectEditFrame);
    user.play("w range 0 4000 | h range 0 4000 | set 0 0 1920 1080 | lock size: sizeLock(true)");
    for (int i = 0; i < 10000; ++i) {
        user.perform(QString(i % 2 == 0 ? "w " : "h ") + (i / 2 % 3 == 0 ? "minus" : "plus"));
        const int w = user.rows[2].slider->value(), h = user.rows[3].slider->value();
        QVERIFY2(qAbs(w * 1080 - h * 1920) * 2 <= 1920,
                 qPrintable(QString("%1: %2 x %3").arg(i).arg(w).arg(h)));
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_RandomGestures>(argc, argv);
}

#include "tst_randomgestures.moc"
