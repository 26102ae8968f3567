#pragma once

#include "userevents.h"

#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>

#include <functional>

// User actions that only tests need.
namespace User {

// Shows the window and waits until it is active; false if it never is.
[[nodiscard]] bool show(QWidget &window);
void paste(const QString &text);
// What a held Enter sends again and again.
void repeatEnter();
// Presses the key of that name, such as Tab or Escape, or types the text.
void typeOrPress(const QString &word);
// An input method shows a text in the field, underlined, or inserts one, instead of that many
// characters before the cursor.
void useInputMethod(const QString &shown, const QString &inserted = {}, int replaced = 0);
// A language of upper case letters, until it is destroyed.
struct UpperCase : QTranslator
{
    UpperCase();
    ~UpperCase() override;
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString(text).toUpper();
    }
};

// Fingers on a touch screen, by number. The first touches at a point of the widget.
void touch(QWidget *widget, const QPoint &pos, int finger = 0);
void moveFinger(const QPoint &by);
void moveFingerTo(const QWidget *widget, int x); // along
void lift(int finger = 0);

} // namespace User

// Whether it becomes true within five seconds, while events are delivered. QTRY_VERIFY() of
// Qt 6.8 narrows its time limit, which -Wconversion reports.
[[nodiscard]] bool comesTrue(const std::function<bool()> &condition);

// The interval of the editor's sampling timer, -1 if none runs. A test sets a
// long interval and sends the ticks itself.
int samplingInterval(QObject *editor);
void tick(QObject *editor);

// Delivers posted events: those of the layouts go from a field up to the page, and down again.
void settle();
// The widget as it looks then.
QImage pictureOf(QWidget *widget);
QString contentOf(const QString &path);
// The sheet of a theme, such as "desktop". Its pictures are found from then on.
QString themeSheet(const QString &theme);

// The lines of a table, without comments.
QStringList linesOf(const QString &path);
