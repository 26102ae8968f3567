#include "rectdrag.h"

namespace {

// Half the width of a fingertip, in view pixels: the distance at which a handle is
// grabbed.
const int reach = 22;

enum class Hold { None, Low, High, Whole };

Hold holdOf(Qt::Edges edges, Qt::Edge low, Qt::Edge high)
{
    if (edges & low) {
        return Hold::Low;
    }
    if (edges & high) {
        return Hold::High;
    }
    return edges ? Hold::None : Hold::Whole;
}

struct Limits
{
    int area;
    int lastStart;
    int least;
    int most;
};

// One of the two dimensions of the rectangle.
void drag(int &start, int &length, Hold hold, int by, const Limits &limits)
{
    const int end = start + length;
    if (hold == Hold::Whole) {
        start = qBound(0, start + by, qMin(limits.lastStart, limits.area - length));
    } else if (hold == Hold::Low) {
        start = qBound(qMax(0, end - limits.most), start + by,
                       qMin(limits.lastStart, end - limits.least));
        length = end - start;
    } else if (hold == Hold::High) {
        length = qBound(limits.least, length + by, qMin(limits.most, limits.area - start));
    }
}

// At least the middle half remains for grabbing the whole.
Qt::Edges edgeAt(double pos, double low, double high, Qt::Edge lowEdge, Qt::Edge highEdge)
{
    const double inwards = qMin<double>(reach, (high - low) / 4);
    if (pos < low + inwards) {
        return lowEdge;
    }
    return pos > high - inwards ? Qt::Edges(highEdge) : Qt::Edges();
}

} // namespace

Qt::Edges edgesAt(const QPointF &pos, const QRectF &rect, const RectRules &rules)
{
    if (rules.isSizeLocked) {
        return {};
    }
    const Qt::Edges edges = edgeAt(pos.x(), rect.left(), rect.right(), Qt::LeftEdge, Qt::RightEdge)
        | edgeAt(pos.y(), rect.top(), rect.bottom(), Qt::TopEdge, Qt::BottomEdge);
    // The other two edges would move the corner along one side only.
    return rules.isPositionLocked ? edges & (Qt::RightEdge | Qt::BottomEdge) : edges;
}

bool isHeldAt(const QPointF &pos, const QRectF &rect, const RectRules &rules)
{
    const int outwards = rules.isSizeLocked ? 0 : reach;
    return rect.adjusted(-outwards, -outwards, outwards, outwards).contains(pos);
}

QRect dragged(const QRect &rect, Qt::Edges edges, QPoint by, const RectRules &rules)
{
    int x = rect.x();
    int y = rect.y();
    int width = rect.width();
    int height = rect.height();
    if (rules.isPositionLocked && !edges) {
        const int last = qMin(qMin(rules.lastCorner.x(), rules.area.width() - width) - x,
                              qMin(rules.lastCorner.y(), rules.area.height() - height) - y);
        const int along = qAbs(by.x()) > qAbs(by.y()) ? by.x() : by.y();
        by.rx() = by.ry() = qBound(-qMin(x, y), along, last);
    }
    drag(x, width, holdOf(edges, Qt::LeftEdge, Qt::RightEdge), by.x(),
         {rules.area.width(), rules.lastCorner.x(), rules.least.width(), rules.most.width()});
    drag(y, height, holdOf(edges, Qt::TopEdge, Qt::BottomEdge), by.y(),
         {rules.area.height(), rules.lastCorner.y(), rules.least.height(), rules.most.height()});
    return {x, y, width, height};
}

Qt::CursorShape cursorOf(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        return Qt::SizeBDiagCursor;
    }
    if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
        return Qt::SizeHorCursor;
    }
    return edges ? Qt::SizeVerCursor : Qt::SizeAllCursor;
}
