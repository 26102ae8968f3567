#pragma once

#include <QtWidgets/QScrollArea>

// Scrolls a page by a flick, too. With any theme and font size it is as wide as the editors of the
// page need, unless the window limits its width.
class PageScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageScroller(QWidget *page);

    void setWidthLimit(int limit);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_widthLimit = QWIDGETSIZE_MAX;
};
