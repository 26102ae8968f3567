#include "maskpage.h"

using Vantor::Widgets::MaskEditFrame;

MaskPage::MaskPage(EditHistory *history, LogPane *log) : RectPage(tr("Mask"), history, log)
{
    addHeading(tr("Mask"),
               tr("Four margins. Top and bottom together never pass the height of the "
                  "picture, left and right never its width."));
    m_editor = addEditor<MaskEditFrame>();
    setUp(m_editor, tr("Mask"), {tr("Top"), tr("Bottom"), tr("Left"), tr("Right")});
    finish();

    connect(m_editor, &MaskEditFrame::maskValueChanged, m_log,
            m_log->receiver(tr("Mask"), QStringLiteral("maskValueChanged")));
    connect(m_editor, &MaskEditFrame::maskValueChanged, this,
            [this](int top, int bottom, int left, int right) {
                edit(tr("Mask"),
                     [=](Edits &edits) { edits.mask = QMargins(left, top, right, bottom); });
            });
    connect(m_history, &EditHistory::restored, this, [this](const Edits &edits) {
        const QMargins &mask = edits.mask;
        m_editor->setMaskValue(mask.top(), mask.bottom(), mask.left(), mask.right());
    });
}

void MaskPage::startOn(const QSize &size, Edits &edits)
{
    const int vertical = size.height() / 9;
    const int horizontal = size.width() / 16;
    m_editor->setMaskRange(size.width(), size.height());
    edits.mask = QMargins(horizontal, vertical, horizontal, vertical);
}
