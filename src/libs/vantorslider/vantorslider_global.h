#pragma once

#include <QtCore/qglobal.h>

// Exports a class or function from the library, and imports it into a host. VANTORSLIDER_LIBRARY is
// defined only while the library itself is built.
#if defined(VANTORSLIDER_LIBRARY)
#define VANTORSLIDER_EXPORT Q_DECL_EXPORT
#else
#define VANTORSLIDER_EXPORT Q_DECL_IMPORT
#endif
