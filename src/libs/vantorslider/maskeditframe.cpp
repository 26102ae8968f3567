#include "maskeditframe.h"

#include "heldpair_p.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

constexpr HeldField fieldTop = fieldX;
constexpr HeldField fieldBottom = fieldY;
constexpr HeldField fieldLeft = fieldWidth;
constexpr HeldField fieldRight = fieldHeight;

// The limits of the margins; keeps them in the area and reports them.
class MaskEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit MaskEditFramePrivate(MaskEditFrame *editer) : m_pEditer(editer) { }

    void createWidgets();
    void createConnects();

    MaskEditFrame *m_pEditer;
    // The margins that were last reported or set. Left, top, width and height of the rectangle are
    // the top, bottom, left and right margin.
    QRect m_lastMask;
    // Limits of top + bottom and of left + right.
    int m_nMaxHeight = 0;
    int m_nMaxWidth = 0;
    int m_nMinWidth = 0;
    int m_nMinHeight = 0;

private Q_SLOTS:
    void slotTopValueChanged(int val) { hold({fieldTop, fieldBottom, m_nMaxHeight}, val); }
    void slotBottomValueChanged(int val) { hold({fieldBottom, fieldTop, m_nMaxHeight}, val); }
    void slotLeftValueChanged(int val) { hold({fieldLeft, fieldRight, m_nMaxWidth}, val); }
    void slotRightValueChanged(int val) { hold({fieldRight, fieldLeft, m_nMaxWidth}, val); }

private:
    void hold(const HeldPair &pair, int val);
};

void MaskEditFramePrivate::createWidgets()
{
    m_pEditer->setPositionLockEnable(false);
    m_pEditer->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
}

// The base class emits the signal of a field before valueChanged(). So the margins are limited and
// reported before the host receives all four fields.
void MaskEditFramePrivate::createConnects()
{
    using Private = MaskEditFramePrivate;
    connect(m_pEditer, &RectEditFrame::xValueChanged, this, &Private::slotTopValueChanged);
    connect(m_pEditer, &RectEditFrame::yValueChanged, this, &Private::slotBottomValueChanged);
    connect(m_pEditer, &RectEditFrame::widthValueChanged, this, &Private::slotLeftValueChanged);
    connect(m_pEditer, &RectEditFrame::heightValueChanged, this, &Private::slotRightValueChanged);
}

// The user has set the first field of the pair to val.
void MaskEditFramePrivate::hold(const HeldPair &pair, int val)
{
    const FieldValues mask = heldWithinLimit(m_pEditer, pair, val);
    if (showAsLast(m_pEditer, mask, m_lastMask)) {
        Q_EMIT m_pEditer->maskValueChanged(mask.x, mask.y, mask.width, mask.height);
    }
}

} // namespace Internal

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

void MaskEditFrame::setMaskMinSize(int nMinWidth, int nMinHeight)
{
    d->m_nMinWidth = nMinWidth;
    d->m_nMinHeight = nMinHeight;
}

void MaskEditFrame::setMaskRange(int width, int height)
{
    const auto room = [](int extent, int least) { return extent - qMax(0, qMin(least, extent)); };
    d->m_nMaxHeight = room(height, d->m_nMinHeight);
    d->m_nMaxWidth = room(width, d->m_nMinWidth);
    setRange(X, 0, d->m_nMaxHeight);
    setRange(Y, 0, d->m_nMaxHeight);
    setRange(Width, 0, d->m_nMaxWidth);
    setRange(Height, 0, d->m_nMaxWidth);
}

void MaskEditFrame::setMaskValue(int top, int bottom, int left, int right)
{
    d->m_lastMask = Internal::wrappedRect(top, bottom, left, right);
    RectEditFrame::setValue(top, bottom, left, right);
    const Internal::FieldValues mask {top, bottom, left, right};
    Internal::allowWithinLimit(this, {Internal::fieldTop, Internal::fieldBottom, d->m_nMaxHeight},
                               mask);
    Internal::allowWithinLimit(this, {Internal::fieldLeft, Internal::fieldRight, d->m_nMaxWidth},
                               mask);
}

void MaskEditFrame::getMaskValue(QRect &maskRect)
{
    const auto [top, bottom, left, right] = Internal::fieldValues(this);
    maskRect.setCoords(left, top, right, bottom);
}

// Stores the shown margins as the last ones, like the other setters.
void MaskEditFrame::resetValue(Type type)
{
    RectEditFrame::resetValue(type);
    const auto [top, bottom, left, right] = Internal::fieldValues(this);
    setMaskValue(top, bottom, left, right);
}

void MaskEditFrame::resetValues()
{
    RectEditFrame::resetValues();
    const auto [top, bottom, left, right] = Internal::fieldValues(this);
    setMaskValue(top, bottom, left, right);
}

// These four are private here: a host calls setMaskValue(), which stores the last margins, and
// setMaskRange(), which stores the limits.
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
