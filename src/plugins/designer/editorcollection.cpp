#include "editorcollection.h"

#include "cropeditframe.h"
#include "editorplugin.h"
#include "layouteditframe.h"
#include "maskeditframe.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframe_p.h"
#include "slidereditframedouble.h"

using namespace Vantor::Widgets;

namespace {

template <typename Editor>
EditorDescription describe(const char *includeFile, const char *toolTip,
                           const char *properties = "")
{
    return {QLatin1String(Editor::staticMetaObject.className()), QLatin1String(includeFile),
            QLatin1String(toolTip), QLatin1String(properties),
            [](QWidget *parent) -> QWidget * { return new Editor(parent); }};
}

// A row without a label text would be hard to see in the form.
constexpr auto named = R"(<property name="labelText"><string>Value</string></property>)";

QVector<EditorDescription> descriptions()
{
    return {
        describe<SliderEditFrame>("slidereditframe.h", "A whole number with its slider", named),
        describe<SliderEditFrameDouble>("slidereditframedouble.h",
                                        "A number with decimals and its slider", named),
        describe<RGBEditFrame>("rgbeditframe.h", "Red, green and blue"),
        describe<RGBAllEditFrame>("rgballeditframe.h", "Red, green, blue and a master value"),
        describe<RGBOpacityEditFrame>("rgbopacityeditframe.h", "Red, green, blue and opacity"),
        describe<RectEditFrame>("recteditframe.h", "A rectangle, with locks of position and size"),
        describe<CropEditFrame>("cropeditframe.h", "A rectangle that stays in its area"),
        describe<MaskEditFrame>("maskeditframe.h", "Margins that hide the edges of an area"),
        describe<LayoutEditFrame>("layouteditframe.h", "Place and size of a window in a layout"),
        describe<SliderEditSpinBox>("slidereditframe_p.h", "A field for a typed expression"),
        describe<SliderEditDoubleSpinBox>("slidereditframe_p.h",
                                          "A field with decimals for a typed expression"),
    };
}

} // namespace

EditorCollection::EditorCollection(QObject *parent) : QObject(parent)
{
    for (const EditorDescription &description : descriptions()) {
        m_plugins.append(new EditorPlugin(description, this));
    }
}

QList<QDesignerCustomWidgetInterface *> EditorCollection::customWidgets() const
{
    return m_plugins;
}
