#pragma once

#include "slidereditframe.h"

#include <QtCore/QList>
#include <QtCore/QMessageLogger>
#include <QtCore/QVarLengthArray>

#include <initializer_list>

QT_BEGIN_NAMESPACE
class QFontMetrics;
class QLayout;
class QSpacerItem;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// The origin of a warning: file, line and signature of a public function. It must be used in that
// function itself, because Q_FUNC_INFO names the enclosing function.
#define VANTORSLIDER_HERE QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO)

// Writes to Qt's log that no part of an editor has this type flag. task names the failed call, as
// in "Set Rect value".
void warnOfType(int type, const QMessageLogger &here, const char *task);

// The rows of a composite editor, in order and with their type flags: calls one of them by its
// flag, or all.
class EditorRows
{
public:
    struct Row
    {
        int type;
        SliderEditFrame *frame;
    };

    EditorRows(std::initializer_list<Row> rows) : m_rows(rows) { }

    // The row with this type flag, or null and a warning, see warnOfType().
    SliderEditFrame *findOrWarn(int type, const QMessageLogger &here, const char *task) const;

    template <typename Operation, typename... Arguments>
    void one(int type, const QMessageLogger &here, const char *task, Operation operation,
             const Arguments &...arguments) const
    {
        if (SliderEditFrame *frame = findOrWarn(type, here, task)) {
            (frame->*operation)(arguments...);
        }
    }

    template <typename Operation, typename... Arguments>
    void all(Operation operation, const Arguments &...arguments) const
    {
        for (const Row &row : m_rows) {
            (row.frame->*operation)(arguments...);
        }
    }

    QList<SliderEditFrame *> frames() const;

    // Shows the rows whose flag is set in types and hides the others.
    void setVisible(int types) const;

    // The flags of the rows in the panel.
    int typesIn(const QWidget *panel) const;

    bool isMousePressed() const;

    // Width of the widest label text in pixels, in the font of the first row.
    int labelMaxLength() const;

private:
    QVarLengthArray<Row, 4> m_rows;
};

// The pending entries of the rows. A receiver may delete the rows.
bool hasPendingEntry(const QList<SliderEditFrame *> &rows);
void finishEntries(const QList<SliderEditFrame *> &rows);

// The width of the label text in pixels, in the font of the row, or in that of another one.
int labelWidth(const SliderEditFrame &row);
int labelWidth(const SliderEditFrame &row, const QFontMetrics &metrics);

// Sets "isTopmost" of the first shown widget of a column, by which a style sheet knows that there
// is nothing above it.
void markTopmost(const QLayout *column);

// Gives the spare height to the spacer below the rows, or to the rows.
void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding);

// Sets the height that the form gives to this spacer, unless setSpacerExpanding() has set another.
void setSpacerHeight(QSpacerItem *spacer, QLayout *column, int height);

} // namespace Vantor::Widgets::Internal
