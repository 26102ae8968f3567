#include "alignfields.h"
#include "alignlabels.h"
#include "editoruser.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleFactory>

#include <algorithm>
#include <cmath>

using namespace Vantor::Widgets;

// The style sheets: readable, large enough for a finger or a pointer, visible states,
// and the same result in any order of calls.
class tst_Styles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void cleanup();
    void contrast();
    void glyphs();
    void disabled();
    void sizes_data();
    void sizes();
    void edges();
    void newPalette();
    void fields();
    void lockColumn();
    void pitch();
    void order();
    void surroundings();

private:
    const QFont m_font = QApplication::font();
    const QPalette m_palette = QApplication::palette();
};

namespace {

QPalette paletteOf(const QColor &window, const QColor &base, const QColor &text,
                   const QColor &highlight)
{
    QPalette palette(text, window, window.lighter(), window.darker(), Qt::gray, text, base);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

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

// A part of the upper edge, from outside to the first inner row of pixels. It is longer
// than a dash and its gap.
QImage upperEdge(QWidget *widget)
{
    const QPoint top = widget->mapTo(widget->window(), QPoint(6, 0));
    return widget->window()->grab(QRect(top, QSize(6, 4))).toImage();
}

// The greatest between a pixel and the inner one below it.
double contrastOfEdge(const QImage &edge)
{
    double most = 0;
    for (int x = 0; x < edge.width(); ++x) {
        for (int y = 0; y < edge.height(); ++y)
            most = qMax(most, contrastOf(edge.pixelColor(x, y), edge.pixelColor(x, 3)));
    }
    return most;
}

// That of the lightest and the darkest pixel.
double contrastWithin(const QImage &image)
{
    const auto *const pixels = reinterpret_cast<const QRgb *>(image.constBits());
    const auto range = std::minmax_element(pixels, pixels + image.width() * image.height(),
                                           [](QRgb a, QRgb b) { return qGray(a) < qGray(b); });
    return contrastOf(*range.first, *range.second);
}

// "#0b5cad" or "palette(highlighted-text)"
QColor colorOf(const QString &text)
{
    QLabel label;
    label.setStyleSheet("color: " + text);
    label.ensurePolished();
    return label.palette().color(QPalette::WindowText);
}

// Compares the parts of editors that the user handles, before and after a change.
void compareParts(const QString &names, const std::function<void(QWidget &page)> &change,
                  const std::function<bool(const QImage &before, const QImage &after)> &isGood)
{
    QFETCH_GLOBAL(QString, sheet);
    for (QWidget *editor : QList<QWidget *> {new RectEditFrame, new RGBEditFrame}) {
        EditorUser user(editor);
        user.page.setStyleSheet(sheet);
        if (qobject_cast<RectEditFrame *>(editor))
            user.perform("positionLock on");
        const auto parts = editor->findChildren<QWidget *>(QRegularExpression(names));
        QList<QImage> before;
        for (QWidget *part : parts)
            before.append(pictureOf(part));
        change(user.page);
        for (QWidget *part : parts)
            QVERIFY2(isGood(before.takeFirst(), pictureOf(part)), qPrintable(part->objectName()));
    }
}

} // namespace

// Every test runs with each sheet, and with that for the desktop in several palettes.
void tst_Styles::initTestCase_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QPalette>("palette");
    for (const char *theme : {"touch-dark", "touch-light", "desktop"})
        QTest::newRow(theme) << themeSheet(theme) << QPalette();
    QTest::newRow("desktop, dark")
        << themeSheet("desktop") << paletteOf("#353535", "#232323", Qt::white, "#2a82da");
    QTest::newRow("desktop, dark highlight")
        << themeSheet("desktop") << paletteOf("#353535", "#2d2d2d", "#eeeeec", "#15539e");
    QTest::newRow("desktop, high contrast")
        << themeSheet("desktop") << paletteOf(Qt::black, Qt::black, Qt::white, Qt::cyan);
}

void tst_Styles::cleanup()
{
    QApplication::setFont(m_font);
    QApplication::setPalette(m_palette);
    QApplication::setStyle("Fusion");
    qApp->setStyleSheet(QString());
}

// Each colour of a text is followed by that of its background.
void tst_Styles::contrast()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(QPalette, palette);
    QApplication::setPalette(palette);
    const QString color = "(#\\w+|palette\\([\\w-]+\\));";
    const QRegularExpression pattern("(?<![-\\w])((?:selection-)?)color: " + color
                                     + "\\s+(?:\\1background-color: " + color + ")?");
    auto matches = pattern.globalMatch(sheet);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QStringList texts = matches.next().capturedTexts();
        QVERIFY2(texts.size() == 4 && contrastOf(colorOf(texts[2]), colorOf(texts[3])) >= 4.5,
                 qPrintable(texts[0]));
    }
}

// Buttons and handles differ from those without the theme's pictures.
void tst_Styles::glyphs()
{
    QFETCH_GLOBAL(QString, sheet);
    if (!sheet.contains("image: "))
        QSKIP("The sheet has no pictures.");
    const QString blank = QString(sheet).remove(QRegularExpression("image: [^;]+;"));
    compareParts(
        "^(slider|sliderEdit.*|toolButton.*)$", [&](QWidget &page) { page.setStyleSheet(blank); },
        std::not_equal_to<QImage>());
}

// Each part is paler than while it is enabled.
void tst_Styles::disabled()
{
    compareParts(
        "^(slider|spinBox|sliderEdit.*|toolButton.*)$",
        [](QWidget &page) { page.setEnabled(false); },
        [](const QImage &enabled, const QImage &disabled) {
            return contrastWithin(disabled) < 0.8 * contrastWithin(enabled);
        });
}

void tst_Styles::sizes_data()
{
    QTest::addColumn<double>("points");
    QTest::newRow("small font") << 9.0;
    QTest::newRow("large font") << 1.5 * m_font.pointSizeF();
}

// Targets are large enough, and labels and fields have room for their texts.
void tst_Styles::sizes()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH(const double, points);
    const bool isTouch = !sheet.contains("palette(");
    QFont font = m_font;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    EditorUser user(new RectEditFrame); // with its locks
    user.page.setStyleSheet(sheet);
    for (const EditorRow &row : user.rows) {
        row.whole->setLabelText("Height");
        row.whole->setRange(0, 88888);
        row.whole->setValue(88888);
    }
    settle();
    user.page.adjustSize();

    const QSize target = isTouch ? QSize(48, 48) : QSize(15, 15);
    const auto buttons = user.page.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 10);
    for (const QToolButton *button : buttons)
        QCOMPARE(button->size().expandedTo(target), button->size());
    for (const EditorRow &row : user.rows) {
        QVERIFY(row.slider->width() >= (isTouch ? 120 : 100));
        const QSize handle = User::handleRect(row.slider, row.slider->value()).size();
        QCOMPARE(handle.expandedTo(target), handle);
        QCOMPARE(row.label->size().expandedTo(row.label->sizeHint()), row.label->size());
        const QRect text = row.field->fontMetrics().boundingRect(row.field->text());
        QCOMPARE(row.field->size().expandedTo(text.size()), row.field->size());
    }
    alignLabels(&user.page);
    settle();
    const QLabel *const label = user.rows[0].label;
    const int inside = label->contentsRect().width();
    const int text = label->fontMetrics().boundingRect(label->text()).width();
    QVERIFY(inside >= text && inside <= text + label->fontMetrics().height());
}

// A row that receives the focus and a field that refuses an entry move nothing: only
// their edges change.
void tst_Styles::edges()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(QPalette, palette);
    for (QWidget *row : QList<QWidget *> {new SliderEditFrame, new SliderEditFrameDouble}) {
        QApplication::setPalette(palette);
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
        user.perform("focus");
        // The cursor is then away from the edge.
        const QImage focused = edgeAfter("keys 1"), refused = edgeAfter("keys (\n");
        QVERIFY(contrastOfEdge(upperEdge(row)) >= 3 && contrastOfEdge(refused) >= 3);
        QVERIFY(refused != plain && refused != focused && focused != plain);
        QCOMPARE(edgeAfter("focus"), refused);
        QCOMPARE(field->geometry(), place);
        QCOMPARE(edgeAfter("keys 1"), focused);
        QCOMPARE(edgeAfter("keys \n"), plain);
    }
}

// The editors follow the palette of their host, and field and groove are seen in any.
void tst_Styles::newPalette()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(QPalette, palette);
    if (!sheet.contains("palette("))
        QSKIP("The sheet has colours of its own.");
    EditorUser user(new SliderEditFrame);
    const EditorRow &row = user.rows[0];
    QSlider *const slider = row.slider;
    user.perform("elsewhere");
    for (const QPalette &next : {paletteOf("#182838", "#102030", "#f0e0d0", "#ff8000"), palette}) {
        QApplication::setPalette(next);
        qApp->setStyleSheet(sheet); // which reads the palette's colours
        QCOMPARE(pictureOf(row.spinBox).pixelColor(4, 4), next.color(QPalette::Base));
        QVERIFY(contrastOfEdge(upperEdge(row.spinBox)) >= 3);
        // Behind the handle, with the background above it.
        const QRect groove(slider->width() - 20, 0, 6, slider->height());
        QVERIFY(contrastOfEdge(slider->grab(groove).toImage()) >= 3);
        const QPoint filled(8, slider->height() / 2);
        slider->setValue(slider->maximum() / 2);
        QCOMPARE(pictureOf(slider).pixelColor(filled), next.color(QPalette::Highlight));
        slider->setLayoutDirection(Qt::RightToLeft);
        slider->setStyleSheet(" "); // as the host sets its sheet again
        QVERIFY(pictureOf(slider).pixelColor(filled) != next.color(QPalette::Highlight));
        slider->setLayoutDirection(Qt::LeftToRight);
        slider->setStyleSheet(QString());
    }
}

// The sheets draw fields, also disabled ones, and so the style takes no room in them: some leave it
// for the buttons of a spin box even if it has none.
void tst_Styles::fields()
{
    struct ButtonStyle : QProxyStyle
    {
        QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                             SubControl part, const QWidget *widget) const override
        {
            const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
            return part == SC_SpinBoxEditField ? rect.adjusted(0, 0, -60, 0) : rect;
        }
    };
    QFETCH_GLOBAL(QString, sheet);
    QVector<int> widths;
    for (QStyle *style :
         {QStyleFactory::create("Fusion"), static_cast<QStyle *>(new ButtonStyle)}) {
        QApplication::setStyle(style);
        UserOf<SliderEditFrame> user;
        user.page.setStyleSheet(sheet);
        alignFields(&user.page);
        settle();
        widths.append(user.rows[0].spinBox->width());
    }
    QCOMPARE(widths[1], widths[0]);
}

// A panel's lock takes no space while no lock is visible, and the other lock's width while
// only that one is visible: all rows end at the same edge.
void tst_Styles::lockColumn()
{
    QFETCH_GLOBAL(QString, sheet);
    for (const char *style : {"Fusion", "Windows"}) {
        QApplication::setStyle(style);
        UserOf<RectEditFrame> user;
        user.page.setStyleSheet(sheet);
        int narrow = 0;
        for (const bool position : {true, false}) {
            for (const bool size : {true, false}) {
                user.frame->setPositionLockEnable(position);
                user.frame->setSizeLockEnable(size, RectEditFrame::OffsetLock);
                settle();
                const int width = user.rows[0].frame->width();
                QCOMPARE(user.rows[2].frame->width(), width);
                const int whole = user.rows[0].frame->parentWidget()->contentsRect().width();
                if (position && size)
                    narrow = width;
                QVERIFY(narrow < whole);
                QCOMPARE(width, position || size ? narrow : whole);
            }
        }
    }
}

// The desktop's rows are as far from each other in a composite editor as in a layout of the host,
// whichever of them are shown.
void tst_Styles::pitch()
{
    QFETCH_GLOBAL(QString, sheet);
    if (!sheet.contains("palette("))
        QSKIP("Composite editors have frames.");
    const auto compare = [&sheet](auto *editor, int types) {
        QWidget host;
        host.setStyleSheet(sheet);
        auto *const layout = new QVBoxLayout(&host);
        layout->setSpacing(6);
        layout->addWidget(new SliderEditFrame);
        layout->addWidget(editor);
        layout->addWidget(new SliderEditFrame);
        editor->setEditerVisible(types);
        QVERIFY(User::show(host));
        QVector<int> tops, expected;
        for (const auto *row : host.findChildren<SliderEditFrame *>()) {
            if (row->isVisible())
                tops.append(row->findChild<QSlider *>()->mapTo(&host, QPoint()).y());
        }
        std::sort(tops.begin(), tops.end());
        for (int i = 0; i < tops.size(); ++i)
            expected.append(tops[0] + i * (tops[1] - tops[0]));
        QCOMPARE(tops, expected);
    };
    for (const int types : {int(RectEditFrame::All), int(RectEditFrame::Size), 20}) {
        compare(new RectEditFrame, types);
        compare(new RGBEditFrame, types);
        compare(new RGBAllEditFrame, types);
        compare(new RGBOpacityEditFrame, types);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString::number(types)));
    }
}

// The same picture in any order in which a host sets the sheet, widths and visibility,
// and shows the window.
void tst_Styles::order()
{
    QFETCH_GLOBAL(QString, sheet);
    using Editor = RGBAllEditFrame;
    const std::function<void(Editor &)> calls[] = {
        [&](Editor &editor) { editor.window()->setStyleSheet(sheet); },
        [](Editor &editor) {
            editor.setButtonFixedWidth(Editor::R, 24);
            editor.setButtonWidthRange(Editor::G, 99, 80);
            editor.setSpinBoxFixedWidth(Editor::B, 50);
            editor.setSpinBoxWidthRange(Editor::ALL, 150, 120);
            editor.setLabelFixedWidth(Editor::ALL, 40);
        },
        [](Editor &editor) {
            editor.setEditerVisible(Editor::R);
            editor.setEditerVisible(Editor::ALLAndRgb);
        },
        [](Editor &editor) { QVERIFY(User::show(*editor.window())); }};
    QImage first;
    QVector<int> order {0, 1, 2, 3};
    do {
        QWidget window;
        auto *const editor = new Editor;
        (new QVBoxLayout(&window))->addWidget(editor);
        for (const int call : order)
            calls[call](*editor);
        window.setFocus();
        window.resize(600, 400);
        if (first.isNull())
            first = pictureOf(&window);
        QCOMPARE(pictureOf(&window), first);
    } while (std::next_permutation(order.begin(), order.end()));
}

// Other widgets look as with a sheet that selects nothing: any sheet adds a pixel to some
// of Qt's widgets.
void tst_Styles::surroundings()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(QPalette, palette);
    QApplication::setPalette(palette);
    QWidget host;
    auto *const layout = new QVBoxLayout(&host);
    for (QWidget *widget : QList<QWidget *> {new QSpinBox, new QToolButton, new QSlider,
                                             new QLabel("Host"), new QFrame})
        layout->addWidget(widget);
    qApp->setStyleSheet("#nobody { border: none; }");
    QVERIFY(User::show(host));
    const QImage plain = pictureOf(&host);
    qApp->setStyleSheet(sheet);
    QCOMPARE(pictureOf(&host), plain);
}

QTEST_MAIN(tst_Styles)

#include "tst_styles.moc"
