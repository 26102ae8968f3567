#include "edituser.h"
#include "ui_alleditors.h"

#include <QtCore/QBuffer>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <memory>

using Vantor::Widgets::SliderEditFrame;

namespace {

// The editors of a form in its order, with every property that the two ways
// from a form to widgets may set differently.
QStringList describe(const QWidget &form)
{
    QStringList lines;
    for (const QObject *child : form.children()) {
        const QMetaObject *type = child->metaObject();
        if (!child->isWidgetType())
            continue;
        QStringList line {child->objectName(), QLatin1String(type->className())};
        for (const char *name : {"enabled", "labelText", "decimals", "minimum", "maximum",
                                 "singleStep", "suffix", "value"}) {
            if (type->indexOfProperty(name) >= 0)
                line.append(child->property(name).toString());
        }
        lines.append(line.join(QLatin1Char('|')));
    }
    return lines;
}

} // namespace

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void form();
    void widgetBox();

private:
    std::unique_ptr<QWidget> load(QIODevice &&device)
    {
        return std::unique_ptr<QWidget>(m_loader.load(&device));
    }

    QUiLoader m_loader;
    QPluginLoader m_plugin {QStringLiteral(DESIGNER_PLUGIN)};
};

// No other folder of plug-ins can lend an editor.
void tst_DesignerPlugin::initTestCase()
{
    m_loader.clearPluginPaths();
    QVERIFY(!m_loader.availableWidgets().join(QLatin1Char(' ')).contains(QLatin1String("Vantor")));
    m_loader.addPluginPath(QFileInfo(m_plugin.fileName()).path());
    QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
}

// Read at run time by the plug-in, a form is what uic makes of it.
void tst_DesignerPlugin::form()
{
    QWidget compiled;
    Ui::AllEditors ui;
    ui.setupUi(&compiled);
    const auto loaded = load(QFile(QStringLiteral(FORM)));
    QVERIFY2(loaded, qPrintable(m_loader.errorString()));
    QCOMPARE(describe(*loaded), describe(compiled));

    const QStringList expected {
        "sliderEditFrame|SliderEditFrame|true|Gain|-20|200|5|120",
        "sliderEditFrameDouble|SliderEditFrameDouble|true|Gamma|1|0.5|2.5|0.1|1.2",
        "rGBEditFrame|RGBEditFrame|true",
        "rGBAllEditFrame|RGBAllEditFrame|true",
        "rGBOpacityEditFrame|RGBOpacityEditFrame|true",
        "rectEditFrame|RectEditFrame|false",
        "cropEditFrame|CropEditFrame|true",
        "maskEditFrame|MaskEditFrame|true",
        "layoutEditFrame|LayoutEditFrame|true",
        "sliderEditSpinBox|SliderEditSpinBox|true|0|4000|1||1080",
        "sliderEditDoubleSpinBox|SliderEditDoubleSpinBox|true|2|0|99.99|1| dB|1.5"};
    QCOMPARE(describe(compiled).replaceInStrings("|Vantor::Widgets::", "|"), expected);

    auto *const editor = loaded->findChild<SliderEditFrame *>("sliderEditFrame");
    QVERIFY(editor && User::show(*loaded));
    User::click(EditorParts<SliderEditFrame>(editor).plus);
    QCOMPARE(editor->value(), 125);
}

void tst_DesignerPlugin::widgetBox()
{
    const auto *collection =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_plugin.instance());
    QVERIFY(collection);
    QStringList names;
    for (const QDesignerCustomWidgetInterface *entry : collection->customWidgets()) {
        names.append(entry->name().section(':', -1));
        QVERIFY(QFile::exists(HEADERS "/" + entry->includeFile()));
        QVERIFY(!entry->isContainer() && !entry->icon().availableSizes().isEmpty());
        QVERIFY(!entry->group().isEmpty() && !entry->toolTip().isEmpty());
        // What Designer drops into a form.
        QBuffer dropped;
        dropped.setData(entry->domXml().toUtf8());
        const auto widget = load(std::move(dropped));
        QVERIFY2(widget, qPrintable(m_loader.errorString()));
        QCOMPARE(QString(widget->metaObject()->className()), entry->name());
    }
    QCOMPARE(names.join(' '),
             QString("SliderEditFrame SliderEditFrameDouble RGBEditFrame RGBAllEditFrame "
                     "RGBOpacityEditFrame RectEditFrame CropEditFrame MaskEditFrame "
                     "LayoutEditFrame SliderEditSpinBox SliderEditDoubleSpinBox"));
}

int main(int argc, char *argv[])
{
    return runTest<tst_DesignerPlugin>(argc, argv);
}

#include "tst_designerplugin.moc"
