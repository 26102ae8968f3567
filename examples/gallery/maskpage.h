#pragma once

#include "rectpage.h"

#include <maskeditframe.h>

// Masks the picture's margins.
class MaskPage : public RectPage
{
    Q_OBJECT

public:
    MaskPage(PictureView *view, LogPane *log);

    PictureView::Overlay overlay() const override { return PictureView::Overlay::Mask; }
    void setPictureSize(const QSize &size) override;

private:
    Vantor::Widgets::MaskEditFrame *m_editor;
};
