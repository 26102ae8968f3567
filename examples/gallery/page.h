#pragma once

#include "logpane.h"
#include "pictureview.h"

#include <QtWidgets/QWidget>

class QVBoxLayout;

// A column of editors that change the picture, with a heading over each group.
class Page : public QWidget
{
    Q_OBJECT

public:
    Page(const QString &title, PictureView *view, LogPane *log);

    // The title in lower case begins the names of the pictures of this page.
    const QString &title() const { return m_title; }
    virtual PictureView::Overlay overlay() const { return PictureView::Overlay::None; }
    virtual void setPictureSize(const QSize &size) { Q_UNUSED(size) }

    // Gives the labels of all rows the width of the widest text.
    void alignLabels();

protected:
    void addHeading(const QString &title, const QString &caption);

    template <typename Editor> Editor *addEditor()
    {
        auto *editor = new Editor;
        editor->setHorizontalSpacing(labelSpacing, controlSpacing);
        addWidget(editor);
        return editor;
    }

    // Lets the given function change the adjustment of the picture.
    template <typename Change> void adjust(Change change)
    {
        PictureAdjustment adjustment = m_view->adjustment();
        change(adjustment);
        m_view->setAdjustment(adjustment);
    }

    // Called when all editors are added.
    void finish();

    void changeEvent(QEvent *event) override;

    static constexpr int labelSpacing = 12;
    static constexpr int controlSpacing = 8;

    PictureView *const m_view;
    LogPane *const m_log;

private:
    void addWidget(QWidget *editor);

    const QString m_title;
    QVBoxLayout *const m_layout;
};
