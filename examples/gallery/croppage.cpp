#include "croppage.h"

using Vantor::Widgets::CropEditFrame;

CropPage::CropPage(PictureView *view, EditHistory *history, LogPane *log)
    : RectPage(tr("Crop"), history, log)
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
    connect(m_editor, &CropEditFrame::cropValueChanged, this, [this](int x, int y, int w, int h) {
        edit(tr("Crop"), [=](Edits &edits) { edits.crop = QRect(x, y, w, h); });
    });
    connect(m_history, &EditHistory::restored, this,
            [this](const Edits &edits) { showCrop(edits.crop); });

    connect(m_editor, &CropEditFrame::sizeLockChanged, view, &PictureView::setCropSizeLocked);
    connect(view, &PictureView::cropPressed, this,
            [this, view] { m_history->begin([view] { return view->isCropPressed(); }); });
    connect(view, &PictureView::cropDragged, this, [this](const QRect &crop) {
        showCrop(crop);
        edit(tr("Crop"), [=](Edits &edits) { edits.crop = crop; });
    });
}

void CropPage::startOn(const QSize &size, Edits &edits)
{
    const QSize least = PictureView::leastCropSize(size);
    m_editor->setSizeLock(false);
    m_editor->setCropMinSize(least.width(), least.height());
    m_editor->setCropRange(size.width(), size.height());
    const QSize crop = (size / 2).expandedTo(least);
    const QSize beside = size - crop;
    edits.crop = QRect(
        QPoint(qMin(size.width() / 5, beside.width()), qMin(size.height() / 5, beside.height())),
        crop);
}

void CropPage::showCrop(const QRect &crop)
{
    showRect(m_editor, [this, crop] { m_editor->setCropValue(crop); });
}
