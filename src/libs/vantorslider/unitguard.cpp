#include "unitguard_p.h"

#include "fieldtext_p.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

namespace Vantor::Widgets::Internal {

namespace {

// Where the number starts and ends in the field.
struct Bounds
{
    explicit Bounds(const QLineEdit *field)
    {
        const FieldText shown(field->parent(), field->text());
        first = static_cast<int>(shown.prefix.length());
        last = first + static_cast<int>(shown.entry.length());
    }

    int first;
    int last;
};

} // namespace

UnitGuard::UnitGuard(QLineEdit *field) : m_field(field)
{
    connect(field, &QLineEdit::cursorPositionChanged, this, &UnitGuard::keepInside);
    connect(field, &QLineEdit::selectionChanged, this, &UnitGuard::keepInside);
    connect(field, &QLineEdit::textEdited, this, &UnitGuard::repair);
    keepInside();
}

bool UnitGuard::isOutside(const QKeyEvent *key) const
{
    if (m_field->hasSelectedText()) {
        return false;
    }
    const Bounds bounds(m_field);
    return (key->key() == Qt::Key_Delete && m_field->cursorPosition() >= bounds.last)
        || (key->key() == Qt::Key_Backspace && m_field->cursorPosition() <= bounds.first);
}

void UnitGuard::keepInside()
{
    const Bounds bounds(m_field);
    const auto inside = [&bounds](int position) {
        return qBound(bounds.first, position, bounds.last);
    };
    const int cursor = m_field->cursorPosition();
    if (!m_field->hasSelectedText()) {
        if (inside(cursor) != cursor) {
            m_field->setCursorPosition(inside(cursor));
        }
        return;
    }
    const int start = m_field->selectionStart();
    const int end = start + static_cast<int>(m_field->selectedText().length());
    if (inside(start) != start || inside(end) != end) {
        const int anchor = cursor == start ? end : start;
        m_field->setSelection(inside(anchor), inside(cursor) - inside(anchor));
    }
}

// Some edits reach beyond the number: Ctrl+K deletes up to the end of the text. What is left of the
// prefix is before the cursor, and what is left of the suffix behind it.
void UnitGuard::repair()
{
    const Unit unit(m_field->parent());
    QString before = m_field->text().left(m_field->cursorPosition());
    QString after = m_field->text().mid(m_field->cursorPosition());
    auto left = unit.prefix.length();
    while (!before.startsWith(unit.prefix.left(left))) {
        --left;
    }
    before.replace(0, left, unit.prefix);
    left = unit.suffix.length();
    while (!after.endsWith(unit.suffix.right(left))) {
        --left;
    }
    after.chop(left);
    const QString whole = before + after + unit.suffix;
    if (whole != m_field->text()) {
        const QSignalBlocker blocker(m_field);
        m_field->setText(whole);
        m_field->setCursorPosition(static_cast<int>(before.length()));
    }
    // It stays the user's edit when it was repaired, here or by Qt, which clears the history.
    if (!m_field->isUndoAvailable() && !m_field->isRedoAvailable()) {
        m_field->setModified(true);
    }
}

} // namespace Vantor::Widgets::Internal
