#pragma once

#include "page.h"

#include <recteditframe.h>

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
};
