#pragma once

#include "page.h"

#include <recteditframe.h>

#include <functional>

// What the pages with a rectangle editor share: the labels, the steps and the
// log of the signals that all rectangle editors have.
class RectPage : public Page
{
    Q_OBJECT

protected:
    using Rect = Vantor::Widgets::RectEditFrame;

    using Page::Page;

    // The labels are those of x, y, width and height, in this order.
    void setUp(Rect *editor, const QString &name, const QStringList &labels);

    // Around the setting of a rectangle that the user has not set in the editor
    // itself. Otherwise the next change would be held by an edge that the rectangle
    // no longer touches, and a lock that is on would pull the partner to where the
    // rectangle was when it was switched on.
    static void showRect(Rect *editor, const std::function<void()> &set);
};
