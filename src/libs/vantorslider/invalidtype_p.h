#pragma once

#include <QtCore/QDebug>

namespace Vantor {
namespace Widgets {
namespace Internal {

// Where the warning of a public operation is said to come from: its file, line
// and signature. It stands in the operation itself, for it names the function
// that it is written in.
#define VANTORSLIDER_HERE QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO)

// Tells the host that an operation was given a type flag that names no row.
// The stream adds a blank on each side of the number to those of the texts.
inline void warnInvalidType(const QMessageLogger &here, const char *failure, int type)
{
    here.warning() << failure << type << " is invalid.";
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
