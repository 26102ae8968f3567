#include "editorrows_p.h"

#include "childwidget_p.h"

#include <QtCore/QDebug>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QSpacerItem>

#include <algorithm>

namespace Vantor {
namespace Widgets {
namespace Internal {

SliderEditFrame *EditorRows::find(int type) const
{
    for (const Row &row : m_rows) {
        if (row.type == type) {
            return row.frame;
        }
    }
    return nullptr;
}

// QDebug adds a space on each side of the number, beside the one of each text.
SliderEditFrame *EditorRows::findOrWarn(int type, const QMessageLogger &here,
                                        const char *task) const
{
    SliderEditFrame *frame = find(type);
    if (frame == nullptr) {
        const QByteArray failure = QByteArray(task) + " has failed. The type ";
        here.warning() << failure.constData() << type << " is invalid.";
    }
    return frame;
}

void EditorRows::setVisible(int types) const
{
    for (const Row &row : m_rows) {
        setShown(row.frame, (types & row.type) != 0);
    }
}

int EditorRows::typesIn(const QWidget *panel) const
{
    int types = 0;
    for (const Row &row : m_rows) {
        if (row.frame->parentWidget() == panel) {
            types |= row.type;
        }
    }
    return types;
}

bool EditorRows::isMousePressed() const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [](const Row &row) { return row.frame->isMousePressed(); });
}

int EditorRows::labelMaxLength() const
{
    const QFontMetrics metrics = m_rows.first().frame->fontMetrics();
    int widest = 0;
    for (const Row &row : m_rows) {
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
        widest = qMax(widest, metrics.horizontalAdvance(row.frame->labelText()));
#else
        widest = qMax(widest, metrics.width(row.frame->labelText()));
#endif
    }
    return widest;
}

void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding)
{
    if (isExpanding) {
        spacer->changeSize(20, 20, QSizePolicy::Expanding, QSizePolicy::Expanding);
    } else {
        spacer->changeSize(20, 0, QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
