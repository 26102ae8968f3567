#include "edituser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

using Vantor::Widgets::RGBAllEditFrame;
using Vantor::Widgets::RGBEditFrame;
using Vantor::Widgets::RGBOpacityEditFrame;

// The three colour editors.
class tst_RGBEditFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form();
    void values();
    void reports();
    void blockKeepsItsRows();
    void labelMaxLength();
};

// The master row stands above the block, the opacity below it; style sheets
// select on the properties.
void tst_RGBEditFrames::form()
{
    const auto describe = [](const QWidget &editor) {
        QStringList names {editor.objectName()};
        const QMargins margins = editor.layout()->contentsMargins();
        QDebug(&names.last()).nospace()
            << ' ' << editor.width() << 'x' << editor.height() << ' ' << margins.left()
            << margins.top() << margins.right() << margins.bottom() << editor.layout()->spacing();
        for (int i = 0; i < editor.layout()->count() - 1; ++i)
            names.append(editor.layout()->itemAt(i)->widget()->objectName());
        for (const Row &row : rowsOf(editor))
            for (const QByteArray &name : row.slider->dynamicPropertyNames())
                names.append(name + '=' + row.slider->property(name).toString());
        names.append(editor.property("isSliderFrame").toString());
        return names.join(' ');
    };
    const QString properties =
        " isColorControl_Red=true isColorControl_Green=true isColorControl_Blue=true true";
    QCOMPARE(describe(RGBEditFrame()),
             "RGBEditFrame 537x94 00000 frameR frameG frameB" + properties);
    QCOMPARE(describe(RGBAllEditFrame()),
             "RGBAllEditFrame 537x94 00000 frameAll frameRGB" + properties);
    QCOMPARE(describe(RGBOpacityEditFrame()),
             "RGBOpacityEditFrame 400x75 00000 frameRGB frameOpacity" + properties);
}

namespace {

QString valuesOf(RGBEditFrame &frame)
{
    int r = -1, g = -1, b = -1;
    frame.value(r, g, b);
    return QStringLiteral("%1 %2 %3").arg(r).arg(g).arg(b);
}

template <typename Frame> QString valuesOf(Frame &frame)
{
    int r = -1, g = -1, b = -1, fourth = -1;
    frame.value(r, g, b, fourth);
    return QStringLiteral("%1 %2 %3 %4").arg(r).arg(g).arg(b).arg(fourth);
}

QString rangesOf(const QWidget &frame)
{
    QStringList ranges;
    for (const Row &row : rowsOf(frame))
        ranges.append(limits(row.frame->minimum(), row.frame->maximum()));
    return ranges.join(' ');
}

} // namespace

void tst_RGBEditFrames::values()
{
    RGBEditFrame rgb;
    QCOMPARE(rangesOf(rgb), QString("0..255 0..255 0..255"));
    QCOMPARE(valuesOf(rgb), QString("50 50 50"));
    rgb.setValue(RGBEditFrame::G, 120);
    rgb.setRange(RGBEditFrame::B, 0, 40);
    QCOMPARE(valuesOf(rgb), QString("50 120 40"));
    RGBAllEditFrame all;
    QCOMPARE(rangesOf(all), QString("0..255 0..255 0..255 0..255"));
    QCOMPARE(valuesOf(all), QString("50 50 50 50"));
    all.setValue(RGBAllEditFrame::ALL, 80);
    all.setValue(RGBAllEditFrame::B, 7);
    QCOMPARE(valuesOf(all), QString("50 50 7 80"));
    RGBOpacityEditFrame opacity;
    QCOMPARE(rangesOf(opacity), QString("0..255 0..255 0..255 0..100"));
    QCOMPARE(valuesOf(opacity), QString("50 50 50 100"));
    opacity.setValue(RGBOpacityEditFrame::R, 255);
    opacity.setValue(RGBOpacityEditFrame::Opacity, 150);
    QCOMPARE(valuesOf(opacity), QString("255 50 50 100"));
}

// Each row in its place of the signal.
void tst_RGBEditFrames::reports()
{
    const auto check = [](auto &&frame, const char *expected) {
        EventLog log;
        log.watch(&frame, &std::remove_reference_t<decltype(frame)>::valueChanged, QString());
        QVERIFY(User::show(frame));
        log.take();
        for (const Row &row : rowsOf(frame))
            User::click(row.minus);
        QCOMPARE(log.take().join(' '), QString(expected));
    };
    check(RGBEditFrame(), "(49, 50, 50) (49, 49, 50) (49, 49, 49)");
    RGBAllEditFrame all;
    all.setValue(RGBAllEditFrame::ALL, 80);
    check(all, "(49, 50, 50, 80) (49, 49, 50, 80) (49, 49, 49, 80) (49, 49, 49, 79)");
    RGBOpacityEditFrame opacity;
    opacity.setValue(RGBOpacityEditFrame::Opacity, 80);
    check(opacity, "(49, 50, 50, 80) (49, 49, 50, 80) (49, 49, 49, 80) (49, 49, 49, 79)");
}

// A block that is hidden as a whole leaves its rows as they are.
void tst_RGBEditFrames::blockKeepsItsRows()
{
    const auto check = [](auto &&frame) {
        frame.setEditerVisible(10);
        frame.setEditerVisible(16);
        const auto rows = rowsOf(frame);
        QVERIFY(!rows[2].frame->isHidden() && rows[4].frame->isHidden());
    };
    check(RGBAllEditFrame());
    check(RGBOpacityEditFrame());
}

// Only the red row's font measures, and the master's own.
void tst_RGBEditFrames::labelMaxLength()
{
    using Frame = RGBAllEditFrame;
    Frame frame;
    auto *const block = frame.findChild<RGBEditFrame *>();
    const auto rows = rowsOf(frame);
    QCOMPARE(frame.labelMaxLength(), 0);
    rows[Frame::R].frame->setFont(QFont(frame.font().family(), 20));
    rows[Frame::ALL].frame->setFont(QFont(frame.font().family(), 15));
    rows[Frame::B].frame->setFont(QFont(frame.font().family(), 40));
    const auto widthOf = [&rows](Frame::Type type, const QString &text) {
        const QFontMetrics metrics = rows[type].frame->fontMetrics();
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
        return metrics.horizontalAdvance(text);
#else
        return metrics.width(text);
#endif
    };
    frame.setLabelText(Frame::ALL, "All");
    frame.setLabelText(Frame::B, "i");
    QCOMPARE(frame.labelMaxLength(), widthOf(Frame::ALL, "All"));
    QString text = "WWWW";
    for (const auto type : {Frame::R, Frame::G, Frame::B}) {
        frame.setLabelText(type, text.append("W"));
        QCOMPARE(block->labelMaxLength(), widthOf(Frame::R, text));
        QCOMPARE(frame.labelMaxLength(), widthOf(Frame::R, text));
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_RGBEditFrames>(argc, argv);
}

#include "tst_rgbeditframes.moc"
