#include "maskpage.h"

using Vantor::Widgets::MaskEditFrame;

MaskPage::MaskPage(PictureView *view, LogPane *log) : RectPage(tr("Mask"), view, log)
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
                m_view->setMask(QMargins(left, top, right, bottom));
            });
}

void MaskPage::setPictureSize(const QSize &size)
{
    const int vertical = size.height() / 9;
    const int horizontal = size.width() / 16;
    m_editor->setMaskRange(size.width(), size.height());
    m_editor->setMaskValue(vertical, vertical, horizontal, horizontal);
    m_view->setMask(QMargins(horizontal, vertical, horizontal, vertical));
}
