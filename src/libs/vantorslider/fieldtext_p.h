#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The text of a line edit, split into the prefix and suffix of its spin box, of any class, and the
// entry between them.
struct FieldText
{
    FieldText(const QObject *spinBox, const QString &text) : entry(text)
    {
        prefix = spinBox != nullptr ? spinBox->property("prefix").toString() : QString();
        suffix = spinBox != nullptr ? spinBox->property("suffix").toString() : QString();
        if (entry.startsWith(prefix)) {
            entry.remove(0, prefix.length());
        } else {
            prefix.clear();
        }
        if (entry.endsWith(suffix)) {
            entry.chop(suffix.length());
        } else {
            suffix.clear();
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
