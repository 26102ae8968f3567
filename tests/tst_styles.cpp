#include "recteditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "testuser.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

using Rect = Vantor::Widgets::RectEditFrame;
using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

// The touch themes: readable, large enough for a finger, and states to be seen.
class tst_Styles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void contrast();
    void largeFont();
    void edges();
};

// Every test runs with each theme.
void tst_Styles::initTestCase_data()
{
    QDir::addSearchPath("vantorslider", STYLES_DIR);
    QTest::addColumn<QString>("sheet");
    for (const char *name : {"touch-dark", "touch-light"}) {
        QFile file(STYLES_DIR "/" + QString(name) + ".qss");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTest::newRow(name) << QString::fromUtf8(file.readAll());
    }
}

namespace {

// Relative luminance and contrast as the accessibility guidelines (WCAG 2) define them.
double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrastOf(const QColor &a, const QColor &b)
{
    const double ratio = (luminance(a) + 0.05) / (luminance(b) + 0.05);
    return qMax(ratio, 1 / ratio);
}

// The upper edge in the middle of a widget, from outside to the first row of its inside.
QImage upperEdge(QWidget *widget)
{
    const QPoint top = widget->mapTo(widget->window(), QPoint(widget->width() / 2, 0));
    return widget->window()->grab(QRect(top, QSize(1, 8))).toImage();
}

double contrastOfEdge(const QImage &edge)
{
    double most = 0;
    for (int y = 0; y < edge.height(); ++y)
        most = qMax(most, contrastOf(edge.pixelColor(0, y), edge.pixelColor(0, 7)));
    return most;
}

} // namespace

// Behind each colour of a text stands that of its background.
void tst_Styles::contrast()
{
    QFETCH_GLOBAL(QString, sheet);
    const QRegularExpression pattern("(?<![-\\w])((?:selection-)?)color: (#\\w+);"
                                     "\\s+(?:\\1background-color: (#\\w+);)?");
    auto matches = pattern.globalMatch(sheet);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QStringList texts = matches.next().capturedTexts();
        QVERIFY2(texts.size() == 4 && contrastOf(texts[2], texts[3]) >= 4.5, qPrintable(texts[0]));
    }
}

void tst_Styles::largeFont()
{
    QFETCH_GLOBAL(QString, sheet);
    Rect editor;
    QFont font = editor.font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    editor.setFont(font);
    editor.setStyleSheet(sheet);
    editor.setPositionLockEnable(true);
    editor.setSizeLockEnable(true, Rect::SizeScaleLock);
    for (const auto type : {Rect::X, Rect::Y, Rect::Width, Rect::Height}) {
        editor.setLabelText(type, "Height");
        editor.setRange(type, -1920, 1920);
        editor.setValue(type, -1920);
    }
    QVERIFY(User::show(editor));

    const QSize finger(48, 48);
    const auto buttons = editor.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 10);
    for (const QToolButton *button : buttons)
        QCOMPARE(button->size().expandedTo(finger), button->size());
    for (const QSlider *slider : editor.findChildren<QSlider *>()) {
        const QSize handle = User::handleRect(slider, slider->value()).size();
        QCOMPARE(handle.expandedTo(finger), handle);
    }
    for (const QLabel *label : editor.findChildren<QLabel *>("labelName"))
        QCOMPARE(label->size().expandedTo(label->sizeHint()), label->size());
    for (const QLineEdit *field : editor.findChildren<QLineEdit *>()) {
        const QRect text = field->fontMetrics().boundingRect(field->text());
        QCOMPARE(field->size().expandedTo(text.size()), field->size());
    }
}

// Neither a row that takes the focus nor a field whose entry was refused moves
// anything: only their edges change.
void tst_Styles::edges()
{
    QFETCH_GLOBAL(QString, sheet);
    QWidget window;
    QVBoxLayout layout(&window);
    layout.addWidget(new SliderEditFrame);
    layout.addWidget(new SliderEditFrameDouble);
    window.setStyleSheet(sheet);
    QVERIFY(User::show(window));
    for (auto *field : window.findChildren<QAbstractSpinBox *>()) {
        QWidget *row = field->parentWidget();
        window.setFocus();
        const QRect place = field->geometry();
        const QImage plain = upperEdge(field);
        QVERIFY(contrastOfEdge(upperEdge(row)) < 1.1);
        field->setFocus();
        const QImage focused = upperEdge(field);

        User::type("1/0\n");
        QCOMPARE(QApplication::focusWidget(), row);
        QVERIFY(contrastOfEdge(upperEdge(row)) >= 3);
        const QImage refused = upperEdge(field);
        QVERIFY(contrastOfEdge(refused) >= 3);
        QVERIFY(refused != plain && refused != focused && focused != plain);
        field->setFocus();
        QCOMPARE(upperEdge(field), refused);
        QCOMPARE(field->geometry(), place);
        User::type("1");
        QCOMPARE(upperEdge(field), focused);
        User::type("\n");
        QCOMPARE(upperEdge(field), plain);
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_Styles>(argc, argv);
}

#include "tst_styles.moc"
