#include "editorrows_p.h"

#include "childwidget_p.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QLayout>

#include <algorithm>
#include <vector>

namespace Vantor::Widgets::Internal {

// QDebug adds a space on each side of the number, beside the one of each text.
void warnOfType(int type, const QMessageLogger &here, const char *task)
{
    const QByteArray failure = QByteArray(task) + " has failed. The type ";
    here.warning() << failure.constData() << type << " is invalid.";
}

SliderEditFrame *EditorRows::findOrWarn(int type, const QMessageLogger &here,
                                        const char *task) const
{
    for (const Row &row : m_rows) {
        if (row.type == type) {
            return row.frame;
        }
    }
    warnOfType(type, here, task);
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

void markTopmost(const QLayout *column)
{
    bool isTopmost = true;
    for (int i = 0; i < column->count(); ++i) {
        QWidget *widget = column->itemAt(i)->widget();
        if (widget != nullptr) {
            setStyledProperty(widget, "isTopmost", isTopmost && !widget->isHidden());
            isTopmost = isTopmost && widget->isHidden();
        }
    }
}

void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding)
{
    if (isExpanding) {
        spacer->changeSize(20, 20, QSizePolicy::Expanding, QSizePolicy::Expanding);
    } else {
        spacer->changeSize(20, 0, QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
}

// Only the forms have another horizontal policy.
void setSpacerHeight(QSpacerItem *spacer, QLayout *column, int height)
{
    const QSizePolicy policy = spacer->sizePolicy();
    if (policy.horizontalPolicy() != QSizePolicy::Expanding) {
        spacer->changeSize(spacer->sizeHint().width(), std::max(height, 0),
                           policy.horizontalPolicy(), policy.verticalPolicy());
        column->invalidate();
    }
}

} // namespace Vantor::Widgets::Internal
