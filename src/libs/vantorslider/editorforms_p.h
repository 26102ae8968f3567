#pragma once

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Gives the children of all editors in the widget, or of all editors there are if it is null, the
// sizes and texts of their forms again. A style sheet replaces them, and Qt does not restore them
// when it is removed. Labels are left alone: their widths are those of their texts.
void restoreForms(const QWidget *root);

} // namespace Vantor::Widgets::Internal
