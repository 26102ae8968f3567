#pragma once

#include <QtCore/QRect>

// What the editor of a rectangle lets the user do with it, in pixels of the picture.
struct RectRules
{
    QSize area; // the rectangle stays within it
    QPoint lastCorner; // its corner at the left and top comes no further
    QSize least;
    QSize most;
    int step = 1; // of an arrow key
    bool isPositionLocked = false; // x and y only move by the same amount
    bool isSizeLocked = false; // it is only moved
};

// By which edges a position takes hold of a rectangle of a view. None: of the whole.
Qt::Edges edgesAt(const QPointF &pos, const QRectF &rect, const RectRules &rules);
// Whether it takes hold of it at all.
bool isHeldAt(const QPointF &pos, const QRectF &rect, const RectRules &rules);
// The rectangle with these edges or, if there are none, the whole moved as far as the
// rules allow.
QRect dragged(const QRect &rect, Qt::Edges edges, QPoint by, const RectRules &rules);

Qt::CursorShape cursorOf(Qt::Edges edges);
