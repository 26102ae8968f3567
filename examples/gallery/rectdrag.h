#pragma once

#include <QtCore/QRect>

// The limits that an editor sets for its rectangle, in pixels of the picture.
struct RectRules
{
    QSize area; // the rectangle stays within it
    QPoint lastCorner; // the limit of its top left corner
    QSize least;
    QSize most;
    int step = 1; // of an arrow key
    bool isPositionLocked = false; // x and y only move by the same amount
    bool isSizeLocked = false; // it is only moved
};

// The edges that a position in a view grabs of a rectangle. None: the whole.
Qt::Edges edgesAt(const QPointF &pos, const QRectF &rect, const RectRules &rules);
// Whether it grabs the rectangle at all.
bool isHeldAt(const QPointF &pos, const QRectF &rect, const RectRules &rules);
// The rectangle with these edges or, if there are none, the whole moved as far as the
// rules allow.
QRect dragged(const QRect &rect, Qt::Edges edges, QPoint by, const RectRules &rules);

Qt::CursorShape cursorOf(Qt::Edges edges);
