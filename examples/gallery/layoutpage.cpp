#include "layoutpage.h"

using Vantor::Widgets::LayoutEditFrame;

LayoutPage::LayoutPage(PictureView *view, LogPane *log) : RectPage(tr("Layout"), view, log)
{
    addHeading(tr("Layout"),
               tr("Places a second picture on the first. The lock of this editor "
                  "lets width and height grow by the same number of pixels."));
    m_editor = addEditor<LayoutEditFrame>();
    setUp(m_editor, tr("Layout"), {tr("X"), tr("Y"), tr("Width"), tr("Height")});
    m_editor->setSizeLockEnable(true, LayoutEditFrame::OffsetLock);
    finish();

    connect(m_editor, &LayoutEditFrame::valueChanged, this,
            [this](int x, int y, int w, int h) { m_view->setLayer(QRect(x, y, w, h)); });
}

void LayoutPage::setPictureSize(const QSize &size)
{
    const QRect layer(size.width() * 5 / 8, size.height() * 5 / 8, size.width() * 5 / 16,
                      size.height() * 5 / 16);
    m_editor->setSizeLock(false);
    m_editor->setRange(LayoutEditFrame::X, 0, size.width());
    m_editor->setRange(LayoutEditFrame::Y, 0, size.height());
    m_editor->setRange(LayoutEditFrame::Width, 1, size.width());
    m_editor->setRange(LayoutEditFrame::Height, 1, size.height());
    m_editor->setValue(layer);
    m_view->setLayer(layer);
}
