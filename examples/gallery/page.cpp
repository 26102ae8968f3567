#include "page.h"

#include "alignlabels.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

Page::Page(const QString &title, EditHistory *history, LogPane *log)
    : m_history(history), m_log(log), m_title(title), m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(2, 9, 2, 9); // the editors have their own
    m_layout->setSpacing(6);
}

void Page::addHeading(const QString &title, const QString &caption, QWidget *beside)
{
    auto *heading =
        new QLabel(QStringLiteral("<b>%1</b><br><small>%2</small>").arg(title, caption));
    heading->setWordWrap(true);
    heading->setContentsMargins(4, m_layout->isEmpty() ? 0 : 10, 4, 2);
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
    Vantor::Widgets::alignLabels(this);
}

void Page::addWidget(QWidget *widget)
{
    m_layout->addWidget(widget);
}
