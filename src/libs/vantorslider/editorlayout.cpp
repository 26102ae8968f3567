#include "editorlayout_p.h"

#include "slidereditframe.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QSpacerItem>

namespace Vantor {
namespace Widgets {
namespace Internal {

void setSpacerExpanding(QSpacerItem *spacer, bool isExpanding)
{
    if (isExpanding) {
        spacer->changeSize(20, 20, QSizePolicy::Expanding, QSizePolicy::Expanding);
    } else {
        spacer->changeSize(20, 0, QSizePolicy::Expanding, QSizePolicy::Ignored);
    }
}

int labelWidth(const SliderEditFrame *row, const QWidget *fontSource)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return fontSource->fontMetrics().horizontalAdvance(row->labelText());
#else
    return fontSource->fontMetrics().width(row->labelText());
#endif
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
