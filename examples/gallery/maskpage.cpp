#include "maskpage.h"

using Vantor::Widgets::MaskEditFrame;

MaskPage::MaskPage(PictureView *view, EditHistory *history, LogPane *log)
    : RectPage(tr("Mask"), PictureView::Overlay::Mask, view, history, log)
{
    addHeading(tr("Mask"),
               tr("Four margins. Top and bottom together never pass the height of the "
                  "picture, left and right never its width. Drag their edges in the picture."));
    m_editor = addEditor<MaskEditFrame>();
    setUp(m_editor, tr("Mask"), {tr("Top"), tr("Bottom"), tr("Left"), tr("Right")});
    finish();

    connect(m_editor, &MaskEditFrame::maskValueChanged, m_log,
            m_log->receiver(tr("Mask"), QStringLiteral("maskValueChanged")));
    connect(m_editor, &MaskEditFrame::maskValueChanged, this, [this] {
        edit(tr("Mask"), [this](Edits &edits) { edits.mask = m_editor->margins(); });
    });
    connect(m_history, &EditHistory::restored, m_editor,
            [this](const Edits &edits) { m_editor->setMargins(edits.mask); });
}

RectRules MaskPage::rules(const QSize &picture) const
{
    RectRules rules;
    rules.area = rules.most = picture;
    rules.lastCorner = QPoint(picture.width(), picture.height());
    rules.least = QSize(0, 0);
    rules.step = step;
    return rules;
}

void MaskPage::startOn(const QSize &size)
{
    m_picture = size;
    m_editor->setMaskRange(size.width(), size.height());
    setDefaults(m_editor, 0, 0, 0, 0);
}

void MaskPage::clear(Edits &edits, const QSize & /*size*/) const
{
    edits.mask = QMargins();
}

void MaskPage::takeDragged(const QRect &rect)
{
    const QMargins mask(rect.x(), rect.y(), m_picture.width() - rect.x() - rect.width(),
                        m_picture.height() - rect.y() - rect.height());
    m_editor->setMargins(mask);
    edit(tr("Mask"), [mask](Edits &edits) { edits.mask = mask; });
}
