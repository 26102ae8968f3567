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

// The editors with style sheets, QDataWidgetMapper, forms and Designer.
class tst_Forms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silentWrites();
    void mapper();
    void colors();
    void designer();
    void properties_data();
    void properties();
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

// The host can't choose the order of a form's properties: no write emits or is lost.
void tst_Forms::silentWrites()
{
    EventLog log;
    QWidget form;
    SliderEditFrame intEditor(&form);
    SliderEditFrameDouble doubleEditor(&form);
    log.watch(&intEditor, &SliderEditFrame::valueChanged, "int");
    log.watch(&doubleEditor, &SliderEditFrameDouble::valueChanged, "double");
    form.show();
    // By a style sheet, in the same way as by a form.
    const auto compareWrites = [&](QString settings, const QStringList &expected) {
        settings.replace(QRegularExpression("(\\w+):"), "qproperty-\\1:");
        form.setStyleSheet("*[isSliderFrame='true'] { " + settings + " }");
        QStringList found {"", ""};
        for (const char *name :
             {"labelText", "decimals", "minimum", "maximum", "singleStep", "pageStep", "value"}) {
            found[0] += ' ' + intEditor.property(name).toString();
            found[1] += ' ' + doubleEditor.property(name).toString();
        }
        QCOMPARE(QStringList({found[0].simplified(), found[1].simplified()}), expected);
        QCOMPARE(log.take(), QStringList());
    };
    compareWrites("", {"0 99 1 10 0", "2 0 99.99 1 10 0"});
    compareWrites("value: 50; minimum: 200", {"200 200 1 10 200", "2 200 200 1 10 200"});
    compareWrites("value: 210; maximum: -3", {"-3 -3 1 10 -3", "2 -3 -3 1 10 -3"});
    compareWrites(
        "minimum: -20; maximum: 40; singleStep: 5; pageStep: 7; value: 30; labelText: Gain",
        {"Gain -20 40 5 7 30", "Gain 2 -20 40 5 7 30"});
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

// The widget box, and a loader to which no other folder can provide an editor.
struct Designer
{
    Designer()
    {
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
    }
    QWidget *load(const QString &form)
    {
        QBuffer dom;
        dom.setData(form.toUtf8());
        return loader.load(&dom);
    }

    QPluginLoader plugin {DESIGNER_PLUGIN};
    QDesignerCustomWidgetCollectionInterface *const box =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
    QUiLoader loader;
};

QList<QWidget *> editorsOf(const QWidget &form)
{
    return form.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

// The properties that the library adds, in the order in which a form sets them.
QVector<QMetaProperty> ownProperties(const QMetaObject *editor)
{
    const QMetaObject *base = editor;
    while (QByteArray(base->className()).startsWith("Vantor"))
        base = base->superClass();
    QVector<QMetaProperty> properties;
    for (int i = base->propertyCount(); i < editor->propertyCount(); ++i)
        properties.append(editor->property(i));
    return properties;
}

// Qt 5 can't compare flags.
QVariant valueOf(const QMetaProperty &property, const QWidget &editor)
{
    const QVariant value = property.read(&editor);
    return property.isEnumType() ? QVariant(value.toInt()) : value;
}

// Another value of the property that is valid, a different one for each number.
QVariant otherValue(const QMetaProperty &property, const QVariant &value, int number)
{
    const QMetaEnum keys = property.enumerator();
    if (property.isEnumType())
        return keys.value(keys.keyCount() - 1);
    switch (value.userType()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
    case QMetaType::Double:
        return value.toDouble() + number;
    case QMetaType::QString:
        return QString("<b>%1 ").arg(number);
    case QMetaType::QColor:
    case QMetaType::QBrush:
        return QColor(number, 2, 3, 51);
    case QMetaType::QRect:
        return QRect(number, 2, 30, 40);
    }
    return QVariant::fromValue(QMargins(number, 2, 3, 4));
}

// As Designer writes it; forms have no margins.
QString domOf(const QMetaProperty &property, const QVariant &value)
{
    const auto dom = [](const QString &element, const QString &text) {
        return '<' + element + '>' + text + "</" + element.section(' ', 0, 0) + '>';
    };
    const auto numbers = [&](const QString &names, const QVector<int> &values) {
        QString text;
        for (int i = 0; i < values.size(); ++i)
            text += dom(names.section(' ', i, i), QString::number(values[i]));
        return text;
    };
    const auto color = [&](const QColor &color) {
        return dom("color alpha='" + QString::number(color.alpha()) + '\'',
                   numbers("red green blue", {color.red(), color.green(), color.blue()}));
    };
    if (property.isEnumType())
        return dom(property.isFlagType() ? "set" : "enum",
                   property.enumerator().valueToKeys(value.toInt()));
    const QRect rect = value.toRect();
    const QBrush brush = value.value<QBrush>();
    switch (value.userType()) {
    case QMetaType::QColor:
        return color(value.value<QColor>());
    case QMetaType::QBrush:
        return dom(brush == QBrush() ? "brush brushstyle='NoBrush'"
                                     : "brush brushstyle='SolidPattern'",
                   color(brush.color()));
    case QMetaType::QRect:
        return dom("rect",
                   numbers("x y width height", {rect.x(), rect.y(), rect.width(), rect.height()}));
    }
    const QMap<int, QString> names {{QMetaType::Bool, "bool"},
                                    {QMetaType::Int, "number"},
                                    {QMetaType::Double, "double"},
                                    {QMetaType::QString, "string"}};
    const QString name = names.value(value.userType());
    return name.isEmpty() ? QString() : dom(name, value.toString().toHtmlEscaped());
}

} // namespace
#endif

// A form is the same as uic compiles it and loaded at run time, with the plug-in for Designer.
void tst_Forms::designer()
{
#ifndef DESIGNER_PLUGIN
    QSKIP("Built without the plug-in for Designer");
#else
    Designer designer;
    QVERIFY2(designer.box, qPrintable(designer.plugin.errorString()));
    QFile file(FORM);
    const std::unique_ptr<QWidget> read(designer.loader.load(&file));
    QVERIFY2(read, qPrintable(designer.loader.errorString()));
    QWidget compiled;
    Ui::AllEditors().setupUi(&compiled);
    const auto loaded = editorsOf(*read), expected = editorsOf(compiled);
    QCOMPARE(loaded.size(), expected.size());
    for (int i = 0; i < loaded.size(); ++i) {
        const auto properties = ownProperties(expected[i]->metaObject());
        QVERIFY(loaded[i]->metaObject() == expected[i]->metaObject() && !properties.isEmpty());
        for (const QMetaProperty &property : properties)
            QVERIFY2(valueOf(property, *loaded[i]) == valueOf(property, *expected[i]),
                     property.name());
    }

    // The widget that the widget box shows and drops into a form.
    const auto entries = designer.box->customWidgets();
    QCOMPARE(entries.size(), loaded.size());
    for (int i = 0; i < entries.size(); ++i) {
        const auto *entry = entries[i];
        QVERIFY(QFile::exists(HEADERS "/" + entry->includeFile()) && !entry->isContainer());
        QVERIFY(!entry->icon().availableSizes().isEmpty() && !entry->group().isEmpty()
                && !entry->toolTip().isEmpty());
        const std::unique_ptr<QWidget> dropped(designer.load(entry->domXml()));
        QVERIFY2(dropped, qPrintable(designer.loader.errorString()));
        QCOMPARE(QString(dropped->metaObject()->className()), entry->name());
        QCOMPARE(dropped->metaObject(), loaded[i]->metaObject());
    }
#endif
}

void tst_Forms::properties_data()
{
    QTest::addColumn<QString>("editor");
    QTest::addColumn<bool>("isChanged");
#ifdef DESIGNER_PLUGIN
    for (const auto *entry : Designer().box->customWidgets()) {
        for (const bool isChanged : {false, true})
            QTest::addRow("%s%s", qPrintable(entry->name()), isChanged ? ", changed" : "")
                << entry->name() << isChanged;
    }
#endif
}

// A form stores all properties, each with its default value or with another one.
void tst_Forms::properties()
{
#ifndef DESIGNER_PLUGIN
    QSKIP("Built without the plug-in for Designer");
#else
    QFETCH(QString, editor);
    QFETCH(bool, isChanged);
    Designer designer;
    const std::unique_ptr<QWidget> saved(designer.loader.createWidget(editor));
    const auto properties = ownProperties(saved->metaObject());
    QVariantList before;
    for (const QMetaProperty &property : properties)
        before.append(valueOf(property, *saved));
    for (int i = 0; isChanged && i < properties.size(); ++i) {
        properties[i].write(saved.get(), otherValue(properties[i], before[i], i + 1));
        QVERIFY2(valueOf(properties[i], *saved) != before[i], properties[i].name());
    }
    QString form;
    for (const QMetaProperty &property : properties) {
        const QString dom = domOf(property, valueOf(property, *saved));
        if (!dom.isEmpty())
            form += QString("<property name='%1'>%2</property>").arg(property.name(), dom);
    }
    form = QString("<ui version='4.0'><widget class='%1'>%2</widget></ui>").arg(editor, form);
    const std::unique_ptr<QWidget> loaded(designer.load(form));
    QVERIFY2(loaded, qPrintable(designer.loader.errorString()));
    for (const QMetaProperty &property : properties)
        QVERIFY2(valueOf(property, *loaded) == valueOf(property, *saved), property.name());
#endif
}

QTEST_MAIN(tst_Forms)

#include "tst_forms.moc"
