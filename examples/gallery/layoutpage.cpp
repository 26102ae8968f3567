#include "layoutpage.h"

using Vantor::Widgets::LayoutEditFrame;

LayoutPage::LayoutPage(EditHistory *history, LogPane *log) : RectPage(tr("Layout"), history, log)
{
    addHeading(tr("Layout"),
               tr("Places a second picture on the first. The lock of this editor "
                  "lets width and height grow by the same number of pixels."));
    m_editor = addEditor<LayoutEditFrame>();
    setUp(m_editor, tr("Layout"), {tr("X"), tr("Y"), tr("Width"), tr("Height")});
    m_editor->setSizeLockEnable(true, LayoutEditFrame::OffsetLock);
    finish();

    connect(m_editor, &LayoutEditFrame::valueChanged, this, [this](int x, int y, int w, int h) {
        edit(tr("Layout"), [=](Edits &edits) { edits.layer = QRect(x, y, w, h); });
    });
    connect(m_history, &EditHistory::restored, this, [this](const Edits &edits) {
        showRect(m_editor, [this, &edits] { m_editor->setValue(edits.layer); });
    });
}

void LayoutPage::startOn(const QSize &size, Edits &edits)
{
    m_editor->setSizeLock(false);
    m_editor->setRange(LayoutEditFrame::X, 0, size.width());
    m_editor->setRange(LayoutEditFrame::Y, 0, size.height());
    m_editor->setRange(LayoutEditFrame::Width, 1, size.width());
    m_editor->setRange(LayoutEditFrame::Height, 1, size.height());
    const QSize layer(size.width() * 5 / 16, size.height() * 5 / 16);
    edits.layer =
        QRect(QPoint(size.width() * 5 / 8, size.height() * 5 / 8), layer.expandedTo(QSize(1, 1)));
}
