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

// The text of a line edit, split into the prefix and suffix of its spin box and the entry between
// them.
struct FieldText
{
    // Of a spin box of a known class.
    template <typename SpinBox> static FieldText of(const SpinBox *spinBox)
    {
        return {spinBox->prefix(), spinBox->suffix(), spinBox->text()};
    }

    FieldText(const QObject *spinBox, QString text) : entry(std::move(text))
    {
        if (spinBox != nullptr) {
            const UnitProperties &units = UnitProperties::of(spinBox->metaObject());
            prefix = units.prefix.read(spinBox).toString();
            suffix = units.suffix.read(spinBox).toString();
        }
        split();
    }

    FieldText(QString before, QString after, QString text)
        : prefix(std::move(before)), entry(std::move(text)), suffix(std::move(after))
    {
        split();
    }

    // The text with a different entry.
    QString with(const QString &other) const { return prefix + other + suffix; }

    QString prefix;
    QString entry;
    QString suffix;

private:
    void split()
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
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
