#pragma once

#include "rectpage.h"

#include <layouteditframe.h>

// Places a second picture on the first, once the user has set its position.
class LayoutPage : public RectPage
{
    Q_OBJECT

public:
    LayoutPage(PictureView *view, EditHistory *history, LogPane *log);

    RectRules rules(const QSize &picture) const override;
    void startOn(const QSize &size) override;
    void clear(Edits &edits, const QSize &size) const override;

protected:
    void takeDragged(const QRect &rect) override;

private:
    void place(const QRect &layer);

    Vantor::Widgets::LayoutEditFrame *m_editor;
};
