#pragma once

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QLineEdit;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Keeps cursor and selection of a spin box's field on the number, behind the prefix and before the
// suffix. Qt lets the cursor go to both ends of the text, because its validator refuses there what
// is no number; the calculator accepts it. Deleted before the field.
class UnitGuard : public QObject
{
public:
    explicit UnitGuard(QLineEdit *field);

    // Whether the key would delete nothing but a part of prefix or suffix.
    bool isOutside(const QKeyEvent *key) const;

private:
    void keepInside();
    void repair();

    QLineEdit *const m_field;
};

} // namespace Vantor::Widgets::Internal
