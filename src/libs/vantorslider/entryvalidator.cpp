#include "entryvalidator_p.h"

#include "qlineeditcal.h"

namespace Vantor::Widgets::Internal {

namespace {

// Whether the user has removed a part that ended or started at the cursor.
bool isRemoval(const QString &before, const QString &text, int cursor)
{
    return text.length() < before.length() && before.startsWith(text.left(cursor))
        && before.endsWith(text.mid(cursor));
}

} // namespace

EntryValidator::EntryValidator(LineEditCal *field)
    : m_field(field), m_ofSpinBox(field->validator()), m_text(field->text())
{
    field->setValidator(this);
}

EntryValidator::~EntryValidator()
{
    m_field->setValidator(m_ofSpinBox);
}

// A text of the program clears the history.
QValidator::State EntryValidator::validate(QString &text, int &cursor) const
{
    if (m_field->isUndoAvailable() && text != m_text && !isRemoval(m_text, text, cursor)
        && m_field->refuses(text, cursor)) {
        return Invalid;
    }
    const State state = m_ofSpinBox != nullptr ? m_ofSpinBox->validate(text, cursor) : Acceptable;
    m_text = text;
    return state;
}

} // namespace Vantor::Widgets::Internal
