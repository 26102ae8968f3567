#pragma once

#include "edituser.h"
#include "recteditframe.h"

// The rows are x, y, w and h. The words of any rectangle editor:
//   "lock position", "lock size"   the user clicks a lock button
//   "offset", "scale"              the program chooses the kind of the size lock,
//   "size lock on" (or off), "ratio 1.5"  switches it, sets its proportion
//   "range w 0 500", "set 0 0 10 20"  sets a field's range, the whole rectangle
class RectUser : public EditUser
{
public:
    explicit RectUser(Vantor::Widgets::RectEditFrame &frame)
        : EditUser(
            frame, QStringLiteral("xywh"),
            {{frame, "frameX"}, {frame, "frameY"}, {frame, "frameWidth"}, {frame, "frameHeight"}}),
          positionLock(frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockPosition"))),
          sizeLock(frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockSize"))),
          m_frame(frame)
    {
        log.watch(&frame, &Frame::valueChanged, QString());
        log.watch(&frame, &Frame::xValueChanged, QStringLiteral("x"));
        log.watch(&frame, &Frame::yValueChanged, QStringLiteral("y"));
        log.watch(&frame, &Frame::widthValueChanged, QStringLiteral("w"));
        log.watch(&frame, &Frame::heightValueChanged, QStringLiteral("h"));
        log.watch(&frame, &Frame::sizeLockChanged, QStringLiteral("sizeLock"));
        log.watch(&frame, &Frame::PositionLockChanged, QStringLiteral("positionLock"));
        frame.setPositionLockEnable(true);
        frame.setSizeLockEnable(true, Frame::SizeScaleLock);
    }

    // The program knows the words of the class under test.
    void check(const QString &steps, const Program &program = {})
    {
        EditUser::check(steps, [&](const Words &words) {
            if (words[0] == QLatin1String("lock"))
                User::click(words[1] == QLatin1String("size") ? sizeLock : positionLock);
            else if (words[0] == QLatin1String("offset"))
                m_frame.setSizeLockEnable(true, Frame::OffsetLock);
            else if (words[0] == QLatin1String("scale"))
                m_frame.setSizeLockEnable(true, Frame::SizeScaleLock);
            else if (words[0] == QLatin1String("size"))
                m_frame.setSizeLock(words[2] == QLatin1String("on"));
            else if (words[0] == QLatin1String("ratio"))
                m_frame.setSizeLock(words[1].toDouble());
            else if (words[0] == QLatin1String("range"))
                m_frame.setRange(flag(index(words[1])), words[2].toInt(), words[3].toInt());
            else if (words[0] == QLatin1String("set"))
                m_frame.setValue(words[1].toInt(), words[2].toInt(), words[3].toInt(),
                                 words[4].toInt());
            else
                program(words);
        });
    }

    static Vantor::Widgets::RectEditFrame::Type flag(int row) { return Frame::Type(2 << row); }

    QToolButton *const positionLock;
    QToolButton *const sizeLock;

private:
    using Frame = Vantor::Widgets::RectEditFrame;
    Frame &m_frame;
};
