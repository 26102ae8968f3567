#include "alignfields.h"

#include "calculatorspinbox_p.h"
#include "childwidget_p.h"
#include "panelcolumn_p.h"
#include "slidereditframe_p.h"

#include <QtCore/QHash>
#include <QtCore/QtMath>
#include <QtGui/QFontMetricsF>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSpinBox>

#include <algorithm>

namespace Vantor::Widgets {
namespace Internal {

namespace {

constexpr int formWidth = 65; // of a field for which neither host nor sheet has set one
constexpr int anyWidth = 1000; // in which the style is asked how much it takes
constexpr int lineEditMargin = 2; // QLineEdit's own, on each side of its text

qreal advanceOf(const QFontMetricsF &metrics, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

// The texts of which one is the widest, up to the widths of their digits: of all numbers in a
// range, one of the ends has the most digits.
template <typename SpinBox> QStringList longestTexts(const SpinBox *spinBox, const QString &suffix)
{
    QStringList texts {spinBox->specialValueText()};
    for (const auto end : {spinBox->minimum(), spinBox->maximum()}) {
        texts.append(spinBox->prefix() + ValueText::of(spinBox, end) + suffix);
    }
    return texts;
}

QStringList longestTexts(const QAbstractSpinBox *field)
{
    if (const auto *whole = qobject_cast<const SliderEditSpinBox *>(field)) {
        return longestTexts(whole, whole->suffix());
    }
    const auto *real = qobject_cast<const SliderEditDoubleSpinBox *>(field);
    return real != nullptr ? longestTexts(real, real->unitSuffix()) : QStringList();
}

QChar widestDigit(const QFontMetricsF &metrics)
{
    const QString digits = QStringLiteral("0123456789");
    return *std::max_element(digits.begin(), digits.end(), [&metrics](QChar a, QChar b) {
        return advanceOf(metrics, a) < advanceOf(metrics, b);
    });
}

qreal widthOfTexts(const QStringList &texts, const QFontMetricsF &metrics)
{
    const QChar digit = widestDigit(metrics);
    qreal width = 0;
    for (QString text : texts) {
        std::replace_if(
            text.begin(), text.end(), [](QChar c) { return c.isDigit(); }, digit);
        width = qMax(width, advanceOf(metrics, text));
    }
    return width;
}

// What style and style sheet take of the field's width, in that state.
int edgesOf(const QAbstractSpinBox &field, const QLineEdit &edit, QStyle::State state)
{
    QStyleOptionSpinBox box;
    box.initFrom(&field);
    box.state = state;
    box.rect = QRect(0, 0, anyWidth, field.height());
    box.frame = field.hasFrame();
    box.buttonSymbols = field.buttonSymbols();
    box.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxEditField;
    const QRect inside = field.style()->subControlRect(QStyle::CC_SpinBox, &box,
                                                       QStyle::SC_SpinBoxEditField, &field);
    QStyleOptionFrame line;
    line.initFrom(&edit);
    line.state = state | QStyle::State_Sunken;
    line.rect = QRect(0, 0, inside.width(), edit.height());
    line.lineWidth = 0; // a line edit in a spin box has no frame
    return anyWidth
        - edit.style()->subElementRect(QStyle::SE_LineEditContents, &line, &edit).width();
}

// A QLineEdit scrolls a text unless it has a pixel more than the text.
int neededWidth(const QAbstractSpinBox &field, const QStringList &texts)
{
    const auto *edit = field.findChild<QLineEdit *>();
    if (edit == nullptr) {
        return 0;
    }
    const QFontMetricsF metrics(edit->font());
    const QMargins margins = edit->textMargins();
    const int edges = qMax(edgesOf(field, *edit, QStyle::State_Enabled),
                           edgesOf(field, *edit, QStyle::State_None));
    return edges + margins.left() + margins.right() + 2 * lineEditMargin + 1
        + qCeil(widthOfTexts(texts, metrics));
}

// A width of the form does not count.
WidthRange widthsSetFor(const QWidget &field)
{
    WidthRange widths;
    if (field.minimumWidth() != formWidth) {
        widths.least = field.minimumWidth();
    }
    if (field.maximumWidth() != formWidth) {
        widths.greatest = field.maximumWidth();
    }
    return widths;
}

} // namespace

class FieldColumn : public PanelColumn
{
    Q_OBJECT

public:
    using PanelColumn::PanelColumn;

protected:
    void align(const std::vector<QWidget *> &rows) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Field
    {
        bool isFixed() const { return within(0) == within(QWIDGETSIZE_MAX); }
        void update(const QAbstractSpinBox &field);
        int within(int wanted) const { return sheet.within(host.within(wanted)); }

        // The widths that the host permits by the row's setters, and those that were found: a
        // sheet's, or without a sheet the host's.
        WidthRange host;
        WidthRange sheet;
        // What the last pass found and set.
        QStringList texts;
        int width = -1;
    };

    void watch(QAbstractSpinBox *field);

    QHash<QObject *, Field> m_fields;
};

void FieldColumn::align(const std::vector<QWidget *> &rows)
{
    std::vector<QAbstractSpinBox *> fields;
    int width = 0;
    for (const QWidget *row : rows) {
        auto *field = row->findChild<QAbstractSpinBox *>(QString(), Qt::FindDirectChildrenOnly);
        if (field == nullptr) {
            continue;
        }
        if (!m_fields.contains(field)) {
            watch(field); // before it is polished, or its sheet would be applied twice
        }
        polish(row);
        fields.push_back(field);
        Field &found = m_fields[field];
        found.update(*field);
        if (!found.isFixed()) {
            width =
                qMax(width, qMin(neededWidth(*field, found.texts), found.within(QWIDGETSIZE_MAX)));
        }
    }
    for (QAbstractSpinBox *field : fields) {
        Field &found = m_fields[field];
        found.width = found.within(width);
        field->setFixedWidth(found.width);
    }
}

// A style sheet sets its widths at each polish.
void FieldColumn::Field::update(const QAbstractSpinBox &field)
{
    if (field.minimumWidth() != width || field.maximumWidth() != width) {
        sheet = widthsSetFor(field);
    }
    host = hostWidths(&field);
    texts = longestTexts(&field);
}

// The library's sheets set no width for a field with this property.
void FieldColumn::watch(QAbstractSpinBox *field)
{
    m_fields.insert(field, Field());
    connect(field, &QObject::destroyed, this,
            [this](QObject *destroyed) { m_fields.remove(destroyed); });
    field->installEventFilter(this);
    field->setProperty(alignedFieldProperty, true);
    applyStyleSheet(field);
}

// The setters of a row request a layout. A spin box whose host changes it without them tells
// nobody, but draws itself.
bool FieldColumn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        const auto found = m_fields.constFind(watched);
        if (found != m_fields.constEnd()
            && found->texts != longestTexts(static_cast<QAbstractSpinBox *>(watched))) {
            updateLater();
        }
    }
    return PanelColumn::eventFilter(watched, event);
}

} // namespace Internal

void alignFields(QWidget *panel)
{
    if (panel != nullptr) {
        Internal::columnOf<Internal::FieldColumn>(panel)->update();
    }
}

} // namespace Vantor::Widgets

#include "alignfields.moc"
