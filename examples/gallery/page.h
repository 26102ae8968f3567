#pragma once

#include "edithistory.h"
#include "logpane.h"
#include "pictureview.h"

#include <entryoptions.h>

#include <QtWidgets/QWidget>

class QVBoxLayout;

// A column of editors that change the picture, with a heading above each group.
class Page : public QWidget
{
    Q_OBJECT

public:
    static constexpr int fieldWidth = 120; // for six digits and a unit, without a theme

    Page(const QString &title, EditHistory *history, LogPane *log);

    // The names of the pictures of this page begin with the title in lower case.
    const QString &title() const { return m_title; }
    // The rectangle that the page shows in the picture, and what the user may do with it.
    virtual PictureView::Overlay overlay() const { return PictureView::Overlay::None; }
    virtual RectRules rules(const QSize & /*picture*/) const { return {}; }
    // Fits the ranges to a picture of this size.
    virtual void startOn(const QSize & /*size*/) { }
    // Resets the values of the page's editors: the picture of this size is unchanged.
    virtual void clear(Edits &edits, const QSize &size) const = 0;

Q_SIGNALS:
    // Connected to every row of the page.
    void entryOptionsChanged(Vantor::Widgets::EntryOptions options);

protected:
    void addHeading(const QString &title, const QString &caption, QWidget *beside = nullptr);

    template <typename Editor> Editor *addEditor()
    {
        auto *editor = new Editor;
        editor->setHorizontalSpacing(labelSpacing, controlSpacing);
        addWidget(editor);
        m_history->watch(editor);
        connect(this, &Page::entryOptionsChanged, editor, &Editor::setEntryOptions);
        return editor;
    }
    void addWidget(QWidget *widget);

    // For a connection to an editor's signal: the function changes the edits as the
    // user changed the editor of this name.
    template <typename Change> void edit(const QString &name, Change change)
    {
        Edits edits = m_history->edits();
        change(edits);
        m_history->record(name, edits);
    }

    // To be called after all editors are added.
    void finish();

    static constexpr int labelSpacing = 12;
    static constexpr int controlSpacing = 8;

    EditHistory *const m_history;
    LogPane *const m_log;

private:
    const QString m_title;
    QVBoxLayout *const m_layout;
};
