#include "alignlabels.h"

#include "panelcolumn_p.h"

#include <QtCore/QtMath>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

#include <vector>

namespace Vantor::Widgets {
namespace Internal {

namespace {

bool isRich(const QLabel &label)
{
    return label.textFormat() == Qt::RichText
        || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
}

int letterWidth(const QFontMetrics &metrics)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(QLatin1Char('x'));
#else
    return metrics.width(QLatin1Char('x'));
#endif
}

int textWidthOf(const QLabel &label)
{
    if (!isRich(label)) {
        // Not horizontalAdvance(): with advances in fractions of a pixel it can be a pixel less.
        return label.fontMetrics().size(Qt::TextShowMnemonic, label.text()).width();
    }
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(label.font());
    document.setHtml(label.text());
    return qCeil(document.idealWidth());
}

// The indent of the text from the label's edge. If the host has set none, QLabel indents by half
// the width of an "x" if there is a frame or a style sheet's padding.
int indentOf(const QLabel &label)
{
    if (label.indent() >= 0) {
        return label.indent();
    }
    return label.frameWidth() > 0 ? qMax(0, letterWidth(label.fontMetrics()) / 2 - label.margin())
                                  : 0;
}

// The width that the label's text needs. The size hint can't tell: it is never smaller than the
// minimum width, which is the column's.
int neededWidth(const QLabel &label)
{
    const QMargins margins = label.contentsMargins();
    return textWidthOf(label) + margins.left() + margins.right() + 2 * label.margin()
        + indentOf(label);
}

} // namespace

class LabelColumn : public PanelColumn
{
    Q_OBJECT

public:
    using PanelColumn::PanelColumn;

    void setAlignment(Qt::Alignment alignment) { m_alignment = alignment; }

protected:
    void align(const std::vector<QWidget *> &rows) override;

private:
    Qt::Alignment m_alignment;
};

void LabelColumn::align(const std::vector<QWidget *> &rows)
{
    std::vector<QLabel *> labels;
    int width = 0;
    for (const QWidget *row : rows) {
        polish(row);
        auto *label =
            row->findChild<QLabel *>(QStringLiteral("labelName"), Qt::FindDirectChildrenOnly);
        if (label != nullptr) {
            labels.push_back(label);
            width = qMax(width, neededWidth(*label));
        }
    }
    for (QLabel *label : labels) {
        label->setFixedWidth(width);
        if (m_alignment != Qt::Alignment()) {
            // QLabel itself would use the direction of its text, not of the layout.
            label->setAlignment(QStyle::visualAlignment(label->layoutDirection(), m_alignment)
                                | Qt::AlignVCenter);
        }
    }
}

} // namespace Internal

void alignLabels(QWidget *panel, Qt::Alignment alignment)
{
    if (panel == nullptr) {
        return;
    }
    auto *column = Internal::columnOf<Internal::LabelColumn>(panel);
    column->setAlignment(alignment & Qt::AlignHorizontal_Mask);
    column->update();
}

} // namespace Vantor::Widgets

#include "alignlabels.moc"
