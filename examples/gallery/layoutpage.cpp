#include "layoutpage.h"

#include <QtWidgets/QCheckBox>

using Vantor::Widgets::LayoutEditFrame;

LayoutPage::LayoutPage(PictureView *view, EditHistory *history, LogPane *log)
    : RectPage(tr("Layout"), PictureView::Overlay::Layer, view, history, log)
{
    addHeading(tr("Layout"),
               tr("Places a second picture on the first, here or by dragging it there. The lock "
                  "of this editor lets width and height grow by the same number of pixels."));
    auto *isShown = new QCheckBox(tr("Show the second picture"));
    addWidget(isShown);
    m_editor = addEditor<LayoutEditFrame>();
    setUp(m_editor, tr("Layout"), {tr("X"), tr("Y"), tr("Width"), tr("Height")});
    m_editor->setSizeLockEnable(true, LayoutEditFrame::OffsetLock);
    finish();

    connect(m_editor, &LayoutEditFrame::valueChanged, this,
            [this] { place(m_editor->rectangle()); });
    connect(isShown, &QCheckBox::clicked, this, [this](bool on) {
        edit(tr("Layout"), [on](Edits &edits) { edits.isLayerShown = on; });
    });
    connect(m_history, &EditHistory::changed, isShown,
            [isShown](const Edits &edits) { isShown->setChecked(edits.isLayerShown); });
    connect(m_history, &EditHistory::restored, this, [this](const Edits &edits) {
        showRect(m_editor, [this, &edits] { m_editor->setRectangle(edits.layer); });
    });
}

RectRules LayoutPage::rules(const QSize &picture) const
{
    return rulesOf(m_editor, 2 * picture); // it may extend beyond the picture's edge
}

void LayoutPage::startOn(const QSize &size)
{
    m_editor->setSizeLock(false);
    m_editor->setRange(LayoutEditFrame::X, 0, size.width());
    m_editor->setRange(LayoutEditFrame::Y, 0, size.height());
    m_editor->setRange(LayoutEditFrame::Width, 1, size.width());
    m_editor->setRange(LayoutEditFrame::Height, 1, size.height());
    Edits neutral;
    clear(neutral, size);
    const QRect &layer = neutral.layer;
    setDefaults(m_editor, layer.x(), layer.y(), layer.width(), layer.height());
}

void LayoutPage::clear(Edits &edits, const QSize &size) const
{
    const QSize layer(size.width() * 5 / 16, size.height() * 5 / 16);
    edits.layer =
        QRect(QPoint(size.width() * 5 / 8, size.height() * 5 / 8), layer.expandedTo(QSize(1, 1)));
    edits.isLayerShown = false;
}

void LayoutPage::takeDragged(const QRect &rect)
{
    showRect(m_editor, [this, rect] { m_editor->setRectangle(rect); });
    place(rect);
}

void LayoutPage::place(const QRect &layer)
{
    edit(tr("Layout"), [layer](Edits &edits) {
        edits.layer = layer;
        edits.isLayerShown = true;
    });
}
