#pragma once

#include "rectpage.h"

#include <layouteditframe.h>

// Places a second picture on the first.
class LayoutPage : public RectPage
{
    Q_OBJECT

public:
    LayoutPage(EditHistory *history, LogPane *log);

    PictureView::Overlay overlay() const override { return PictureView::Overlay::Layer; }
    void startOn(const QSize &size, Edits &edits) override;

private:
    Vantor::Widgets::LayoutEditFrame *m_editor;
};
