#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <array>
#include <cmath>
#include <deque>
#include <functional>

// The rules of the editors once more, as plain arithmetic without widgets: what
// a row makes of the reports of Qt's slider and spin box, and what the composite
// editors make of their rows. Each logs as EventLog does. Numbers stay small
// here; saturation has tests of its own.

struct RowModel
{
    enum Direction { ToBigger = 2, ToSmaller = 4, ToAny = 6 };

    int min = 0, max = 99, value = 0;
    int last = 0; // not clamped: the children may hold another value
    int directions = ToAny, reference = 0;
    bool isReleaseMode = false, isSampling = false;
    std::function<void(const QString &)> log;
    std::function<void(int)> reported;

    // The program.

    void set(int val)
    {
        last = val;
        value = qBound(min, val, max);
        m_entryMin = min;
        m_entryMax = max;
        m_hasEntry = false; // the field shows the value instead
    }

    void setRange(int least, int greatest)
    {
        min = least;
        max = greatest;
        value = qBound(min, value, max);
    }

    void allow(int allowedDirections, int from)
    {
        directions = allowedDirections;
        reference = from;
    }

    // The user. An entry ends with the focus, which goes to the frame on Enter.

    void step(int by)
    {
        if (value + by >= min && value + by <= max)
            apply(value + by);
    }

    void stepInSpinBox(int by)
    {
        spinBoxChanged(qBound(min, value + by, max));
        pressEnter();
    }

    void enter(int val)
    {
        evaluate(val);
        pressEnter();
    }

    void leave(int val)
    {
        evaluate(val);
        loseFocus();
    }

    void sliderPressed()
    {
        m_isSampledAnew = false;
        if (isSampling)
            m_sampled = value;
    }

    void sliderMoved(int val)
    {
        if (val == last || isReleaseMode)
            return;
        set(val);
        if (!isSampling)
            report(value);
        else if (val != m_sampled)
            m_isSampledAnew = true;
    }

    void tick()
    {
        if (value == m_sampled)
            return;
        report(value);
        m_sampled = value;
    }

    void sliderReleased()
    {
        if (value == (isSampling ? m_sampled : last))
            return;
        set(value);
        if (!isSampling || m_isSampledAnew)
            report(value);
    }

    void sliderChanged(int val)
    {
        if (val == last)
            return;
        m_isSampledAnew = m_isSampledAnew || val != m_sampled;
        apply(val);
    }

private:
    void apply(int val)
    {
        set(val);
        report(value);
    }

    void report(int val)
    {
        if (directions != ToAny) {
            const bool isAllowed = directions & ToBigger ? val >= reference : val <= reference;
            val = isAllowed ? val : reference;
            set(val);
        }
        reported(val);
    }

    void evaluate(int val)
    {
        m_entry = qBound(m_entryMin, val, m_entryMax);
        m_hasEntry = true;
    }

    void spinBoxChanged(int val)
    {
        if (val == value)
            return;
        value = val;
        if (val != last)
            apply(val);
    }

    void editingFinished()
    {
        log(QStringLiteral("debug: SpinBox editing finished"));
        if (value != last) {
            last = value;
            report(value);
        }
    }

    void loseFocus()
    {
        editingFinished();
        if (m_hasEntry) {
            m_hasEntry = false;
            spinBoxChanged(qBound(min, m_entry, max));
        }
        editingFinished();
    }

    void pressEnter()
    {
        editingFinished();
        loseFocus();
        log(QStringLiteral("debug: SpinBox lose focus."));
    }

    int m_entryMin = 0, m_entryMax = 99; // of the calculator, as of the last set()
    int m_entry = 0;
    bool m_hasEntry = false;
    int m_sampled = -1;
    bool m_isSampledAnew = false;
};

// Rows that know nothing of each other: the colour editors.
class EditorModel
{
public:
    explicit EditorModel(int count)
    {
        for (int row = 0; row < count; ++row) {
            rows.emplace_back();
            rows.back().log = [this](const QString &entry) { log.append(entry); };
            rows.back().reported = [this, row](int val) { fieldReported(row, val); };
        }
    }
    virtual ~EditorModel() = default;
    EditorModel(const EditorModel &) = delete;
    EditorModel &operator=(const EditorModel &) = delete;

    std::deque<RowModel> rows;
    QStringList log;

protected:
    virtual void fieldReported(int row, int val) { emitSignal({}, values(row, val)); }

    QVector<int> values(int changed, int val) const
    {
        QVector<int> result;
        for (const RowModel &row : rows)
            result.append(row.value);
        result[changed] = val;
        return result;
    }

    void emitSignal(const QString &name, const QVector<int> &arguments)
    {
        QStringList texts;
        for (const int argument : arguments)
            texts.append(QString::number(argument));
        log.append(name + QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')'));
    }
};

// Rows x, y, width and height, or the margins of a mask.
class RectModel : public EditorModel
{
public:
    enum Kind { Plain, Crop, Mask };
    enum Field { X, Y, W, H };

    explicit RectModel(Kind kind) : EditorModel(4), m_kind(kind) { }

    bool isPositionLocked = false, isSizeLocked = false, isOffset = false;
    std::array<int, 4> locked {0, 0, -1, -1};

    // As the crop's or the mask's own setter: remembered as reported.
    void set(const QVector<int> &values)
    {
        m_reported = values;
        for (int row = X; row <= H; ++row) {
            rows[row].set(values[row]);
            if (m_kind == Mask)
                rows[row].allow(values[row] + values[row ^ 1] >= limit(row) ? RowModel::ToSmaller
                                                                            : RowModel::ToAny,
                                values[row]);
        }
    }

    void togglePositionLock()
    {
        isPositionLocked = !isPositionLocked;
        capture(X, isPositionLocked);
        log.append(QStringLiteral("positionLock(%1)").arg(QVariant(isPositionLocked).toString()));
    }

    void setSizeLock(bool isOn)
    {
        if (isSizeLocked != isOn)
            log.append(QStringLiteral("sizeLock(%1)").arg(QVariant(isOn).toString()));
        isSizeLocked = isOn;
        capture(W, isOn);
    }

    void setRatio(double ratio)
    {
        locked[W] = static_cast<int>(std::lround(ratio * 1000));
        locked[H] = 1000;
    }

    // The other of position and size, or of two opposite margins.
    int partner(int row) const { return m_kind == Mask ? row ^ 1 : row ^ 2; }

    // What a row and its partner may come to. The areas' maxima are the ends of
    // the rows: a mask's margin may be as wide as the area.
    int limit(int row) const
    {
        return m_kind == Mask ? rows[row].max : rows[row % 2].min + rows[row % 2 + 2].max;
    }

protected:
    void fieldReported(int row, int val) override
    {
        if (row < W ? isPositionLocked : isSizeLocked && isOffset)
            moveAlong(row, val);
        else if (row == W && isSizeLocked && locked[W] > 0)
            val = scaleFromWidth(val);
        else if (row == H && isSizeLocked && locked[H] > 0)
            val = scaleFromHeight(val);
        emitField(row, val);
        emitSignal({}, values(row, val));
    }

private:
    // a * b / c in whole numbers, half away from zero.
    static int scaled(qint64 a, qint64 b, qint64 c)
    {
        const qint64 magnitude = (2 * qAbs(a * b) + qAbs(c)) / (2 * qAbs(c));
        return static_cast<int>((a * b < 0) == (c < 0) ? magnitude : -magnitude);
    }

    void capture(int row, bool isOn)
    {
        for (const int i : {row, row + 1}) {
            if (isOn)
                locked[i] = rows[i].value;
            rows[i].allow(RowModel::ToAny, 0);
        }
    }

    void moveAlong(int row, int val)
    {
        RowModel &other = rows[row ^ 1];
        other.set(locked[row ^ 1] + val - locked[row]);
        rows[row].allow(other.value == other.max ? RowModel::ToSmaller : RowModel::ToAny, val);
    }

    int offset(int row) const { return rows[row].value - rows[row].min; }

    int scaleFromWidth(int w)
    {
        if (w + offset(X) >= rows[W].max) {
            w = rows[W].max - offset(X);
            rows[W].allow(RowModel::ToSmaller, w);
        }
        int h = scaled(locked[H], w, locked[W]);
        if (locked[H] != 0 && offset(Y) + h >= rows[H].max) {
            w = scaled(locked[W], rows[H].max - offset(Y), locked[H]);
            rows[W].allow(RowModel::ToSmaller, w);
            h = scaled(locked[H], w, locked[W]);
        } else if (locked[H] != 0 && (h > rows[H].max || h < rows[H].min)) {
            w = scaled(locked[W], rows[H].value, locked[H]);
            h = scaled(locked[H], w, locked[W]);
        }
        rows[W].set(w);
        rows[H].set(h);
        emitField(H, h);
        return w;
    }

    // The width limit looks at the height as it came in.
    int scaleFromHeight(int h)
    {
        const int asked = scaled(locked[W], h, locked[H]);
        if (h + offset(Y) >= rows[H].max) {
            h = rows[H].max - offset(Y);
            rows[H].allow(RowModel::ToSmaller, h);
        }
        if (locked[W] != 0 && asked + offset(X) >= rows[W].max) {
            h = scaled(locked[H], rows[W].max - offset(X), locked[W]);
            rows[H].allow(RowModel::ToSmaller, h);
        } else if (locked[W] != 0 && (asked > rows[W].max || asked < rows[W].min)) {
            h = scaled(locked[H], rows[W].value, locked[W]);
        }
        const int w = scaled(locked[W], h, locked[H]);
        rows[H].set(h);
        rows[W].set(w);
        emitField(W, w);
        return h;
    }

    // The crop and the mask hear of a field before the host does.
    void emitField(int row, int val)
    {
        if (m_kind != Plain)
            hold(row, val);
        emitSignal(QStringLiteral("xywh").at(row), {val});
    }

    void hold(int row, int val)
    {
        const int other = rows[partner(row)].value;
        const bool isFull = other + val >= limit(row);
        val = isFull ? limit(row) - other : val;
        const int directions = isFull ? RowModel::ToSmaller : RowModel::ToAny;
        rows[row].allow(directions, val);
        rows[partner(row)].allow(directions, other);
        const QVector<int> held = values(row, val);
        for (int i = X; i <= H; ++i)
            rows[i].set(held[i]);
        if (held == m_reported)
            return;
        m_reported = held;
        emitSignal(m_kind == Crop ? QStringLiteral("crop") : QStringLiteral("mask"), held);
    }

    const Kind m_kind;
    QVector<int> m_reported {0, 0, 0, 0};
};
