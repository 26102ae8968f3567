#pragma once

#include <QtWidgets/QScrollArea>

// Scrolls a page up and down only: the page is never narrower than its editors
// need, whatever theme and font size.
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
