#include "croppage.h"

using Vantor::Widgets::CropEditFrame;

CropPage::CropPage(PictureView *view, EditHistory *history, LogPane *log)
    : RectPage(tr("Crop"), PictureView::Overlay::Crop, view, history, log)
{
    addHeading(tr("Crop"),
               tr("The rectangle stays inside the picture. Lock the position to move "
                  "along a diagonal, the size to keep its proportion; drag the "
                  "rectangle itself in the picture, or its handles."));
    m_editor = addEditor<CropEditFrame>();
    setUp(m_editor, tr("Crop"), {tr("X"), tr("Y"), tr("Width"), tr("Height")});
    m_editor->setPositionLockEnable(true);
    m_editor->setSizeLockEnable(true, CropEditFrame::SizeScaleLock);
    finish();

    connect(m_editor, &CropEditFrame::cropValueChanged, m_log,
            m_log->receiver(tr("Crop"), QStringLiteral("cropValueChanged")));
    connect(m_editor, &CropEditFrame::cropValueChanged, this,
            [this] { edit(tr("Crop"), [this](Edits &edits) { edits.crop = m_editor->crop(); }); });
    connect(m_history, &EditHistory::restored, this,
            [this](const Edits &edits) { showCrop(edits.crop); });
}

RectRules CropPage::rules(const QSize &picture) const
{
    return rulesOf(m_editor, picture);
}

void CropPage::startOn(const QSize &size)
{
    const QSize least = size.boundedTo(QSize(16, 16));
    m_editor->setPositionLock(false);
    m_editor->setSizeLock(false);
    m_editor->setCropMinSize(least.width(), least.height());
    m_editor->setCropRange(size.width(), size.height());
    setDefaults(m_editor, 0, 0, size.width(), size.height());
}

void CropPage::clear(Edits &edits, const QSize &size) const
{
    edits.crop = QRect(QPoint(), size);
}

void CropPage::takeDragged(const QRect &rect)
{
    showCrop(rect);
    edit(tr("Crop"), [rect](Edits &edits) { edits.crop = rect; });
}

void CropPage::showCrop(const QRect &crop)
{
    showRect(m_editor, [this, crop] { m_editor->setCrop(crop); });
}
