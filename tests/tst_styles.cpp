#include "alignlabels.h"
#include "editoruser.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"

#include <QtCore/QDir>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QSpinBox>

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
    void lockColumn();
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
double contrastWithin(QWidget *widget)
{
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto *const pixels = reinterpret_cast<const QRgb *>(image.constBits());
    const auto range = std::minmax_element(pixels, pixels + image.width() * image.height(),
                                           [](QRgb a, QRgb b) { return qGray(a) < qGray(b); });
    return contrastOf(*range.first, *range.second);
}

// "#0b5cad" or "palette(highlighted-text)"
QColor colorOf(const QString &text, const QPalette &palette)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int i = 0; i < roles.keyCount(); ++i) {
        const QString name = text.mid(8).remove(QRegularExpression("\\W"));
        if (name.compare(roles.key(i), Qt::CaseInsensitive) == 0)
            return palette.color(QPalette::ColorRole(roles.value(i)));
    }
    return QColor(text);
}

// Qt reads the palette's colours when the sheet is set: as the guide says, a host sets it
// again when they change.
class PaletteFollower : public QObject
{
public:
    PaletteFollower() { qApp->installEventFilter(this); }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
            qApp->setStyleSheet(qApp->styleSheet());
        return QObject::eventFilter(watched, event);
    }
};

// The parts of an editor that the user handles.
QList<QWidget *> partsOf(const QWidget *editor)
{
    return editor->findChildren<QWidget *>(
        QRegularExpression("^(slider|spinBox|sliderEditSubtract|sliderEditPlus|toolButton.*)$"));
}

QImage picture(QWidget *widget)
{
    QCoreApplication::processEvents();
    return widget->grab().toImage();
}

} // namespace

// Every test runs with each sheet, and with that for the desktop in several palettes.
void tst_Styles::initTestCase_data()
{
    QDir::addSearchPath("vantorslider", STYLES_DIR);
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<int>("target"); // the minimum side of a click target
    QTest::addColumn<int>("slider"); // its minimum width
    const auto add = [](const char *row, const QString &name, const QPalette &palette, int target,
                        int slider) {
        QFile file(STYLES_DIR "/" + name + ".qss");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTest::newRow(row) << QString::fromUtf8(file.readAll()) << palette << target << slider;
    };
    add("touch-dark", "touch-dark", QPalette(), 48, 120);
    add("touch-light", "touch-light", QPalette(), 48, 120);
    add("desktop", "desktop", QPalette(), 15, 100);
    add("desktop, dark", "desktop", paletteOf("#353535", "#232323", Qt::white, "#2a82da"), 15, 100);
    add("desktop, high contrast", "desktop", paletteOf(Qt::black, Qt::black, Qt::white, Qt::cyan),
        15, 100);
}

void tst_Styles::cleanup()
{
    QApplication::setFont(m_font);
    QApplication::setPalette(m_palette);
    qApp->setStyleSheet(QString());
}

// Each colour of a text is followed by that of its background.
void tst_Styles::contrast()
{
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(QPalette, palette);
    const QString color = "(#\\w+|palette\\([\\w-]+\\));";
    const QRegularExpression pattern("(?<![-\\w])((?:selection-)?)color: " + color
                                     + "\\s+(?:\\1background-color: " + color + ")?");
    auto matches = pattern.globalMatch(sheet);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QStringList texts = matches.next().capturedTexts();
        QVERIFY2(texts.size() == 4
                     && contrastOf(colorOf(texts[2], palette), colorOf(texts[3], palette)) >= 4.5,
                 qPrintable(texts[0]));
    }
}

// Buttons and handles differ from those without the theme's pictures.
void tst_Styles::glyphs()
{
    QFETCH_GLOBAL(QString, sheet);
    if (!sheet.contains("image: "))
        QSKIP("The sheet has no pictures.");
    for (QWidget *editor : QList<QWidget *> {new RectEditFrame, new RGBEditFrame}) {
        EditorUser user(editor);
        QList<QWidget *> parts = partsOf(editor);
        for (const EditorRow &row : user.rows)
            parts.removeOne(row.spinBox);
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

// Each part is paler than while it is enabled.
void tst_Styles::disabled()
{
    QFETCH_GLOBAL(QString, sheet);
    for (QWidget *editor : QList<QWidget *> {new RectEditFrame, new RGBEditFrame}) {
        EditorUser user(editor);
        user.page.setStyleSheet(sheet);
        if (auto *const rect = qobject_cast<RectEditFrame *>(editor))
            rect->setPositionLock(true);
        QVector<double> contrasts;
        const auto parts = partsOf(editor);
        for (QWidget *part : parts)
            contrasts.append(contrastWithin(part));
        editor->setEnabled(false);
        for (int i = 0; i < parts.size(); ++i)
            QVERIFY2(contrastWithin(parts[i]) < 0.8 * contrasts[i],
                     qPrintable(parts[i]->objectName()));
    }
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
    QFETCH_GLOBAL(int, target);
    QFETCH_GLOBAL(int, slider);
    QFETCH(const double, points);
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
    // From the rows up to the page.
    for (int i = 0; i < 4; ++i)
        QCoreApplication::processEvents();
    user.page.adjustSize();

    const QSize finger(target, target);
    const auto buttons = user.page.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 10);
    for (const QToolButton *button : buttons)
        QCOMPARE(button->size().expandedTo(finger), button->size());
    for (const EditorRow &row : user.rows) {
        QVERIFY(row.slider->width() >= slider);
        const QSize handle = User::handleRect(row.slider, row.slider->value()).size();
        QCOMPARE(handle.expandedTo(finger), handle);
        QCOMPARE(row.label->size().expandedTo(row.label->sizeHint()), row.label->size());
        const QRect text = row.field->fontMetrics().boundingRect(row.field->text());
        QCOMPARE(row.field->size().expandedTo(text.size()), row.field->size());
    }
    alignLabels(&user.page);
    QCoreApplication::processEvents();
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
    const PaletteFollower follower;
    qApp->setStyleSheet(sheet);
    EditorUser user(new SliderEditFrame);
    const EditorRow &row = user.rows[0];
    QSlider *const slider = row.slider;
    user.perform("elsewhere");
    for (const QPalette &next : {paletteOf("#182838", "#102030", "#f0e0d0", "#ff8000"), palette}) {
        QApplication::setPalette(next);
        QCoreApplication::processEvents();
        const QImage field = row.spinBox->grab().toImage();
        QCOMPARE(field.pixelColor(4, 4), next.color(QPalette::Base));
        QVERIFY(contrastOfEdge(upperEdge(row.spinBox)) >= 3);
        // Behind the handle, with the background above it.
        const QRect groove(slider->width() - 20, 0, 6, slider->height());
        QVERIFY(contrastOfEdge(slider->grab(groove).toImage()) >= 3);
        const QPoint filled(8, slider->height() / 2);
        slider->setValue(slider->maximum() / 2);
        QCOMPARE(slider->grab().toImage().pixelColor(filled), next.color(QPalette::Highlight));
        slider->setLayoutDirection(Qt::RightToLeft);
        slider->setStyleSheet(" "); // as the host sets its sheet again
        QVERIFY(slider->grab().toImage().pixelColor(filled) != next.color(QPalette::Highlight));
        slider->setLayoutDirection(Qt::LeftToRight);
        slider->setStyleSheet(QString());
    }
}

// A panel's lock takes no space while no lock is visible, and the other lock's width while
// only that one is visible: all rows end at the same edge.
void tst_Styles::lockColumn()
{
    QFETCH_GLOBAL(QString, sheet);
    EditorUser user(new RectEditFrame);
    user.page.setStyleSheet(sheet);
    auto *const rect = user.page.findChild<RectEditFrame *>();
    const auto widths = [&] {
        for (int i = 0; i < 4; ++i) // from the lock up to the page, and down again
            QCoreApplication::processEvents();
        return QList<int>({user.rows[0].frame->width(), user.rows[2].frame->width()});
    };
    const int narrow = widths()[0];
    QCOMPARE(widths(), QList<int>({narrow, narrow}));
    rect->setSizeLockEnable(false, RectEditFrame::OffsetLock);
    QCOMPARE(widths(), QList<int>({narrow, narrow}));
    rect->setPositionLockEnable(false);
    const int whole = user.rows[0].frame->parentWidget()->contentsRect().width();
    QCOMPARE(widths(), QList<int>({whole, whole}));
    rect->setSizeLockEnable(true, RectEditFrame::OffsetLock);
    QCOMPARE(widths(), QList<int>({narrow, narrow}));
}

// The same picture in any order in which a host sets the sheet, widths and visibility,
// and shows the window.
void tst_Styles::order()
{
    QFETCH_GLOBAL(QString, sheet);
    QImage first;
    QVector<int> calls {0, 1, 2, 3};
    do {
        EventLog log;
        QWidget window;
        auto *const editor = new RGBAllEditFrame(&window);
        (new QVBoxLayout(&window))->addWidget(editor);
        for (const int call : calls) {
            if (call == 0)
                window.setStyleSheet(sheet);
            if (call == 1) {
                editor->setButtonFixedWidth(RGBAllEditFrame::R, 24);
                editor->setButtonWidthRange(RGBAllEditFrame::G, 99, 80);
                editor->setSpinBoxFixedWidth(RGBAllEditFrame::B, 50);
                editor->setSpinBoxWidthRange(RGBAllEditFrame::ALL, 150, 120);
                editor->setLabelFixedWidth(RGBAllEditFrame::ALL, 40);
            }
            if (call == 2) {
                editor->setEditerVisible(RGBAllEditFrame::R);
                editor->setEditerVisible(RGBAllEditFrame::ALLAndRgb);
            }
            if (call == 3)
                QVERIFY(User::show(window));
        }
        window.setFocus();
        window.resize(600, 400);
        if (first.isNull())
            first = picture(&window);
        QCOMPARE(picture(&window), first);
    } while (std::next_permutation(calls.begin(), calls.end()));
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
    layout->addWidget(new QSpinBox);
    layout->addWidget(new QToolButton);
    layout->addWidget(new QSlider);
    layout->addWidget(new QLabel("Host"));
    layout->addWidget(new QFrame);
    qApp->setStyleSheet("#nobody { border: none; }");
    QVERIFY(User::show(host));
    const QImage plain = picture(&host);
    qApp->setStyleSheet(sheet);
    QCOMPARE(picture(&host), plain);
}

QTEST_MAIN(tst_Styles)

#include "tst_styles.moc"
