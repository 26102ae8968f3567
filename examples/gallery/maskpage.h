#pragma once

#include "rectpage.h"

#include <maskeditframe.h>

// Masks the picture's margins. In the picture, the user drags the area that they leave.
class MaskPage : public RectPage
{
    Q_OBJECT

public:
    MaskPage(PictureView *view, EditHistory *history, LogPane *log);

    RectRules rules(const QSize &picture) const override;
    void startOn(const QSize &size) override;
    void clear(Edits &edits, const QSize &size) const override;

protected:
    void takeDragged(const QRect &rect) override;

private:
    Vantor::Widgets::MaskEditFrame *m_editor;
    QSize m_picture;
};
