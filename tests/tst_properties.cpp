#include "editorrow.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QMetaProperty>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QDataWidgetMapper>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

using Settings = QVector<QPair<const char *, QVariant>>;
Q_DECLARE_METATYPE(Settings)

namespace {

// In the order of the declarations, which is the order of a form.
QStringList read(const QWidget &editor)
{
    const QMetaObject *type = editor.metaObject();
    QStringList values;
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        values.append(QLatin1String(property.name()) + QLatin1Char('=')
                      + property.read(&editor).toString());
    }
    return values;
}

} // namespace

// What forms, mappers and style sheets do with the two slider editors.
class TestProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void userProperty();
    void silentWrites_data();
    void silentWrites();
    void mapper();
    void styleSheet();
};

void TestProperties::userProperty()
{
    for (const QMetaObject *type :
         {&SliderEditFrame::staticMetaObject, &SliderEditFrameDouble::staticMetaObject}) {
        const QMetaProperty user = type->userProperty();
        QCOMPARE(user.name(), "value");
        QCOMPARE(user.notifySignal().name(), QByteArray("valueChanged"));
    }
}

void TestProperties::silentWrites_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<QString>("integer");
    QTest::addColumn<QString>("floating");

    QTest::newRow("none") << Settings()
                          << "labelText= minimum=0 maximum=99 singleStep=1 "
                             "pageStep=10 value=0"
                          << "labelText= decimals=2 minimum=0 maximum=99.99 singleStep=1 "
                             "pageStep=10 value=0";
    QTest::newRow("each") << Settings {{"labelText", "Gain"}, {"decimals", 1},   {"minimum", -20},
                                       {"maximum", 40},       {"singleStep", 5}, {"pageStep", 7},
                                       {"value", 30}}
                          << "labelText=Gain minimum=-20 maximum=40 singleStep=5 pageStep=7 "
                             "value=30"
                          << "labelText=Gain decimals=1 minimum=-20 maximum=40 singleStep=5 "
                             "pageStep=7 value=30";
    QTest::newRow("an end past the other takes it along, and the value")
        << Settings {{"value", 50}, {"minimum", 200}}
        << "labelText= minimum=200 maximum=200 singleStep=1 pageStep=10 value=200"
        << "labelText= decimals=2 minimum=200 maximum=200 singleStep=1 pageStep=10 value=200";
    // The floating-point editor can't cross its lower end from above.
    QTest::newRow("the upper end too")
        << Settings {{"value", 50}, {"maximum", -3}}
        << "labelText= minimum=-3 maximum=-3 singleStep=1 pageStep=10 value=-3" << QString();
}

template <typename Frame> void compareWrites(const Settings &settings, const QString &expected)
{
    Frame frame;
    EventLog log;
    log.watch(&frame, &Frame::valueChanged, QStringLiteral("valueChanged"));
    for (const auto &setting : settings) {
        if (frame.metaObject()->indexOfProperty(setting.first) >= 0)
            QVERIFY(frame.setProperty(setting.first, setting.second));
    }
    QCOMPARE(read(frame).join(QLatin1Char(' ')), expected);
    const auto *slider = frame.template findChild<QSlider *>();
    // Both ends by the same scale, whichever it is.
    QCOMPARE(1.0 * slider->minimum() * frame.maximum(), 1.0 * slider->maximum() * frame.minimum());
    QCOMPARE(log.take(), QStringList());
}

void TestProperties::silentWrites()
{
    QFETCH(Settings, settings);
    QFETCH(QString, integer);
    QFETCH(QString, floating);
    compareWrites<SliderEditFrame>(settings, integer);
    if (!floating.isEmpty())
        compareWrites<SliderEditFrameDouble>(settings, floating);
}

// A row of the model reaches the editors without a signal, the user's click the
// model with one: what the mapper writes back is silent.
void TestProperties::mapper()
{
    QStandardItemModel model(2, 2);
    const auto set = [&model](int row, int whole, double fraction) {
        model.setData(model.index(row, 0), whole, Qt::EditRole);
        model.setData(model.index(row, 1), fraction, Qt::EditRole);
    };
    set(0, 12, 0.25);
    set(1, 36, 0.5);

    EventLog log;
    Page page(log);
    SliderEditFrame whole;
    SliderEditFrameDouble fraction;
    page.layout()->addWidget(&whole);
    page.layout()->addWidget(&fraction);
    fraction.setRange(0, 1);
    fraction.setSingleStep(0.01);
    log.watch(&whole, &SliderEditFrame::valueChanged, QStringLiteral("whole"));
    log.watch(&fraction, &SliderEditFrameDouble::valueChanged, QStringLiteral("fraction"));

    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.addMapping(&whole, 0);
    mapper.addMapping(&fraction, 1);
    connect(&whole, &SliderEditFrame::valueChanged, &mapper, &QDataWidgetMapper::submit);
    connect(&fraction, &SliderEditFrameDouble::valueChanged, &mapper, &QDataWidgetMapper::submit);
    mapper.toFirst();
    QVERIFY(User::show(page));
    mapper.toNext();
    QCOMPARE(whole.value(), 36);
    QCOMPARE(fraction.value(), 0.5);
    QCOMPARE(log.take(), QStringList());

    User::click(whole.findChild<QWidget *>(QStringLiteral("sliderEditPlus")));
    User::click(fraction.findChild<QWidget *>(QStringLiteral("sliderEditSubtract")));
    QCOMPARE(log.take(), QStringList({"whole(37)", "fraction(0.49)"}));
    QCOMPARE(model.data(model.index(1, 0)).toInt(), 37);
    QCOMPARE(model.data(model.index(1, 1)).toDouble(), 0.49);
    QCOMPARE(model.data(model.index(0, 0)).toInt(), 12);
}

void TestProperties::styleSheet()
{
    EventLog log;
    Page page(log);
    SliderEditFrame whole;
    SliderEditFrameDouble fraction;
    page.layout()->addWidget(&whole);
    page.layout()->addWidget(&fraction);
    page.setStyleSheet(QStringLiteral(
        "Vantor--Widgets--SliderEditFrame { qproperty-labelText: 'Gain'; qproperty-minimum: -20;"
        "  qproperty-maximum: 40; qproperty-singleStep: 5; qproperty-pageStep: 7;"
        "  qproperty-value: 30; }"
        "*[isSliderFrame='true'][decimals='2'] { qproperty-decimals: 1; qproperty-maximum: 2.5;"
        "  qproperty-value: 1.2; }"));
    QVERIFY(User::show(page));
    QCOMPARE(read(whole).join(QLatin1Char(' ')),
             QStringLiteral("labelText=Gain minimum=-20 maximum=40 singleStep=5 pageStep=7 "
                            "value=30"));
    QCOMPARE(read(fraction).join(QLatin1Char(' ')),
             QStringLiteral("labelText= decimals=1 minimum=0 maximum=2.5 singleStep=1 "
                            "pageStep=10 value=1.2"));
    QCOMPARE(log.take(), QStringList());
}

int main(int argc, char *argv[])
{
    return runTest<TestProperties>(argc, argv);
}

#include "tst_properties.moc"
