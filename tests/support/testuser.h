#pragma once

#include "userevents.h"

#include <QtCore/QLocale>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>

#include <functional>

// What only tests let the user do.
namespace User {

// Shows the window and waits until it is active; false if it never is.
[[nodiscard]] bool show(QWidget &window);
void paste(const QString &text);
// A click on the groove before (false) or behind (true) the handle.
void clickGroove(QSlider *slider, bool behind);

} // namespace User

// Whether it is true within five seconds, while events are delivered. QTRY_VERIFY() of
// Qt 6.8 narrows its time limit, which -Wconversion minds.
[[nodiscard]] bool comesTrue(const std::function<bool()> &condition);

// The interval of the editor's sampling timer, -1 when none runs. A test gives a
// long interval and lets the ticks come itself.
int samplingInterval(QObject *editor);
void tick(QObject *editor);
