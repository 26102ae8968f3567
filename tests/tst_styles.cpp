#include "recteditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "testuser.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

using Vantor::Widgets::RectEditFrame;
using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

// The touch themes: readable, large enough for a finger, and states to be seen.
class tst_Styles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::addSearchPath("vantorslider", STYLES_DIR); }
    void contrast_data() { sheets(); }
    void contrast();
    void largeFont_data() { sheets(); }
    void largeFont();
    void edges_data() { sheets(); }
    void edges();

private:
    static void sheets();
    static QString sheet();
};

void tst_Styles::sheets()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("dark") << "touch-dark";
    QTest::newRow("light") << "touch-light";
}

QString tst_Styles::sheet()
{
    QFETCH(QString, name);
    QFile file("vantorslider:" + name + ".qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Relative luminance and contrast as the accessibility guidelines (WCAG 2) define them.
static double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

static double contrastOf(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

// A text's colour and its background stand in one rule.
void tst_Styles::contrast()
{
    const QString text = sheet();
    const QRegularExpression rule("\\{[^}]*\\}");
    int pairs = 0;
    for (auto rules = rule.globalMatch(text); rules.hasNext();) {
        const QString body = rules.next().captured();
        for (const QString prefix : {"", "selection-"}) {
            const auto color = [&](const QString &property) {
                const QRegularExpression one("[\\s;{]" + prefix + property + ": (#[0-9a-f]{6});");
                return QColor(one.match(body).captured(1));
            };
            const QColor ink = color("color");
            const QColor paper = color("background-color");
            if (ink.isValid() && paper.isValid()) {
                ++pairs;
                QVERIFY2(contrastOf(ink, paper) >= 4.5, qPrintable(body));
            }
        }
    }
    QVERIFY(pairs >= 7);
}

void tst_Styles::largeFont()
{
    RectEditFrame editor;
    QFont font = editor.font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    editor.setFont(font);
    editor.setStyleSheet(sheet());
    editor.setPositionLockEnable(true);
    editor.setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    for (const auto type :
         {RectEditFrame::X, RectEditFrame::Y, RectEditFrame::Width, RectEditFrame::Height}) {
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
    for (QSlider *slider : editor.findChildren<QSlider *>()) {
        const QRect handle = User::handleRect(slider, slider->value());
        QCOMPARE(handle.size().expandedTo(finger), handle.size());
    }
    for (const QLabel *label : editor.findChildren<QLabel *>("labelName"))
        QCOMPARE(label->size().expandedTo(label->sizeHint()), label->size());
    for (const QLineEdit *field : editor.findChildren<QLineEdit *>()) {
        const QRect text = field->fontMetrics().boundingRect(field->text());
        QCOMPARE(field->size().expandedTo(text.size()), field->size());
    }
}

namespace {

// The upper edge in the middle of a widget, from outside to the first row of its inside.
QVector<QColor> upperEdge(QWidget *widget)
{
    const QImage picture = widget->window()->grab().toImage();
    const QPoint top = widget->mapTo(widget->window(), QPoint(widget->width() / 2, 0));
    QVector<QColor> edge;
    for (int y = 0; y < 8; ++y)
        edge.append(picture.pixelColor(top + QPoint(0, y)));
    return edge;
}

double contrastOfEdge(const QVector<QColor> &edge)
{
    double most = 0;
    for (const QColor &color : edge)
        most = qMax(most, contrastOf(color, edge.last()));
    return most;
}

void setRefused(QWidget *field, bool on)
{
    field->setProperty("isEntryRefused", on);
    field->style()->unpolish(field);
    field->style()->polish(field);
}

} // namespace

// Neither a row that takes the focus nor a field whose entry was refused moves
// anything: only their edges change.
void tst_Styles::edges()
{
    QWidget window;
    QVBoxLayout layout(&window);
    SliderEditFrame whole;
    SliderEditFrameDouble decimal;
    layout.addWidget(&whole);
    layout.addWidget(&decimal);
    window.setStyleSheet(sheet());
    QVERIFY(User::show(window));
    for (QWidget *row : {static_cast<QWidget *>(&whole), static_cast<QWidget *>(&decimal)}) {
        auto *field = row->findChild<QAbstractSpinBox *>();
        window.setFocus();
        const auto plainRow = upperEdge(row);
        const auto plainField = upperEdge(field);
        const QRect place = field->geometry();
        QVERIFY(contrastOfEdge(plainRow) < 1.1);

        field->setFocus();
        const auto focusedField = upperEdge(field);
        User::type("1\n");
        QCOMPARE(QApplication::focusWidget(), row);
        QVERIFY(contrastOfEdge(upperEdge(row)) >= 3);
        QCOMPARE(upperEdge(field), plainField);

        setRefused(field, true);
        const auto refusedField = upperEdge(field);
        QVERIFY(contrastOfEdge(refusedField) >= 3);
        QVERIFY(refusedField != plainField && refusedField != focusedField);
        field->setFocus();
        QCOMPARE(upperEdge(field), refusedField);
        QCOMPARE(field->geometry(), place);
        setRefused(field, false);
        QCOMPARE(upperEdge(field), focusedField);
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_Styles>(argc, argv);
}

#include "tst_styles.moc"
