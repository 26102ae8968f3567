#include "lostpointer_p.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Vantor::Widgets::Internal {

namespace {

// Sees all events of the application while a widget is pressed: a popup may be anybody's.
class PopupWatch : public QObject
{
public:
    explicit PopupWatch(QWidget *pressed) : QObject(pressed), m_pressed(pressed)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType()) {
            const auto *const shown = static_cast<QWidget *>(watched);
            if (shown->windowType() == Qt::Popup && shown != m_pressed->window()) {
                end();
                QEvent lost(QEvent::UngrabMouse); // Qt sends none to widgets
                QCoreApplication::sendEvent(m_pressed, &lost);
            }
        } else if (event->type() == QEvent::MouseButtonRelease && watched == m_pressed
                   && static_cast<QMouseEvent *>(event)->buttons() == Qt::NoButton) {
            end();
        }
        return false;
    }

private:
    void end()
    {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QWidget *const m_pressed;
};

} // namespace

bool isPointerLostBy(const QEvent *event, const QWidget *pressed)
{
    const QWidget *popup = nullptr;
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::UngrabMouse:
        return true;
    case QEvent::EnabledChange:
        return !pressed->isEnabled();
    case QEvent::FocusOut:
        popup = QApplication::activePopupWidget();
        return popup != nullptr && popup != pressed->window();
    default:
        return false;
    }
}

void watchForPopup(QWidget *pressed)
{
    if (!pressed->hasFocus()) {
        new PopupWatch(pressed);
    }
}

} // namespace Vantor::Widgets::Internal
