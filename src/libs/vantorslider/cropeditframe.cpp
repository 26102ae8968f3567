#include "cropeditframe.h"

#include "heldpair_p.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

// The minima of the area; keeps the crop in the area and reports it.
class CropEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit CropEditFramePrivate(CropEditFrame *editer) : m_pEditer(editer) { }

    // Each editor is set up in these two steps. Here the base class has created all widgets.
    void createWidgets() { }
    void createConnects();

    CropEditFrame *m_pEditer;
    // Last crop reported or set by setCropValue().
    QRect m_lastCrop;
    int m_nMinWidth = 1;
    int m_nMinHeight = 1;
    int m_nMinX = 0;
    int m_nMinY = 0;

private Q_SLOTS:
    void slotXValueChanged(int val) { hold({fieldX, fieldWidth, horizontalLimit()}, val); }
    void slotYValueChanged(int val) { hold({fieldY, fieldHeight, verticalLimit()}, val); }
    void slotWidthValueChanged(int val) { hold({fieldWidth, fieldX, horizontalLimit()}, val); }
    void slotHeightValueChanged(int val) { hold({fieldHeight, fieldY, verticalLimit()}, val); }

private:
    int horizontalLimit() const { return limit(RectEditFrame::X, RectEditFrame::Width); }
    int verticalLimit() const { return limit(RectEditFrame::Y, RectEditFrame::Height); }
    int limit(RectEditFrame::Type position, RectEditFrame::Type size) const;
    void hold(const HeldPair &pair, int val);
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

// The far edge of the area: the minimum position plus the maximum size.
int CropEditFramePrivate::limit(RectEditFrame::Type position, RectEditFrame::Type size) const
{
    return saturatedSum(fieldRange(m_pEditer, position).lowest,
                        fieldRange(m_pEditer, size).greatest);
}

// The user has set the first field of the pair to val.
void CropEditFramePrivate::hold(const HeldPair &pair, int val)
{
    const FieldValues crop = heldWithinLimit(m_pEditer, pair, val);
    if (showAsLast(m_pEditer, crop, m_lastCrop)) {
        Q_EMIT m_pEditer->cropValueChanged(crop.x, crop.y, crop.width, crop.height);
    }
}

} // namespace Internal

CropEditFrame::CropEditFrame(QWidget *parent)
    : RectEditFrame(parent), d(new Internal::CropEditFramePrivate(this))
{
    d->createWidgets();
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
    d->m_lastCrop = Internal::wrappedRect(x, y, w, h);
    RectEditFrame::setValue(x, y, w, h);
}

void CropEditFrame::setCropValue(const QRect &rect)
{
    d->m_lastCrop = rect;
    RectEditFrame::setValue(rect);
}

void CropEditFrame::setRange(Type type, int min, int max)
{
    RectEditFrame::setRange(type, min, max);
}

// Stores the shown crop as the last one, like the other setters.
void CropEditFrame::resetValue(Type type)
{
    RectEditFrame::resetValue(type);
    const auto [x, y, w, h] = Internal::fieldValues(this);
    setCropValue(x, y, w, h);
}

void CropEditFrame::resetValues()
{
    RectEditFrame::resetValues();
    const auto [x, y, w, h] = Internal::fieldValues(this);
    setCropValue(x, y, w, h);
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

} // namespace Widgets
} // namespace Vantor

#include "cropeditframe.moc"
