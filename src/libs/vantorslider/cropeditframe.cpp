#include "cropeditframe.h"

#include "itemeditor_p.h"
#include "limitedfields_p.h"
#include "saturation_p.h"
#include "slidereditframe.h"

namespace Vantor::Widgets {

namespace Internal {

// The minima of the crop; keeps it in the area and reports it.
class CropEditFramePrivate : public LimitedFields
{
    Q_OBJECT

public:
    explicit CropEditFramePrivate(CropEditFrame *editer) : LimitedFields(editer), m_pEditer(editer)
    {
    }

    void createConnects();

    CropEditFrame *m_pEditer;
    int m_nMinWidth = 1;
    int m_nMinHeight = 1;
    int m_nMinX = 0;
    int m_nMinY = 0;

private Q_SLOTS:
    void slotXValueChanged(int val) { limit(horizontal(), val); }
    void slotYValueChanged(int val) { limit(vertical(), val); }
    void slotWidthValueChanged(int val) { limit(horizontal().reversed(), val); }
    void slotHeightValueChanged(int val) { limit(vertical().reversed(), val); }

private:
    LimitedPair horizontal() const override { return farEdge(fieldX, fieldWidth); }
    LimitedPair vertical() const override { return farEdge(fieldY, fieldHeight); }
    LimitedPair farEdge(const LimitedField &position, const LimitedField &size) const;
    void limit(const LimitedPair &pair, int val);
};

// The base class emits the signal of a field before valueChanged(). So the crop is limited and
// reported before the host receives the whole rectangle.
void CropEditFramePrivate::createConnects()
{
    using Private = CropEditFramePrivate;
    connect(m_pEditer, &RectEditFrame::xValueChanged, this, &Private::slotXValueChanged);
    connect(m_pEditer, &RectEditFrame::yValueChanged, this, &Private::slotYValueChanged);
    connect(m_pEditer, &RectEditFrame::widthValueChanged, this, &Private::slotWidthValueChanged);
    connect(m_pEditer, &RectEditFrame::heightValueChanged, this, &Private::slotHeightValueChanged);
}

// The far edge of the area is the minimum position plus the maximum size.
LimitedPair CropEditFramePrivate::farEdge(const LimitedField &position,
                                          const LimitedField &size) const
{
    return {position, size,
            saturatedSum(m_pEditer->row(position.type)->minimum(),
                         m_pEditer->row(size.type)->maximum())};
}

void CropEditFramePrivate::limit(const LimitedPair &pair, int val)
{
    if (limitAndShow(pair, val)) {
        const auto [x, y, w, h] = last();
        Q_EMIT m_pEditer->cropValueChanged(x, y, w, h);
    }
}

} // namespace Internal

CropEditFrame::CropEditFrame(QWidget *parent)
    : RectEditFrame(parent), d(new Internal::CropEditFramePrivate(this))
{
    d->watchRows();
    d->createConnects();
}

CropEditFrame::~CropEditFrame()
{
    delete d;
    d = nullptr;
}

void CropEditFrame::setCropMinPos(int nMinX, int nMinY)
{
    d->m_nMinX = nMinX;
    d->m_nMinY = nMinY;
}

void CropEditFrame::setCropMinSize(int nMinWidth, int nMinHeight)
{
    d->m_nMinWidth = nMinWidth;
    d->m_nMinHeight = nMinHeight;
}

void CropEditFrame::setCropRange(int width, int height)
{
    setCropRange(d->m_nMinX, d->m_nMinY, d->m_nMinWidth, d->m_nMinHeight, width, height);
}

void CropEditFrame::setCropRange(int nMinX, int nMinY, int nMinWidth, int nMinHeight, int nTotalHor,
                                 int nTotalVer)
{
    setRange(X, nMinX, Internal::saturatedDifference(nTotalHor, nMinWidth));
    setRange(Y, nMinY, Internal::saturatedDifference(nTotalVer, nMinHeight));
    setRange(Width, nMinWidth, nTotalHor);
    setRange(Height, nMinHeight, nTotalVer);
}

void CropEditFrame::setCropValue(int x, int y, int w, int h)
{
    d->setLast({x, y, w, h});
    RectEditFrame::setValue(x, y, w, h);
}

void CropEditFrame::setCropValue(const QRect &rect)
{
    setCropValue(rect.left(), rect.top(), Internal::saturatedExtent(rect.left(), rect.right()),
                 Internal::saturatedExtent(rect.top(), rect.bottom()));
}

void CropEditFrame::setCrop(const QRect &rect)
{
    setCropValue(rect);
}

QRect CropEditFrame::crop() const
{
    return rectangle();
}

QRect CropEditFrame::committedCrop()
{
    return Internal::committed(this, &CropEditFrame::crop);
}

void CropEditFrame::setRange(Type type, int min, int max)
{
    RectEditFrame::setRange(type, min, max);
}

// These three are private here: a host calls setCropValue(), which stores the last crop.
void CropEditFrame::setValue(Type type, int val)
{
    RectEditFrame::setValue(type, val);
}

void CropEditFrame::setValue(int x, int y, int w, int h)
{
    RectEditFrame::setValue(x, y, w, h);
}

void CropEditFrame::setValue(const QRect &rect)
{
    RectEditFrame::setValue(rect);
}

} // namespace Vantor::Widgets

#include "cropeditframe.moc"
