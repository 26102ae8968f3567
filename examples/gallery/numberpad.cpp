#include "numberpad.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

NumberPad::NumberPad(QWidget *parent)
    : // No window system activates a window of this type.
      QFrame(parent, Qt::ToolTip | Qt::WindowDoesNotAcceptFocus), m_keys(new QGridLayout(this))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(QFrame::Box);
    setAccessibleName(tr("Number pad"));
    // Numbers read from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
    m_keys->setSpacing(6);

    const QString rows[] = {QStringLiteral("789/("), QStringLiteral("456*)"),
                            QStringLiteral("123-"), QStringLiteral("0.=+")};
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < rows[row].size(); ++column) {
            const QChar key = rows[row].at(column);
            addKey(row, column, key, key.unicode());
        }
    }
    addKey(2, 4, QStringLiteral("⌫"), Qt::Key_Backspace, tr("Backspace"));
    addKey(3, 4, QStringLiteral("⏎"), Qt::Key_Enter, tr("Enter"));

    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget * /*old*/, QWidget *now) { followFocus(now); });
    qApp->installEventFilter(this);
}

void NumberPad::setEnabledByFocus(bool enabled)
{
    m_isEnabled = enabled;
    followFocus(QApplication::focusWidget());
}

QPushButton *NumberPad::button(const QString &text) const
{
    return findChild<QPushButton *>(text);
}

bool NumberPad::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && isVisible()) {
        auto *pressed = static_cast<QWidget *>(watched);
        QWidget *field = QApplication::focusWidget();
        if (field && pressed->window() != this && pressed != field
            && !field->isAncestorOf(pressed)) {
            field->clearFocus(); // many widgets take no focus on a click
        }
    }
    return QFrame::eventFilter(watched, event);
}

void NumberPad::addKey(int row, int column, const QString &text, int key, const QString &name)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(text);
    button->setAccessibleName(name.isEmpty() ? text : name);
    button->setFocusPolicy(Qt::NoFocus);
    button->setMinimumSize(56, 52);
    button->setAutoRepeat(key == Qt::Key_Backspace);
    m_keys->addWidget(button, row, column);

    connect(button, &QPushButton::clicked, this, [this, key, text] {
        QWidget *field = QApplication::focusWidget();
        if (!field) {
            return;
        }
        const bool isCharacter = key < Qt::Key_Escape;
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, isCharacter ? text : QString());
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, isCharacter ? text : QString());
        QApplication::sendEvent(field, &press);
        QApplication::sendEvent(field, &release);
    });
}

void NumberPad::followFocus(QWidget *widget)
{
    const QString kind = widget ? widget->property("Quelmo_VK").toString() : QString();
    if (!kind.isEmpty()) {
        // The pad takes the place of the platform's keyboard.
        widget->setAttribute(Qt::WA_InputMethodEnabled, !m_isEnabled);
    }
    if (!m_isEnabled || kind.isEmpty()) {
        hide();
        return;
    }
    button(QStringLiteral("."))->setEnabled(kind == QLatin1String("Vk_NumberFloat"));
    place(*widget);
    show();
}

// Below the field, or above it at the end of the screen, with the far edges of
// both aligned. On a low screen it is beside the field.
void NumberPad::place(const QWidget &field)
{
    adjustSize();
    const int gap = 6;
    const QRect area(field.mapToGlobal(QPoint()), field.size());
    QPoint corner(area.right() - width() + 1, area.bottom() + gap);
    if (const QWindow *window = field.window()->windowHandle()) {
        const QRect screen =
            window->screen()->availableGeometry().united(field.window()->geometry());
        if (corner.y() + height() > screen.bottom()) {
            corner.setY(area.top() - gap - height());
        }
        if (corner.y() < screen.top()) {
            const int before = area.left() - gap - width();
            corner.setX(before < screen.left() ? area.right() + gap : before);
            corner.setY(
                qBound(screen.top(), area.center().y() - height() / 2, screen.bottom() - height()));
        }
        corner.setX(qBound(screen.left(), corner.x(), screen.right() - width()));
    }
    move(corner);
}
