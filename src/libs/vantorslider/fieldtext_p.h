#pragma once

#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <utility>

namespace Vantor::Widgets::Internal {

// Prefix and suffix of a spin box of any class. Each key in a field reads them, and to find a
// property by its name costs more than to read it: the properties of the last class are kept.
struct Unit
{
    explicit Unit(const QObject *spinBox)
    {
        if (spinBox != nullptr) {
            static const QMetaObject *box = nullptr;
            static QMetaProperty prefixOfBox;
            static QMetaProperty suffixOfBox;
            if (box != spinBox->metaObject()) {
                box = spinBox->metaObject();
                prefixOfBox = box->property(box->indexOfProperty("prefix"));
                suffixOfBox = box->property(box->indexOfProperty("suffix"));
            }
            prefix = prefixOfBox.read(spinBox).toString();
            suffix = suffixOfBox.read(spinBox).toString();
        }
    }

    // Of a known class.
    Unit(QString before, QString after) : prefix(std::move(before)), suffix(std::move(after)) { }

    QString prefix;
    QString suffix;
};

// The text of a spin box, split into prefix and suffix, if it has them, and the entry between
// them.
struct FieldText : Unit
{
    FieldText(Unit unit, QString text) : Unit(std::move(unit)), entry(std::move(text))
    {
        if (prefix.isEmpty() || !entry.startsWith(prefix)) {
            prefix.clear();
        } else {
            entry.remove(0, prefix.length());
        }
        if (suffix.isEmpty() || !entry.endsWith(suffix)) {
            suffix.clear();
        } else {
            entry.chop(suffix.length());
        }
    }

    FieldText(const QObject *spinBox, QString text) : FieldText(Unit(spinBox), std::move(text)) { }

    // The text with a different entry.
    QString with(const QString &other) const { return prefix + other + suffix; }

    QString entry;
};

} // namespace Vantor::Widgets::Internal
