#pragma once

#include "rectpage.h"

#include <cropeditframe.h>

// The crop is edited here or dragged over the picture with the pointer.
class CropPage : public RectPage
{
    Q_OBJECT

public:
    CropPage(PictureView *view, EditHistory *history, LogPane *log);

    RectRules rules(const QSize &picture) const override;
    void startOn(const QSize &size) override;
    void clear(Edits &edits, const QSize &size) const override;

protected:
    void takeDragged(const QRect &rect) override;

private:
    void showCrop(const QRect &crop);

    Vantor::Widgets::CropEditFrame *m_editor;
};
