#include "croppage.h"

using Vantor::Widgets::CropEditFrame;

CropPage::CropPage(PictureView *view, LogPane *log) : RectPage(tr("Crop"), view, log)
{
    addHeading(tr("Crop"),
               tr("The rectangle stays inside the picture. Lock the position to move "
                  "along a diagonal, the size to keep its proportion; drag the "
                  "rectangle itself in the picture."));
    m_editor = addEditor<CropEditFrame>();
    setUp(m_editor, tr("Crop"), {tr("X"), tr("Y"), tr("Width"), tr("Height")});
    m_editor->setPositionLockEnable(true);
    m_editor->setSizeLockEnable(true, CropEditFrame::SizeScaleLock);
    m_editor->setCropMinSize(16, 16);
    finish();

    connect(m_editor, &CropEditFrame::cropValueChanged, m_log,
            m_log->receiver(tr("Crop"), QStringLiteral("cropValueChanged")));
    connect(m_editor, &CropEditFrame::cropValueChanged, this,
            [this](int x, int y, int w, int h) { m_view->setCrop(QRect(x, y, w, h)); });
    connect(m_view, &PictureView::cropDragged, this,
            [this](const QRect &crop) { m_editor->setCropValue(crop); });
}

void CropPage::setPictureSize(const QSize &size)
{
    const QRect crop(size.width() / 5, size.height() / 5, size.width() / 2, size.height() / 2);
    m_editor->setSizeLock(false);
    m_editor->setCropRange(size.width(), size.height());
    m_editor->setCropValue(crop);
    m_view->setCrop(crop);
}
