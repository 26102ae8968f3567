#pragma once

#include "rectpage.h"

#include <maskeditframe.h>

// Masks the picture's margins.
class MaskPage : public RectPage
{
    Q_OBJECT

public:
    MaskPage(EditHistory *history, LogPane *log);

    PictureView::Overlay overlay() const override { return PictureView::Overlay::Mask; }
    void startOn(const QSize &size, Edits &edits) override;

private:
    Vantor::Widgets::MaskEditFrame *m_editor;
};
