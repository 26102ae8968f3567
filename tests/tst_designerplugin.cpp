#include "edituser.h"
#include "slidereditframedouble.h"
#include "ui_alleditors.h"

#include <QtCore/QBuffer>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <memory>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

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

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void form();
    void loadedEditorsWork();
    void table_data();
    void table();

private:
    std::unique_ptr<QWidget> load(QIODevice &&device)
    {
        return std::unique_ptr<QWidget>(m_loader.load(&device));
    }

    QUiLoader m_loader;
    QPluginLoader m_plugin {QStringLiteral(DESIGNER_PLUGIN)};
};

// No other folder of plug-ins can lend an editor.
void TestDesignerPlugin::initTestCase()
{
    m_loader.clearPluginPaths();
    QVERIFY(!m_loader.availableWidgets().join(QLatin1Char(' ')).contains(QLatin1String("Vantor")));
    m_loader.addPluginPath(QFileInfo(m_plugin.fileName()).path());
    QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
}

// Read at run time by the plug-in, a form is what uic makes of it.
void TestDesignerPlugin::form()
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
}

void TestDesignerPlugin::loadedEditorsWork()
{
    const auto form = load(QFile(QStringLiteral(FORM)));
    QVERIFY(form);
    const auto *whole = form->findChild<SliderEditFrame *>(QStringLiteral("sliderEditFrame"));
    const auto *fraction = form->findChild<SliderEditFrameDouble *>();
    QVERIFY(whole && fraction);
    QVERIFY(User::show(*form));
    EventLog log;
    log.watch(whole, &SliderEditFrame::valueChanged, QStringLiteral("whole"));
    log.watch(fraction, &SliderEditFrameDouble::valueChanged, QStringLiteral("fraction"));
    User::click(whole->findChild<QWidget *>(QStringLiteral("sliderEditPlus")));
    User::click(fraction->findChild<QWidget *>(QStringLiteral("sliderEditSubtract")));
    QCOMPARE(log.take(), QStringList({"whole(125)", "fraction(1.1)"}));
}

void TestDesignerPlugin::table_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("className");
    const QStringList names {"SliderEditFrame",   "SliderEditFrameDouble",  "RGBEditFrame",
                             "RGBAllEditFrame",   "RGBOpacityEditFrame",    "RectEditFrame",
                             "CropEditFrame",     "MaskEditFrame",          "LayoutEditFrame",
                             "SliderEditSpinBox", "SliderEditDoubleSpinBox"};
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names[i])) << i << "Vantor::Widgets::" + names[i];
}

void TestDesignerPlugin::table()
{
    QFETCH(int, index);
    QFETCH(QString, className);
    auto *collection =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_plugin.instance());
    QVERIFY(collection);
    QCOMPARE(collection->customWidgets().size(), 11);
    QDesignerCustomWidgetInterface *entry = collection->customWidgets().at(index);

    QCOMPARE(entry->name(), className);
    QVERIFY(QFile::exists(QStringLiteral(HEADERS "/") + entry->includeFile()));
    QVERIFY(!entry->isContainer());
    QVERIFY(!entry->group().isEmpty() && !entry->toolTip().isEmpty());
    QVERIFY(!entry->icon().availableSizes().isEmpty());
    // What Designer drops into a form.
    QBuffer dropped;
    dropped.setData(entry->domXml().toUtf8());
    const auto widget = load(std::move(dropped));
    QVERIFY2(widget, qPrintable(m_loader.errorString()));
    QCOMPARE(QLatin1String(widget->metaObject()->className()), className);
}

int main(int argc, char *argv[])
{
    return runTest<TestDesignerPlugin>(argc, argv);
}

#include "tst_designerplugin.moc"
