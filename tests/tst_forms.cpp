#include "editoruser.h"
#include "layouteditframe.h"
#include "rgballeditframe.h"
#include "rgbopacityeditframe.h"
#include "ui_alleditors.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QDataWidgetMapper>

#ifdef DESIGNER_PLUGIN
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>
#endif

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
Q_DECLARE_METATYPE(QMargins) // as a host does
#endif

using namespace Vantor::Widgets;

// The editors in forms and in Designer, and with QDataWidgetMapper.
class tst_Forms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void mapper();
    void colors();
    void form();
    void widgetBox();
};

namespace {

// The mapper's writes emit nothing, at first and in reply to the user's click. It finds the value
// and the signal of the editor by USER and NOTIFY.
template <typename Frame>
void compareMapping(const QVariant &modelled, const QString &step, const QVariant &stepped,
                    const QString &setUp = "shown")
{
    UserOf<Frame> user(1);
    user.performAll(setUp);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), modelled, Qt::EditRole);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.addMapping(user.frame, 0);
    const QMetaProperty value = user.frame->metaObject()->userProperty();
    QObject::connect(user.frame, value.notifySignal(), &mapper,
                     mapper.metaObject()->method(mapper.metaObject()->indexOfSlot("submit()")));
    mapper.toFirst();
    user.heard();
    QCOMPARE(value.read(user.frame), modelled);
    user.play(step);
    QCOMPARE(model.data(model.index(0, 0), Qt::EditRole), stepped);
}

} // namespace

// What a row is if a form sets nothing.
void tst_Forms::defaults()
{
    const auto settingsOf = [](const QObject &row) {
        QString settings;
        for (const char *name :
             {"labelText", "decimals", "minimum", "maximum", "singleStep", "pageStep", "value"})
            settings += ' ' + row.property(name).toString();
        return settings.simplified();
    };
    QCOMPARE(settingsOf(SliderEditFrame()), QString("0 99 1 10 0"));
    QCOMPARE(settingsOf(SliderEditFrameDouble()), QString("2 0 99.99 1 10 0"));
}

void tst_Forms::mapper()
{
    compareMapping<SliderEditFrame>(36, "plus: 37", 37);
    compareMapping<SliderEditFrameDouble>(0.5, "plus: 0.51", 0.51);
    compareMapping<RGBEditFrame>(QColor(1, 2, 3), "g plus: (1,3,3)", QColor(1, 3, 3));
    compareMapping<RGBAllEditFrame>(QColor(1, 2, 3), "b plus: (1,2,4,50)", QColor(1, 2, 4));
    compareMapping<RGBOpacityEditFrame>(QColor(1, 2, 3, 255), "opacity enter 20: (1,2,3,20)",
                                        QColor(1, 2, 3, 51));
    compareMapping<RectEditFrame>(QRect(1, 2, 3, 4), "w plus: w(4) (1,2,4,4)", QRect(1, 2, 4, 4));
    compareMapping<LayoutEditFrame>(QRect(1, 2, 3, 4), "y plus: y(3) (1,3,3,4)", QRect(1, 3, 3, 4));
    compareMapping<CropEditFrame>(QRect(90, 2, 10, 4), "w plus: w(11) (90,2,11,4)",
                                  QRect(90, 2, 10, 4), "area 100 100");
    compareMapping<CropEditFrame>(QRect(0, 2, 10, 4), "w plus: crop(0,2,11,4) w(11) (0,2,11,4)",
                                  QRect(0, 2, 11, 4), "area 100 100");
    compareMapping<MaskEditFrame>(QVariant::fromValue(QMargins(3, 1, 4, 2)),
                                  "h plus: mask(1,2,3,5) h(5) (1,2,3,5)",
                                  QVariant::fromValue(QMargins(3, 1, 5, 2)), "area 100 100");
}

// A channel of a color is in proportion to the row's range.
void tst_Forms::colors()
{
    RGBOpacityEditFrame opacity;
    opacity.setRanges(-100, 923);
    opacity.setColor(QColor(255, 0, 51, 128));
    int r = 0, g = 0, b = 0, alpha = 0;
    opacity.value(r, g, b, alpha);
    QCOMPARE(QVector<int>({r, g, b, alpha}), QVector<int>({923, -100, 105, 50}));
    for (int value = -100; value <= 923; ++value) {
        opacity.setValue(RGBOpacityEditFrame::R, value);
        opacity.setColor(opacity.color());
        opacity.value(r, g, b, alpha);
        QCOMPARE(QVector<int>({r, g, b, alpha}), QVector<int>({value, -100, 105, 50}));
    }
    opacity.setRange(RGBOpacityEditFrame::R, 7, 7);
    opacity.setColor(QColor());
    QCOMPARE(opacity.color(), QColor(0, 0, 0));
}

#ifdef DESIGNER_PLUGIN
namespace {

// A loader to which no other folder can provide an editor.
struct Loader : QUiLoader
{
    Loader()
    {
        clearPluginPaths();
        addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
    }
};

QWidgetList editorsOf(const QWidget &form)
{
    return form.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

// Qt 5 can't compare flags.
QVariant valueOf(const QMetaProperty &property, const QWidget &editor)
{
    const QVariant value = property.read(&editor);
    return property.isEnumType() ? QVariant(value.toInt()) : value;
}

} // namespace
#endif

// A form is the same as uic compiles it and loaded at run time, with the plug-in for Designer. It
// sets each property that the library adds: in the first editor of a class to another value, in the
// second one to the value that it has without a form.
void tst_Forms::form()
{
#ifndef DESIGNER_PLUGIN
    QSKIP("Built without the plug-in for Designer");
#else
    Loader loader;
    QFile file(FORM);
    const std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));
    QWidget compiledForm;
    Ui::AllEditors().setupUi(&compiledForm);
    const auto loaded = editorsOf(*form), compiled = editorsOf(compiledForm);
    QCOMPARE(loaded.size(), compiled.size());
    for (int i = 0; i < loaded.size(); ++i) {
        const QMetaObject *const editor = compiled[i]->metaObject();
        QCOMPARE(loaded[i]->metaObject(), editor);
        const std::unique_ptr<QWidget> plain(loader.createWidget(editor->className()));
        const bool isUnchanged = loaded[i]->objectName().startsWith("unchanged");
        const QMetaObject *base = editor;
        while (QByteArray(base->className()).startsWith("Vantor"))
            base = base->superClass();
        for (int p = base->propertyCount(); p < editor->propertyCount(); ++p) {
            const QMetaProperty property = editor->property(p);
            if (!property.isStored())
                continue;
            const QVariant value = valueOf(property, *loaded[i]);
            QVERIFY2(value == valueOf(property, *compiled[i])
                         && (value == valueOf(property, *plain)) == isUnchanged,
                     qPrintable(loaded[i]->objectName() + ' ' + property.name()));
        }
    }
#endif
}

// What the widget box shows, and drops into a form.
void tst_Forms::widgetBox()
{
#ifndef DESIGNER_PLUGIN
    QSKIP("Built without the plug-in for Designer");
#else
    QPluginLoader plugin(DESIGNER_PLUGIN);
    const auto *const box =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
    QVERIFY2(box, qPrintable(plugin.errorString()));
    QWidget form;
    Ui::AllEditors().setupUi(&form);
    const auto entries = box->customWidgets();
    const auto editors = editorsOf(form);
    QCOMPARE(2 * entries.size(), editors.size());
    for (int i = 0; i < entries.size(); ++i) {
        const auto *entry = entries[i];
        QVERIFY(QFile::exists(HEADERS "/" + entry->includeFile()) && !entry->isContainer());
        QVERIFY(!entry->icon().availableSizes().isEmpty() && !entry->group().isEmpty()
                && !entry->toolTip().isEmpty());
        QBuffer dom;
        dom.setData(entry->domXml().toUtf8());
        Loader loader;
        const std::unique_ptr<QWidget> dropped(loader.load(&dom));
        QVERIFY2(dropped, qPrintable(loader.errorString()));
        QCOMPARE(QString(dropped->metaObject()->className()), entry->name());
        QCOMPARE(dropped->metaObject(), editors[i]->metaObject());
    }
#endif
}

QTEST_MAIN(tst_Forms)

#include "tst_forms.moc"
