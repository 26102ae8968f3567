#pragma once

#include "slidereditframe.h"

#include <QtCore/QMessageLogger>
#include <QtCore/QVarLengthArray>

#include <initializer_list>

QT_BEGIN_NAMESPACE
class QSpacerItem;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// Where the warning of a public operation is said to come from: its file, line
// and signature. It stands in the operation itself, for it names the function
// that it is written in.
#define VANTORSLIDER_HERE QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO)

// The rows of a composite editor, in their order and by their type flags: what
// reaches one of them, and what reaches all.
class EditorRows
{
public:
    struct Row
    {
        int type;
        SliderEditFrame *frame;
    };

    EditorRows(std::initializer_list<Row> rows) : m_rows(rows) { }

    // The row that type names, or null.
    SliderEditFrame *find(int type) const;

    // The same; null is told to the host's log as a failure of what was to be
    // done, "Set Rect value".
    SliderEditFrame *findOrWarn(int type, const QMessageLogger &here, const char *task) const;

    template <typename Operation, typename... Arguments>
    void one(int type, const QMessageLogger &here, const char *task, Operation operation,
             const Arguments &...arguments) const
    {
        if (SliderEditFrame *frame = findOrWarn(type, here, task)) {
            (frame->*operation)(arguments...);
        }
    }

    // What the row answers; nothing, or 0, where there is none.
    template <typename Getter>
    auto get(int type, const QMessageLogger &here, const char *task, Getter getter) const
    {
        SliderEditFrame *frame = findOrWarn(type, here, task);
        return frame != nullptr ? (frame->*getter)() : decltype((frame->*getter)()) {};
    }

    template <typename Operation, typename... Arguments>
    void all(Operation operation, const Arguments &...arguments) const
    {
        for (const Row &row : m_rows) {
            (row.frame->*operation)(arguments...);
        }
    }

    // Shows the rows whose bit is set in types and hides the others.
    void setVisible(int types) const;

    // The flags of the rows that stand in the panel.
    int typesIn(const QWidget *panel) const;

    bool isMousePressed() const;

    // Width in pixels of the widest label text, in the font of the first row.
    int labelMaxLength() const;

private:
    QVarLengthArray<Row, 4> m_rows;
};

// The spacer below the rows takes the spare height, or leaves it to the rows.
void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
