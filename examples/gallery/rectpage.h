#pragma once

#include "page.h"

#include <recteditframe.h>

#include <functional>

// Base class of the pages with a rectangle editor: the labels, the steps, the log of the
// signals that all rectangle editors have, and the rectangle that is dragged in the
// picture.
class RectPage : public Page
{
    Q_OBJECT

public:
    PictureView::Overlay overlay() const override { return m_overlay; }

protected:
    using Rect = Vantor::Widgets::RectEditFrame;

    RectPage(const QString &title, PictureView::Overlay overlay, PictureView *view,
             EditHistory *history, LogPane *log);

    // The user has moved or resized the rectangle in the picture.
    virtual void takeDragged(const QRect &rect) = 0;

    // The labels are those of x, y, width and height, in this order.
    void setUp(Rect *editor, const QString &name, const QStringList &labels);

    // The values that a double click on the label of a field restores.
    static void setDefaults(Rect *editor, int x, int y, int width, int height);

    // The rules of an editor whose fields are the position and the size of the rectangle.
    static RectRules rulesOf(Rect *editor, const QSize &area);

    // To be used when a rectangle is set that the user has not set in the editor
    // itself. Otherwise an edge that the rectangle no longer touches would limit the next
    // change, and a lock that is on would move the partner to where the rectangle was when
    // the lock was switched on.
    static void showRect(Rect *editor, const std::function<void()> &set);

    static constexpr int step = 1;

private:
    const PictureView::Overlay m_overlay;
    PictureView *const m_view;
};
