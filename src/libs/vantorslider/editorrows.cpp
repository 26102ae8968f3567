#include "editorrows_p.h"

#include "childwidget_p.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QSpacerItem>

#include <algorithm>
#include <vector>

namespace Vantor::Widgets::Internal {

// QDebug adds a space on each side of the number, beside the one of each text.
SliderEditFrame *EditorRows::findOrWarn(int type, const QMessageLogger &here,
                                        const char *task) const
{
    for (const Row &row : m_rows) {
        if (row.type == type) {
            return row.frame;
        }
    }
    const QByteArray failure = QByteArray(task) + " has failed. The type ";
    here.warning() << failure.constData() << type << " is invalid.";
    return nullptr;
}

QList<SliderEditFrame *> EditorRows::frames() const
{
    QList<SliderEditFrame *> frames;
    for (const Row &row : m_rows) {
        frames.append(row.frame);
    }
    return frames;
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
        widest = qMax(widest, labelWidth(*row.frame, metrics));
    }
    return widest;
}

bool hasPendingEntry(const QList<SliderEditFrame *> &rows)
{
    return std::any_of(rows.begin(), rows.end(),
                       [](const SliderEditFrame *row) { return row->hasPendingEntry(); });
}

void finishEntries(const QList<SliderEditFrame *> &rows)
{
    const std::vector<QPointer<SliderEditFrame>> living(rows.begin(), rows.end());
    for (const QPointer<SliderEditFrame> &row : living) {
        if (row) {
            row->finishEntry();
        }
    }
}

int labelWidth(const SliderEditFrame &row)
{
    return labelWidth(row, row.fontMetrics());
}

int labelWidth(const SliderEditFrame &row, const QFontMetrics &metrics)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(row.labelText());
#else
    return metrics.width(row.labelText());
#endif
}

void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding)
{
    if (isExpanding) {
        spacer->changeSize(20, 20, QSizePolicy::Expanding, QSizePolicy::Expanding);
    } else {
        spacer->changeSize(20, 0, QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
}

} // namespace Vantor::Widgets::Internal
