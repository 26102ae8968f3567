#pragma once

#include <QtWidgets/QWidget>

#include <vector>

namespace Vantor::Widgets::Internal {

// What all rows in a host's panel have in common, such as a column of labels in one width. The
// panel owns this object, which watches it and the widgets in it, and aligns the rows again after
// each change: before anything is painted, and once for several changes.
//
// It keeps no list of rows: each pass collects them. The filters stay when a widget leaves the
// panel, and do no harm there.
class PanelColumn : public QObject
{
    Q_OBJECT

public:
    explicit PanelColumn(QWidget *panel);

    // Aligns the rows now.
    void update();

protected:
    // The rows that are not hidden, in no special order. Rows of a panel with a column of the same
    // class belong to that one.
    virtual void align(const std::vector<QWidget *> &rows) = 0;
    // Called before a row is measured: a style sheet sets its font then. Does nothing before the
    // panel is polished, as its sheet may change.
    void polish(const QWidget *row) const;
    // The next pass, after the current event.
    void updateLater();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void collect(QWidget *widget, std::vector<QWidget *> &rows);
    bool isOtherColumn(const QWidget *widget) const;

    bool m_isPending = false;
    bool m_isPolished;
};

// The panel's column of this class, which is created by the first call.
template <typename Column> Column *columnOf(QWidget *panel)
{
    auto *column = panel->findChild<Column *>(QString(), Qt::FindDirectChildrenOnly);
    return column != nullptr ? column : new Column(panel);
}

} // namespace Vantor::Widgets::Internal
