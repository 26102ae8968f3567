#pragma once

#include <QtCore/qglobal.h>

#if defined(VANTORSLIDER_LIBRARY)
#define VANTORSLIDER_EXPORT Q_DECL_EXPORT
#else
#define VANTORSLIDER_EXPORT Q_DECL_IMPORT
#endif
