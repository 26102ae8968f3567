#include "maskeditframe.h"

#include "saturation_p.h"
#include "slidereditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

class MaskEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit MaskEditFramePrivate(MaskEditFrame *editer);

    void createWidgets();
    void createConnects();
    void allowVertical(int directions, int top, int bottom);
    void allowHorizontal(int directions, int left, int right);

    MaskEditFrame *m_pEditer;
    // Last margins reported or set: left, top, width and height of the
    // rectangle are the top, bottom, left and right margin.
    QRect m_lastMask;
    // Limits of top + bottom and of left + right.
    int m_nMaxHeight = 0;
    int m_nMaxWidth = 0;

private Q_SLOTS:
    void slotTopValueChanged(int val);
    void slotBottomValueChanged(int val);
    void slotLeftValueChanged(int val);
    void slotRightValueChanged(int val);

private:
    struct Mask
    {
        int top = 0;
        int bottom = 0;
        int left = 0;
        int right = 0;
    };

    Mask mask() const;
    void report(const Mask &mask);
};

MaskEditFramePrivate::MaskEditFramePrivate(MaskEditFrame *editer) : m_pEditer(editer) { }

void MaskEditFramePrivate::createWidgets()
{
    m_pEditer->setPositionLockEnable(false);
    m_pEditer->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
}

// The base emits a field's own signal before valueChanged(), so the margins
// are held and reported before the host sees the four fields.
void MaskEditFramePrivate::createConnects()
{
    using Private = MaskEditFramePrivate;
    connect(m_pEditer, &RectEditFrame::xValueChanged, this, &Private::slotTopValueChanged);
    connect(m_pEditer, &RectEditFrame::yValueChanged, this, &Private::slotBottomValueChanged);
    connect(m_pEditer, &RectEditFrame::widthValueChanged, this, &Private::slotLeftValueChanged);
    connect(m_pEditer, &RectEditFrame::heightValueChanged, this, &Private::slotRightValueChanged);
}

void MaskEditFramePrivate::allowVertical(int directions, int top, int bottom)
{
    m_pEditer->setValueChangeDirection(RectEditFrame::X, directions, top);
    m_pEditer->setValueChangeDirection(RectEditFrame::Y, directions, bottom);
}

void MaskEditFramePrivate::allowHorizontal(int directions, int left, int right)
{
    m_pEditer->setValueChangeDirection(RectEditFrame::Height, directions, right);
    m_pEditer->setValueChangeDirection(RectEditFrame::Width, directions, left);
}

MaskEditFramePrivate::Mask MaskEditFramePrivate::mask() const
{
    Mask mask;
    m_pEditer->value(mask.top, mask.bottom, mask.left, mask.right);
    return mask;
}

void MaskEditFramePrivate::report(const Mask &mask)
{
    static_cast<RectEditFrame *>(m_pEditer)->setValue(mask.top, mask.bottom, mask.left, mask.right);
    const QRect packed = wrappedRect(mask.top, mask.bottom, mask.left, mask.right);
    if (packed != m_lastMask) {
        m_lastMask = packed;
        Q_EMIT m_pEditer->maskValueChanged(mask.top, mask.bottom, mask.left, mask.right);
    }
}

namespace {

// A pair of margins that fills its side of the area may only shrink.
int directionsOf(int margin, int opposite, int limit)
{
    return qint64(margin) + opposite >= limit ? SliderEditFrame::AllowedToSmaller
                                              : SliderEditFrame::AllowedToAny;
}

// What of a margin fits beside the opposite one.
int heldMargin(int margin, int opposite, int limit)
{
    return saturatedInt(qMin(qint64(margin), qint64(limit) - opposite));
}

} // namespace

void MaskEditFramePrivate::slotTopValueChanged(int val)
{
    Mask next = mask();
    next.top = heldMargin(val, next.bottom, m_nMaxHeight);
    allowVertical(directionsOf(val, next.bottom, m_nMaxHeight), next.top, next.bottom);
    report(next);
}

void MaskEditFramePrivate::slotBottomValueChanged(int val)
{
    Mask next = mask();
    next.bottom = heldMargin(val, next.top, m_nMaxHeight);
    allowVertical(directionsOf(val, next.top, m_nMaxHeight), next.top, next.bottom);
    report(next);
}

void MaskEditFramePrivate::slotLeftValueChanged(int val)
{
    Mask next = mask();
    next.left = heldMargin(val, next.right, m_nMaxWidth);
    allowHorizontal(directionsOf(val, next.right, m_nMaxWidth), next.left, next.right);
    report(next);
}

void MaskEditFramePrivate::slotRightValueChanged(int val)
{
    Mask next = mask();
    next.right = heldMargin(val, next.left, m_nMaxWidth);
    allowHorizontal(directionsOf(val, next.left, m_nMaxWidth), next.left, next.right);
    report(next);
}

} // namespace Internal

/*!
    \class MaskEditFrame
    \brief An editor for the four margins of a mask over an area.

    The margins stand in the fields of RectEditFrame: top in X, bottom in Y,
    left in Width, right in Height. A margin that the user changes stops where
    top and bottom together would pass the area's height, left and right its
    width. Hosts take the margins from maskValueChanged(); the base's
    valueChanged() follows it and carries the changed margin as the user set it.
    Usable after setMaskRange().
*/

/*!
    \fn void MaskEditFrame::maskValueChanged(int top, int bottom, int left, int right)
    \brief The user changed the margins. Not emitted where they are those that
    were reported or set last.
*/

/*! Builds the editor for an area of no size, with hidden lock buttons. */
MaskEditFrame::MaskEditFrame(QWidget *parent)
    : RectEditFrame(parent), d(new Internal::MaskEditFramePrivate(this))
{
    d->createWidgets();
    d->createConnects();
}

MaskEditFrame::~MaskEditFrame()
{
    delete d;
    d = nullptr;
}

/*! Sets the margins' ranges for an area of \a width by \a height. Emits nothing. */
void MaskEditFrame::setMaskRange(int width, int height)
{
    d->m_nMaxHeight = height;
    d->m_nMaxWidth = width;
    setRange(X, 0, height);
    setRange(Y, 0, height);
    setRange(Width, 0, width);
    setRange(Height, 0, width);
}

/*!
    Shows the margins \a top, \a bottom, \a left and \a right, each clamped to
    its range. A pair beyond the area is shown as it is, but may only shrink
    then. Emits nothing.
*/
void MaskEditFrame::setMaskValue(int top, int bottom, int left, int right)
{
    d->m_lastMask = Internal::wrappedRect(top, bottom, left, right);
    RectEditFrame::setValue(top, bottom, left, right);
    d->allowVertical(Internal::directionsOf(top, bottom, d->m_nMaxHeight), top, bottom);
    d->allowHorizontal(Internal::directionsOf(left, right, d->m_nMaxWidth), left, right);
}

/*!
    Writes the margins to the four edges of \a maskRect: its left edge is the
    left margin and so on. It is no rectangle of the area.
*/
void MaskEditFrame::getMaskValue(QRect &maskRect)
{
    int top = 0;
    int bottom = 0;
    int left = 0;
    int right = 0;
    value(top, bottom, left, right);
    maskRect.setCoords(left, top, right, bottom);
}

void MaskEditFrame::setValue(Type type, int val)
{
    RectEditFrame::setValue(type, val);
}

void MaskEditFrame::setValue(int x, int y, int w, int h)
{
    RectEditFrame::setValue(x, y, w, h);
}

void MaskEditFrame::setValue(const QRect &rect)
{
    RectEditFrame::setValue(rect);
}

void MaskEditFrame::setRange(Type type, int min, int max)
{
    RectEditFrame::setRange(type, min, max);
}

} // namespace Widgets
} // namespace Vantor

#include "maskeditframe.moc"
