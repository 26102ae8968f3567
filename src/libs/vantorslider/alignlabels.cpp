#include "alignlabels.h"

#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QtMath>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

#include <vector>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

bool isRow(const QWidget *widget)
{
    return qobject_cast<const SliderEditFrame *>(widget) != nullptr
        || qobject_cast<const SliderEditFrameDouble *>(widget) != nullptr;
}

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

// A label and the width that its text needs. The label's size hint can't tell: it is never
// smaller than the minimum width, which is the column's.
struct MeasuredLabel
{
    explicit MeasuredLabel(QLabel *measured)
        : label(measured), text(label->text()), font(label->font()), textWidth(textWidthOf(*label))
    {
    }

    bool isOf(const QLabel *other) const
    {
        return label == other && text == other->text() && font == other->font();
    }

    int width() const
    {
        const QMargins margins = label->contentsMargins();
        return textWidth + margins.left() + margins.right() + 2 * label->margin()
            + indentOf(*label);
    }

    QLabel *label;
    QString text;
    QFont font;
    int textWidth;
};

} // namespace

// The labels of a panel, which owns this object. Each pass collects the labels and measures a
// text again only if it, its font or its position has changed.
class LabelColumn : public QObject
{
    Q_OBJECT

public:
    explicit LabelColumn(QWidget *panel) : QObject(panel) { }

    static LabelColumn *of(const QWidget *panel)
    {
        return panel->findChild<LabelColumn *>(QString(), Qt::FindDirectChildrenOnly);
    }

    void setAlignment(Qt::Alignment alignment) { m_alignment = alignment; }
    void align();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool collect(QWidget *widget, bool isVisible);
    bool collectBelow(QWidget *widget, bool isVisible);
    void append(QLabel *label);

    // The labels of the last pass. The pointers may dangle until the next pass has found the
    // labels again.
    std::vector<MeasuredLabel> m_labels;
    std::size_t m_count = 0;
    Qt::Alignment m_alignment;
    bool m_isPending = false;
};

void LabelColumn::align()
{
    m_isPending = false;
    m_count = 0;
    auto *panel = static_cast<QWidget *>(parent());
    collect(panel, true);
    panel->installEventFilter(this); // also if it has no rows
    m_labels.erase(m_labels.begin() + std::ptrdiff_t(m_count), m_labels.end());
    int width = 0;
    for (const MeasuredLabel &measured : m_labels) {
        width = qMax(width, measured.width());
    }
    for (const MeasuredLabel &measured : m_labels) {
        measured.label->setFixedWidth(width);
        if (m_alignment != Qt::Alignment()) {
            // QLabel itself would use the direction of its text, not of the layout.
            measured.label->setAlignment(
                QStyle::visualAlignment(measured.label->layoutDirection(), m_alignment)
                | Qt::AlignVCenter);
        }
    }
}

// Collects the labels below the widget and returns whether it contains a row. Rows, also hidden
// ones, and the widgets between them and the panel get the event filter.
bool LabelColumn::collect(QWidget *widget, bool isVisible)
{
    if (isRow(widget)) {
        auto *label =
            widget->findChild<QLabel *>(QStringLiteral("labelName"), Qt::FindDirectChildrenOnly);
        if (isVisible && label != nullptr) {
            append(label);
        }
    } else if (!collectBelow(widget, isVisible)) {
        return false;
    }
    widget->installEventFilter(this);
    return true;
}

bool LabelColumn::collectBelow(QWidget *widget, bool isVisible)
{
    bool isAnyRow = false;
    for (QObject *child : widget->children()) {
        if (!child->isWidgetType()) {
            continue;
        }
        auto *inside = static_cast<QWidget *>(child);
        if (!inside->isWindow() && of(inside) == nullptr) {
            isAnyRow |= collect(inside, isVisible && !inside->isHidden());
        }
    }
    return isAnyRow;
}

void LabelColumn::append(QLabel *label)
{
    if (m_count == m_labels.size()) {
        m_labels.emplace_back(label);
    } else if (!m_labels[m_count].isOf(label)) {
        m_labels[m_count] = MeasuredLabel(label);
    }
    ++m_count;
}

bool LabelColumn::event(QEvent *event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    if (m_isPending) {
        align();
    }
    return true;
}

// A change of a label's text or font makes its row request a layout. Several changes lead to one
// pass, before anything is painted: at the latest when the panel lays out its rows or is shown.
bool LabelColumn::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Show:
        if (watched == parent()) {
            align();
            break;
        }
        [[fallthrough]];
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
        if (!m_isPending) {
            m_isPending = true;
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        }
        break;
    default:
        break;
    }
    return false;
}

} // namespace Internal

void alignLabels(QWidget *panel, Qt::Alignment alignment)
{
    if (panel == nullptr) {
        return;
    }
    auto *column = Internal::LabelColumn::of(panel);
    if (column == nullptr) {
        column = new Internal::LabelColumn(panel);
    }
    column->setAlignment(alignment & Qt::AlignHorizontal_Mask);
    column->align();
}

} // namespace Widgets
} // namespace Vantor

#include "alignlabels.moc"
