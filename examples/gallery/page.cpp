#include "page.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

int textWidth(const QLabel &label)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return label.fontMetrics().horizontalAdvance(label.text());
#else
    return label.fontMetrics().width(label.text());
#endif
}

} // namespace

Page::Page(const QString &title, EditHistory *history, LogPane *log)
    : m_history(history), m_log(log), m_title(title), m_layout(new QVBoxLayout(this))
{
    m_layout->setSpacing(6);
}

void Page::alignLabels()
{
    // The object name of a row's label is part of the styling interface.
    const auto labels = findChildren<QLabel *>(QStringLiteral("labelName"));
    int width = 0;
    for (const QLabel *label : labels) {
        width = qMax(width, textWidth(*label));
    }
    for (QLabel *label : labels) {
        label->setFixedWidth(width + labelSpacing);
    }
}

void Page::addHeading(const QString &title, const QString &caption, QWidget *beside)
{
    auto *heading =
        new QLabel(QStringLiteral("<b>%1</b><br><small>%2</small>").arg(title, caption));
    heading->setWordWrap(true);
    heading->setContentsMargins(4, m_layout->isEmpty() ? 0 : 14, 4, 2);
    auto *line = new QHBoxLayout;
    line->addWidget(heading, 1);
    if (beside) {
        line->addWidget(beside);
    }
    m_layout->addLayout(line);
}

void Page::finish()
{
    m_layout->addStretch();
    alignLabels();
}

void Page::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        alignLabels();
    }
}

void Page::addWidget(QWidget *widget)
{
    m_layout->addWidget(widget);
}
