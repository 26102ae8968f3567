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

int textWidthOf(const QLabel &label)
{
    if (!isRich(label)) {
        return label.fontMetrics().size(Qt::TextShowMnemonic, label.text()).width();
    }
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(label.font());
    document.setHtml(label.text());
    return qCeil(document.idealWidth());
}

// What a label keeps its text off its edge by where nothing sets it: with a frame, or a
// padding of a sheet, half the width of an x.
int indentOf(const QLabel &label)
{
    if (label.indent() >= 0) {
        return label.indent();
    }
    const int half = label.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("x")).width() / 2;
    return label.frameWidth() > 0 ? qMax(0, half - label.margin()) : 0;
}

// A label and what its text takes. The label's own hint does not serve: it is never
// below the minimum width, which is that of the column.
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

// The labels below a panel, which owns it. Each pass finds those that are there, and
// measures a text again only where it, its font or its place has changed.
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

    // Those of the last pass; nothing is read through their pointers until the next
    // has found them again.
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
    panel->installEventFilter(this); // with rows or without
    m_labels.erase(m_labels.begin() + std::ptrdiff_t(m_count), m_labels.end());
    int width = 0;
    for (const MeasuredLabel &measured : m_labels) {
        width = qMax(width, measured.width());
    }
    for (const MeasuredLabel &measured : m_labels) {
        measured.label->setFixedWidth(width);
        if (m_alignment != Qt::Alignment()) {
            // Left to itself the label goes by the direction of its text.
            measured.label->setAlignment(
                QStyle::visualAlignment(measured.label->layoutDirection(), m_alignment)
                | Qt::AlignVCenter);
        }
    }
}

// Whether there is a row in the widget. Rows, hidden ones too, and what lies between
// them and the panel are watched.
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

// A label's text or font that changes makes its row lay itself out again. Of many
// changes at once one pass follows, before anything is painted: at the latest when
// the panel lays out its rows or is shown.
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
