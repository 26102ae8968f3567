#pragma once

#include "cropeditframe.h"
#include "editorrow.h"
#include "maskeditframe.h"
#include "recteditframe.h"

// A row of a composite editor.
using Row = EditorParts<Vantor::Widgets::SliderEditFrame>;

inline Row rowOf(const QWidget &editor, const QString &name)
{
    return Row(editor.findChild<Vantor::Widgets::SliderEditFrame *>(name));
}

// Rows by their type flags.
using Rows = QMap<int, Row>;

inline Rows rowsOf(const QWidget &editor)
{
    const QVector<QStringList> names {{"frameR", "frameX"},
                                      {"frameG", "frameY"},
                                      {"frameB", "frameWidth"},
                                      {"frameAll", "frameOpacity", "frameHeight"}};
    Rows rows;
    for (int i = 0; i < names.size(); ++i) {
        for (const QString &name : names[i]) {
            if (editor.findChild<QWidget *>(name))
                rows.insert(2 << i, rowOf(editor, name));
        }
    }
    return rows;
}

inline QString limits(int min, int max)
{
    return QStringLiteral("%1..%2").arg(min).arg(max);
}

// The messages of an entry that ends with Enter, around the signals that it
// causes: the key, the loss of the focus, the spin box's own end of editing.
inline QStringList entered(const QStringList &causedSignals)
{
    const QString finished = "debug: SpinBox editing finished";
    return QStringList {finished, finished} + causedSignals
        + QStringList {finished, "debug: SpinBox lose focus."};
}

// The user of a composite editor and the log of its signals.
class EditUser
{
public:
    explicit EditUser(const QVector<Row> &rowsInOrder) : rows(rowsInOrder) { }

    EventLog log;
    const QVector<Row> rows;
};

// A rectangle editor with its user and the program around it, who work by the
// steps of a table, "w=3: w(3) (0,0,3,0) | w-: w(2) (0,0,2,0)": what is done and,
// behind the colon, the signals that it causes, in order; the one without a name
// is the editor's valueChanged(). The rows are x, y, w and h, or the margins of a
// mask.
//   "w=12*3"              the user types into the field and presses Enter
//   "x+", "y-"            clicks a step button
//   "lock position", "lock size"  clicks a lock button
//   "fields", "ranges"    logs what the fields hold
//   "size lock on" (or off), "ratio 1.5"  the program switches the size lock, sets
//                         its proportion
//   "range w 0 500", "set 0 0 10 20"  sets a field's range, the whole rectangle
//   "area", "leastPosition", "leastSize", "crop", "rect"  those of the crop editor
//   "area", "mask"        those of the mask editor
class RectUser : public EditUser
{
public:
    using Frame = Vantor::Widgets::RectEditFrame;

    explicit RectUser(Frame &frame)
        : EditUser({rowOf(frame, "frameX"), rowOf(frame, "frameY"), rowOf(frame, "frameWidth"),
                    rowOf(frame, "frameHeight")}),
          positionLock(frame.findChild<QToolButton *>("toolButtonLockPosition")),
          sizeLock(frame.findChild<QToolButton *>("toolButtonLockSize")), m_frame(frame),
          m_crop(qobject_cast<Vantor::Widgets::CropEditFrame *>(&frame)),
          m_mask(qobject_cast<Vantor::Widgets::MaskEditFrame *>(&frame))
    {
        log.watch(&frame, &Frame::valueChanged, QString());
        log.watch(&frame, &Frame::xValueChanged, "x");
        log.watch(&frame, &Frame::yValueChanged, "y");
        log.watch(&frame, &Frame::widthValueChanged, "w");
        log.watch(&frame, &Frame::heightValueChanged, "h");
        log.watch(&frame, &Frame::sizeLockChanged, "sizeLock");
        log.watch(&frame, &Frame::PositionLockChanged, "positionLock");
        if (m_crop)
            log.watch(m_crop, &Vantor::Widgets::CropEditFrame::cropValueChanged, "crop");
        if (m_mask)
            log.watch(m_mask, &Vantor::Widgets::MaskEditFrame::maskValueChanged, "mask");
        frame.setPositionLockEnable(true);
        frame.setSizeLockEnable(true, Frame::SizeScaleLock);
    }

    void check(const QString &steps)
    {
        QVERIFY(User::show(m_frame));
        log.take(); // the platform's own messages
        for (const QString &step : steps.split(" | ")) {
            const QString action = step.section(": ", 0, 0);
            perform(action, action.split(' '));
            QStringList expected {step.section(": ", 1)};
            if (action.contains('='))
                expected = entered(expected);
            const QString actual = log.take().join(' ').replace(", ", ",");
            QVERIFY2(actual == expected.join(' '), qPrintable(step + " but was " + actual));
        }
    }

    static Frame::Type flag(int row) { return Frame::Type(2 << row); }

    QToolButton *const positionLock;
    QToolButton *const sizeLock;

private:
    static int rowIndex(const QString &action)
    {
        return static_cast<int>(QString("xywh").indexOf(action[0]));
    }

    void perform(const QString &action, const QStringList &words)
    {
        const QString &verb = words[0];
        const auto n = [&words](int i) { return words[i].toInt(); };
        if (action.contains('='))
            rows[rowIndex(action)].type(action.mid(2) + '\n');
        else if (action.endsWith('+'))
            User::click(rows[rowIndex(action)].plus);
        else if (action.endsWith('-'))
            User::click(rows[rowIndex(action)].minus);
        else if (verb == "fields")
            show([](const Row &row) { return row.spinBox->text(); });
        else if (verb == "ranges")
            show([](const Row &row) { return limits(row.frame->minimum(), row.frame->maximum()); });
        else if (verb == "lock")
            User::click(words[1] == "size" ? sizeLock : positionLock);
        else if (verb == "size")
            m_frame.setSizeLock(words[2] == "on");
        else if (verb == "ratio")
            m_frame.setSizeLock(words[1].toDouble());
        else if (verb == "range")
            m_frame.setRange(flag(rowIndex(words[1])), n(2), n(3));
        else if (verb == "set")
            m_frame.setValue(n(1), n(2), n(3), n(4));
        else if (verb == "area" && m_mask)
            m_mask->setMaskRange(n(1), n(2));
        else if (verb == "area" && words.size() == 3)
            m_crop->setCropRange(n(1), n(2));
        else if (verb == "area")
            m_crop->setCropRange(n(1), n(2), n(3), n(4), n(5), n(6));
        else if (verb == "leastPosition")
            m_crop->setCropMinPos(n(1), n(2));
        else if (verb == "leastSize")
            m_crop->setCropMinSize(n(1), n(2));
        else if (verb == "crop")
            m_crop->setCropValue(n(1), n(2), n(3), n(4));
        else if (verb == "rect")
            m_crop->setCropValue(QRect(n(1), n(2), n(3), n(4)));
        else if (verb == "mask")
            m_mask->setMaskValue(n(1), n(2), n(3), n(4));
        else
            QFAIL(qPrintable("What is " + action));
    }

    template <typename Text> void show(Text text)
    {
        QStringList texts;
        for (const Row &row : rows)
            texts.append(text(row));
        log.add(texts.join(' '));
    }

    Frame &m_frame;
    Vantor::Widgets::CropEditFrame *const m_crop;
    Vantor::Widgets::MaskEditFrame *const m_mask;
};
