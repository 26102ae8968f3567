#include "maskeditframe.h"

#include "itemeditor_p.h"
#include "limitedfields_p.h"

#include <QtCore/QMetaType>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
// Not in the header: a host may have declared it.
Q_DECLARE_METATYPE(QMargins)
#endif

namespace Vantor::Widgets {

namespace Internal {

constexpr LimitedField fieldTop = fieldX;
constexpr LimitedField fieldBottom = fieldY;
constexpr LimitedField fieldLeft = fieldWidth;
constexpr LimitedField fieldRight = fieldHeight;

// The limits of the margins; keeps them in the area and reports them.
class MaskEditFramePrivate : public LimitedFields
{
    Q_OBJECT

public:
    explicit MaskEditFramePrivate(MaskEditFrame *editer) : LimitedFields(editer), m_pEditer(editer)
    {
    }

    void createWidgets();
    void createConnects();

    MaskEditFrame *m_pEditer;
    // Limits of top + bottom and of left + right.
    int m_nMaxHeight = 0;
    int m_nMaxWidth = 0;
    int m_nMinWidth = 0;
    int m_nMinHeight = 0;

private Q_SLOTS:
    void slotTopValueChanged(int val) { limit(vertical(), val); }
    void slotBottomValueChanged(int val) { limit(vertical().reversed(), val); }
    void slotLeftValueChanged(int val) { limit(horizontal(), val); }
    void slotRightValueChanged(int val) { limit(horizontal().reversed(), val); }

private:
    LimitedPair horizontal() const override { return {fieldLeft, fieldRight, m_nMaxWidth}; }
    LimitedPair vertical() const override { return {fieldTop, fieldBottom, m_nMaxHeight}; }
    void limit(const LimitedPair &pair, int val);
};

void MaskEditFramePrivate::createWidgets()
{
    watchRows();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    qRegisterMetaType<QMargins>(); // the type of a property
#endif
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

void MaskEditFramePrivate::limit(const LimitedPair &pair, int val)
{
    if (limitAndShow(pair, val)) {
        const auto [top, bottom, left, right] = last();
        Q_EMIT m_pEditer->maskValueChanged(top, bottom, left, right);
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
    d->setLast({top, bottom, left, right});
    RectEditFrame::setValue(top, bottom, left, right);
    d->allowWithinLimits({top, bottom, left, right});
}

void MaskEditFrame::getMaskValue(QRect &maskRect)
{
    const auto [top, bottom, left, right] = d->values();
    maskRect.setCoords(left, top, right, bottom);
}

void MaskEditFrame::setMargins(const QMargins &margins)
{
    setMaskValue(margins.top(), margins.bottom(), margins.left(), margins.right());
}

QMargins MaskEditFrame::margins() const
{
    const auto [top, bottom, left, right] = d->values();
    return {left, top, right, bottom};
}

QMargins MaskEditFrame::committedMargins()
{
    return Internal::committed(this, &MaskEditFrame::margins);
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

} // namespace Vantor::Widgets

#include "maskeditframe.moc"
