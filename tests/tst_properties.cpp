#include "editorrow.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QMetaProperty>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QDataWidgetMapper>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

// What forms, style sheets and mappers do with the two slider editors.
class tst_Properties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silentWrites_data();
    void silentWrites();
    void mapper();
};

void tst_Properties::silentWrites_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("integer");
    QTest::addColumn<QString>("floating");
    const auto row = [](const char *settings, const char *integer, const char *floating) {
        QTest::newRow(settings) << settings << integer << floating;
    };
    row("", " 0 99 1 10 0", " 2 0 99.99 1 10 0");
    row("labelText=Gain decimals=1 minimum=-20 maximum=40 singleStep=5 pageStep=7 value=30",
        "Gain -20 40 5 7 30", "Gain 1 -20 40 5 7 30");
    row("value=50 minimum=200", " 200 200 1 10 200", " 2 200 200 1 10 200");
    // The floating-point editor can't cross its lower end from above.
    row("value=50 maximum=-3", " -3 -3 1 10 -3", nullptr);
}

namespace {

// As a style sheet writes them, which goes the way of a form.
template <typename Frame> void compareWrites(const QString &settings, const QString &expected)
{
    EventLog log;
    Frame frame;
    log.watch(&frame, &Frame::valueChanged, "valueChanged");
    QString sheet;
    for (const QString &setting : settings.split(' ')) {
        const QString name = setting.section('=', 0, 0);
        if (frame.metaObject()->indexOfProperty(name.toLatin1()) >= 0)
            sheet += "qproperty-" + name + ": " + setting.section('=', 1) + "; ";
    }
    frame.setStyleSheet("*[isSliderFrame='true'] { " + sheet + '}');
    frame.ensurePolished();

    const QMetaObject &type = Frame::staticMetaObject;
    QStringList values;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        values.append(type.property(i).read(&frame).toString());
    QCOMPARE(values.join(' '), expected);
    // Both ends by the same scale, whichever it is.
    const auto *slider = frame.template findChild<QSlider *>();
    QCOMPARE(1.0 * slider->minimum() * frame.maximum(), 1.0 * slider->maximum() * frame.minimum());
    QCOMPARE(log.take(), QStringList());
}

} // namespace

void tst_Properties::silentWrites()
{
    QFETCH(QString, settings);
    QFETCH(QString, integer);
    QFETCH(QString, floating);
    compareWrites<SliderEditFrame>(settings, integer);
    if (!floating.isNull())
        compareWrites<SliderEditFrameDouble>(settings, floating);
}

// A row of the model reaches the editors without a signal, the user's click the
// model with one: what the mapper writes back is silent.
void tst_Properties::mapper()
{
    QStandardItemModel model(1, 2);
    model.setData(model.index(0, 0), 36, Qt::EditRole);
    model.setData(model.index(0, 1), 0.5, Qt::EditRole);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);

    EventLog log;
    Page page(log);
    const auto map = [&](auto *frame, int column, const char *name) {
        using Frame = std::remove_pointer_t<decltype(frame)>;
        page.layout()->addWidget(frame);
        log.watch(frame, &Frame::valueChanged, name);
        mapper.addMapping(frame, column);
        connect(frame, &Frame::valueChanged, &mapper, &QDataWidgetMapper::submit);
        return EditorParts<Frame>(frame);
    };
    const auto whole = map(new SliderEditFrame, 0, "whole");
    const auto fraction = map(new SliderEditFrameDouble, 1, "fraction");
    for (const QWidget *frame :
         {static_cast<QWidget *>(whole.frame), static_cast<QWidget *>(fraction.frame)})
        QCOMPARE(frame->metaObject()->userProperty().notifySignal().name(),
                 QByteArray("valueChanged"));
    mapper.toFirst();
    QVERIFY(User::show(page));
    QCOMPARE(log.take(), QStringList());
    User::click(whole.plus);
    User::click(fraction.plus);
    QCOMPARE(log.take(), QStringList({"whole(37)", "fraction(1.5)"}));
    QCOMPARE(model.data(model.index(0, 0)).toInt(), 37);
    QCOMPARE(model.data(model.index(0, 1)).toDouble(), 1.5);
}

int main(int argc, char *argv[])
{
    return runTest<tst_Properties>(argc, argv);
}

#include "tst_properties.moc"
