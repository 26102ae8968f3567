#include "editoruser.h"
#include "ui_alleditors.h"

#include <QtWidgets/QDataWidgetMapper>

#ifdef DESIGNER_PLUGIN
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>
#endif

using namespace Vantor::Widgets;

// The editors with style sheets, QDataWidgetMapper, forms and Designer.
class tst_Forms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silentWrites();
    void mapper();
    void form();
    void designer();
};

namespace {

const QStringList editorsOfTheForm {"SliderEditFrame true Gain -20 200 5 10 120  dB options5",
                                    "SliderEditFrameDouble true Gamma 1 0.5 2.5 0.1 10 1.2",
                                    "RGBEditFrame true",
                                    "RGBAllEditFrame true",
                                    "RGBOpacityEditFrame true",
                                    "RectEditFrame false",
                                    "CropEditFrame true options10",
                                    "MaskEditFrame true",
                                    "LayoutEditFrame true",
                                    "SliderEditSpinBox true 0 4000 1 1080",
                                    "SliderEditDoubleSpinBox true 2 0 99.99 1 1.5  dB"};

// The editors of a form, each with those of its properties that a form may set.
QStringList describe(const QWidget &form)
{
    QStringList lines;
    for (const auto *editor : form.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        QStringList texts {QString(editor->metaObject()->className()).section(':', -1)};
        for (const char *name : {"enabled", "labelText", "decimals", "minimum", "maximum",
                                 "singleStep", "pageStep", "value", "suffix"})
            texts.append(editor->property(name).toString());
        if (const int options = editor->property("entryOptions").toInt())
            texts.append("options" + QString::number(options));
        texts.removeAll(QString());
        lines.append(texts.join(' '));
    }
    return lines;
}

// The mapper's writes emit nothing, at first and in reply to the user's click.
template <typename Frame> void compareMapping(const QString &modelled, const QString &stepped)
{
    UserOf<Frame> user(1);
    QStringListModel model({modelled});
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.addMapping(user.frame, 0);
    QObject::connect(user.frame, &Frame::valueChanged, &mapper, &QDataWidgetMapper::submit);
    mapper.toFirst();
    user.play("plus: " + stepped);
    QCOMPARE(model.stringList(), QStringList(stepped));
    QVERIFY(Frame::staticMetaObject.userProperty().notifySignal().name() == "valueChanged");
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
        QCOMPARE(describe(form).replaceInStrings(QRegularExpression(".* true "), ""), expected);
        QCOMPARE(log.take(), QStringList());
    };
    compareWrites("", {"0 99 1 10 0", "2 0 99.99 1 10 0"});
    compareWrites("value: 50; minimum: 200", {"200 200 1 10 200", "2 200 200 1 10 200"});
    compareWrites("value: 210; maximum: -3", {"-3 -3 1 10 -3", "2 -3 -3 1 10 -3"});
    compareWrites(
        "minimum: -20; maximum: 40; singleStep: 5; pageStep: 7; value: 30; labelText: Gain",
        {"Gain -20 40 5 7 30", "Gain 2 -20 40 5 7 30"});
}

// A mapper finds value and signal of each editor by USER and NOTIFY of the properties.
void tst_Forms::mapper()
{
    compareMapping<SliderEditFrame>("36", "37");
    compareMapping<SliderEditFrameDouble>("0.5", "0.51");
}

// As uic compiles it.
void tst_Forms::form()
{
    QWidget compiled;
    Ui::AllEditors().setupUi(&compiled);
    QCOMPARE(describe(compiled), editorsOfTheForm);
}

// The same form, loaded at run time with the plug-in for Designer.
void tst_Forms::designer()
{
#ifndef DESIGNER_PLUGIN
    QSKIP("Built without the plug-in for Designer");
#else
    QPluginLoader plugin(DESIGNER_PLUGIN);
    const auto *box = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
    QVERIFY2(box, qPrintable(plugin.errorString()));
    QUiLoader loader;
    // No other folder can provide an editor.
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
    QFile file(FORM);
    const std::unique_ptr<QWidget> read(loader.load(&file));
    QVERIFY2(read && read->findChild<SliderEditFrame *>(), qPrintable(loader.errorString()));
    QCOMPARE(describe(*read), editorsOfTheForm);

    // The widget that the widget box shows and drops into a form.
    const auto entries = box->customWidgets();
    QCOMPARE(entries.size(), editorsOfTheForm.size());
    for (int i = 0; i < entries.size(); ++i) {
        const auto *entry = entries[i];
        QVERIFY(QFile::exists(HEADERS "/" + entry->includeFile()) && !entry->isContainer());
        QVERIFY(!entry->icon().availableSizes().isEmpty() && !entry->group().isEmpty()
                && !entry->toolTip().isEmpty());
        QBuffer dom;
        dom.setData(entry->domXml().toUtf8());
        const std::unique_ptr<QWidget> dropped(loader.load(&dom));
        QVERIFY2(dropped, qPrintable(loader.errorString()));
        QCOMPARE(QString(dropped->metaObject()->className()), entry->name());
        QCOMPARE(entry->name().section(':', -1), editorsOfTheForm[i].section(' ', 0, 0));
    }
#endif
}

QTEST_MAIN(tst_Forms)

#include "tst_forms.moc"
