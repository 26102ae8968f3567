#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QSpacerItem;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

class SliderEditFrame;

namespace Internal {

// What the composite editors do with their layouts alike.

// The spacer below the rows takes the spare height, or leaves it to the rows.
void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding);

// Width in pixels of the row's label text in the font of fontSource.
int labelWidth(const SliderEditFrame *row, const QWidget *fontSource);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
