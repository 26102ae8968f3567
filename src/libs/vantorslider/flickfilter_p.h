#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QScroller>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QMouseEvent;
class QPoint;
class QWidget;
class QWindow;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// The option FlickScrolls of a row. Qt makes mouse events of a touch that no widget accepts. This
// filter of the row's window holds the press back until the finger has moved along, has rested or
// is lifted. If it moves up or down first, the row receives nothing, and the page scrolls.
class FlickFilter : public QObject
{
public:
    // Switches the option of a row on or off.
    static void setOn(QWidget *row, bool isOn);

    ~FlickFilter() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum State {
        Idle, // no finger is on the row
        Undecided,
        Pressing, // the row receives the mouse events
        Flicking // the row receives nothing, and the page may scroll
    };

    explicit FlickFilter(QWidget *row);

    void watchWindow();
    void beginAt(const QPoint &globalPos);
    bool filterMouse(const QMouseEvent *event);
    void press();
    void flick();
    void drop();
    void end();
    QScroller *scroller() const;
    void sendToScroller(QScroller::Input input, const QMouseEvent *event, qint64 time) const;
    void setHiddenFromTouch(bool isHidden);

    QWidget *const m_row;
    QPointer<QWindow> m_window;
    State m_state = Idle;
    QPointer<QWidget> m_touched; // the row or a child of it
    std::vector<std::unique_ptr<QMouseEvent>> m_held;
    QBasicTimer m_rest;
    QElapsedTimer m_sinceTouch;
    bool m_isHiddenFromTouch = false;
    bool m_isDrivingScroller = false;
};

} // namespace Vantor::Widgets::Internal
