#include "editoruser.h"
#include "recteditframe.h"
#include "rgbeditframe.h"

#include <QtCore/QDir>

#include <cmath>

using namespace Vantor::Widgets;

// The touch themes: readable, large enough for a finger, and states to be seen.
class tst_Styles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void contrast();
    void glyphs();
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
double contrastOf(const QColor &a, const QColor &b)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [linear](const QColor &color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
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

// Buttons and handles look otherwise than without the theme's pictures.
void tst_Styles::glyphs()
{
    QFETCH_GLOBAL(QString, sheet);
    for (QWidget *editor : QList<QWidget *> {new RectEditFrame, new RGBEditFrame}) {
        EditorUser user(editor);
        const QList<QWidget *> parts = editor->findChildren<QWidget *>(
            QRegularExpression("^(slider|sliderEditSubtract|sliderEditPlus|toolButton.*)$"));
        const auto pictures = [&user, &parts](const QString &sheet) {
            user.page.setStyleSheet(sheet);
            QList<QImage> images;
            for (QWidget *part : parts)
                images.append(part->grab().toImage());
            return images;
        };
        const QList<QImage> themed = pictures(sheet);
        const QList<QImage> blank =
            pictures(QString(sheet).remove(QRegularExpression("image: [^;]+;")));
        for (int i = 0; i < parts.size(); ++i)
            QVERIFY2(themed[i] != blank[i], qPrintable(parts[i]->objectName()));
    }
}

void tst_Styles::largeFont()
{
    QFETCH_GLOBAL(QString, sheet);
    EditorUser user(new RectEditFrame); // with its locks
    QFont font = user.page.font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    user.page.setFont(font);
    user.page.setStyleSheet(sheet);
    for (const EditorRow &row : user.rows) {
        row.whole->setLabelText("Height");
        row.whole->setRange(-1920, 1920);
        row.whole->setValue(-1920);
    }
    user.page.adjustSize();

    const QSize finger(48, 48);
    const auto buttons = user.page.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 10);
    for (const QToolButton *button : buttons)
        QCOMPARE(button->size().expandedTo(finger), button->size());
    for (const EditorRow &row : user.rows) {
        const QSize handle = User::handleRect(row.slider, row.slider->value()).size();
        QCOMPARE(handle.expandedTo(finger), handle);
        QCOMPARE(row.label->size().expandedTo(row.label->sizeHint()), row.label->size());
        const QRect text = row.field->fontMetrics().boundingRect(row.field->text());
        QCOMPARE(row.field->size().expandedTo(text.size()), row.field->size());
    }
}

// Neither a row that takes the focus nor a field whose entry was refused moves
// anything: only their edges change.
void tst_Styles::edges()
{
    QFETCH_GLOBAL(QString, sheet);
    for (QWidget *row : QList<QWidget *> {new SliderEditFrame, new SliderEditFrameDouble}) {
        EditorUser user(row);
        user.page.setStyleSheet(sheet);
        QWidget *const field = user.rows[0].spinBox;
        const auto edgeAfter = [&user, field](const QString &action) {
            user.perform(action);
            return upperEdge(field);
        };
        const QImage plain = edgeAfter("elsewhere");
        const QRect place = field->geometry();
        QVERIFY(contrastOfEdge(upperEdge(row)) < 1.1);
        const QImage focused = edgeAfter("focus"), refused = edgeAfter("keys (\n");
        QVERIFY(contrastOfEdge(upperEdge(row)) >= 3 && contrastOfEdge(refused) >= 3);
        QVERIFY(refused != plain && refused != focused && focused != plain);
        QCOMPARE(edgeAfter("focus"), refused);
        QCOMPARE(field->geometry(), place);
        QCOMPARE(edgeAfter("keys 1"), focused);
        QCOMPARE(edgeAfter("keys \n"), plain);
    }
}

QTEST_MAIN(tst_Styles)

#include "tst_styles.moc"
