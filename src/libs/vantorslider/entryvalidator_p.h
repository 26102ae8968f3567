#pragma once

#include <QtCore/QPointer>
#include <QtGui/QValidator>

namespace Vantor::Widgets {

class LineEditCal;

namespace Internal {

// The validator of a field with SafeEntry. What the user inserts and a validator refuses is taken
// back by QLineEdit, with text, selection, cursor and history as before, whether it was typed,
// pasted, dropped or committed by an input method. Asks the validator of the spin box, too.
class EntryValidator : public QValidator
{
    Q_OBJECT

public:
    explicit EntryValidator(LineEditCal *field);
    ~EntryValidator() override;
    State validate(QString &text, int &cursor) const override;

private:
    LineEditCal *const m_field;
    const QPointer<const QValidator> m_ofSpinBox;
    // QLineEdit validates each change, also of the program: this is the text before it.
    mutable QString m_text;
};

} // namespace Internal
} // namespace Vantor::Widgets
