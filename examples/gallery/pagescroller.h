#pragma once

#include <QtWidgets/QScrollArea>

// Scrolls a page only vertically: with any theme and font size the page is as wide
// as its editors need.
class PageScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageScroller(QWidget *page);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
