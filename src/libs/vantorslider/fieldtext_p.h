#pragma once

#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <utility>

namespace Vantor {
namespace Widgets {
namespace Internal {

// Where a class of spin box keeps its prefix and suffix. Each key in a field reads them,
// and to find a property by its name costs more than to read it: the last class found is
// kept.
struct UnitProperties
{
    static const UnitProperties &of(const QMetaObject *box)
    {
        static UnitProperties last;
        if (last.box != box) {
            last = {box, box->property(box->indexOfProperty("prefix")),
                    box->property(box->indexOfProperty("suffix"))};
        }
        return last;
    }

    const QMetaObject *box = nullptr;
    QMetaProperty prefix;
    QMetaProperty suffix;
};

// The text of a line edit, split into the prefix and suffix of its spin box, of any class, and the
// entry between them.
struct FieldText
{
    FieldText(const QObject *spinBox, QString text) : entry(std::move(text))
    {
        if (spinBox != nullptr) {
            const UnitProperties &units = UnitProperties::of(spinBox->metaObject());
            prefix = units.prefix.read(spinBox).toString();
            suffix = units.suffix.read(spinBox).toString();
        }
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

    // The text with a different entry.
    QString with(const QString &other) const { return prefix + other + suffix; }

    QString prefix;
    QString entry;
    QString suffix;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
