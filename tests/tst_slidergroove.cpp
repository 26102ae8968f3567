#include "editoruser.h"

#include <QtCore/QDir>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <cmath>

using namespace Vantor::Widgets;

// A groove that is filled with a brush: its colours in every look, and what of the slider
// stays as the style and the sheets draw it.
class tst_SliderGroove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();
    void colors_data();
    void colors() { runTestCode(); }
    void surroundings();
    void handle();
    void ticks();
};

namespace {

const char hostSheet[] =
    "QSlider { background: #ffffe0; }"
    "QSlider::groove:horizontal { height: 12px; border: 2px solid #444466; border-radius: 7px;"
    " background: #ddddee; }"
    "QSlider::sub-page { border: 2px solid #444466; border-radius: 7px; background: #2060c0; }"
    "QSlider::handle:horizontal { width: 18px; margin: -6px 0; border: 1px solid #555555;"
    " border-radius: 9px; background: white; }"
    "QSlider::handle:horizontal:hover { background: #ffcc00; }";

QLinearGradient gradient(const QColor &start, const QColor &end)
{
    QLinearGradient along(0, 0, 1, 0);
    along.setStops({{0, start}, {1, end}});
    return along;
}

// A slider editor of that class whose slider has the positions 0 to 100.
template <typename Frame> struct Row : UserOf<Frame>
{
    Row()
    {
        QFETCH_GLOBAL(QString, style);
        QFETCH_GLOBAL(QString, sheet);
        this->page.setStyleSheet(sheet);
        if (!style.isEmpty())
            slider->setStyle(QStyleFactory::create(style));
        this->page.resize(500, 100);
        QCoreApplication::processEvents();
        this->perform("elsewhere");
    }

    void move(int position) { this->perform(QString("value %1").arg(position)); }

    QImage picture() const
    {
        QCoreApplication::processEvents();
        return slider->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    QRect handleRect() const { return User::handleRect(slider, slider->sliderPosition()); }

    QSlider *const slider = this->row.slider;
};

bool isNear(const QColor &a, const QColor &b, int tolerance)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
        && std::abs(a.blue() - b.blue()) <= tolerance;
}

// The colours in the groove where the middle of the handle is at each of the positions.
template <typename Frame> void checkColors(const QBrush &brush, const QVector<QColor> &expected)
{
    Row<Frame> row;
    row.frame->setGrooveBrush(brush);
    QCOMPARE(row.frame->grooveBrush(), brush);
    for (int i = 0; i < expected.size(); ++i) {
        const int position = i * 100 / (int(expected.size()) - 1);
        row.move(position < 50 ? 100 : 0); // the handle is away
        const QPoint place = User::handleRect(row.slider, position).center();
        const QColor color = row.picture().pixelColor(place);
        QVERIFY2(isNear(color, expected[i], 4),
                 qPrintable(QString("%1 at %2").arg(color.name()).arg(position)));
        // In grey light, but not gone.
        row.frame->setEnabled(false);
        const QColor disabled = row.picture().pixelColor(place);
        QVERIFY(disabled != color);
        QVERIFY(color.hsvSaturation() < 100
                || (disabled.saturation() > 0 && disabled.saturation() < color.saturation()));
        row.frame->setEnabled(true);
    }
}

} // namespace

// Every test runs with each sheet and in both directions.
void tst_SliderGroove::initTestCase_data()
{
    QDir::addSearchPath("vantorslider", STYLES_DIR);
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const char *const name = direction == Qt::LeftToRight ? "" : ", mirrored";
        const auto addRow = [direction, name](const char *row, const QString &style,
                                              const QString &sheet) {
            QTest::addRow("%s%s", row, name) << style << sheet << direction;
        };
        addRow("Fusion", QString(), QString());
        addRow("Windows", "Windows", QString());
        addRow("a host's groove", QString(), hostSheet);
        for (const char *theme : {"desktop", "touch-light", "touch-dark"}) {
            QFile file(QString(STYLES_DIR "/%1.qss").arg(theme));
            QVERIFY(file.open(QIODevice::ReadOnly));
            addRow(theme, QString(), file.readAll());
        }
    }
}

void tst_SliderGroove::init()
{
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
}

void tst_SliderGroove::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_SliderGroove::colors_data()
{
    const auto addRows = [](const char *name, const QBrush &brush, const QVector<QColor> &colors) {
        QTest::addRow("%s", name) << TestCode([=] { checkColors<SliderEditFrame>(brush, colors); });
        QTest::addRow("%s, double", name)
            << TestCode([=] { checkColors<SliderEditFrameDouble>(brush, colors); });
    };
    QTest::addColumn<TestCode>("code");
    addRows("gradient", gradient("#c80000", "#0000c8"),
            {"#c80000", "#960032", "#640064", "#320096", "#0000c8"});
    addRows("one colour", QColor("#10a060"), QVector<QColor>(5, "#10a060"));
}

// Outside the brush all is as without one: the corners and the border of the groove, and the
// slider's background. Without the brush nothing of it is left.
void tst_SliderGroove::surroundings()
{
    QFETCH_GLOBAL(QString, sheet);
    Row<SliderEditFrame> row;
    row.move(0); // nothing is filled
    const QImage plain = row.picture();
    row.frame->setGrooveBrush(QColor(Qt::red));
    const QImage brushed = row.picture();
    const QRect handle = row.handleRect();
    int reds = 0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const QColor color = brushed.pixelColor(x, y);
            reds += color == Qt::red ? 1 : 0;
            if (sheet == hostSheet && std::abs(x - handle.center().x()) > handle.width()) {
                const QColor before = plain.pixelColor(x, y);
                QVERIFY(before != QColor("#444466") || isNear(color, before, 40));
                QVERIFY(before != QColor("#ffffe0") || color == before);
                QVERIFY(before != QColor("#ddddee") || color != before);
            }
        }
    }
    QVERIFY(reds > row.slider->width() / 2);
    row.frame->setGrooveBrush(QBrush());
    QCOMPARE(row.picture(), plain);
    QCOMPARE(row.slider->styleSheet(), QString());
}

// Above and below the groove a handle looks as without a brush, in each of its states. Beside
// it a light and a dark line set it off from every colour.
void tst_SliderGroove::handle()
{
    Row<SliderEditFrame> row;
    row.move(50);
    const QRect handle = row.handleRect();
    const auto pictures = [&row] {
        QList<QImage> images;
        for (const char *action : {"elsewhere", "hold", "drop", "focus"}) {
            row.perform(action);
            images.append(row.picture());
        }
        row.slider->setFocus(Qt::TabFocusReason);
        return images << row.picture();
    };
    const QList<QImage> plain = pictures();
    QFETCH_GLOBAL(QString, sheet);
    QVERIFY(sheet != hostSheet || plain[1] != plain[0]);
    row.frame->setGrooveBrush(QColor(Qt::red));
    const QList<QImage> brushed = pictures();
    const int middle = handle.center().y();
    for (int i = 0; i < plain.size(); ++i) {
        for (int y = handle.top(); y <= handle.bottom(); ++y) {
            for (int x = handle.left(); x <= handle.right() && std::abs(y - middle) > 7; ++x)
                QCOMPARE(brushed[i].pixelColor(x, y), plain[i].pixelColor(x, y));
        }
        bool hasLines = false;
        for (int x = handle.left() - 2; x < handle.center().x(); ++x)
            hasLines = hasLines
                || (brushed[i].pixelColor(x, middle) == Qt::white
                    && brushed[i].pixelColor(x + 1, middle) == Qt::black);
        QVERIFY(hasLines);
    }
}

// A slider that a sheet draws has them, too.
void tst_SliderGroove::ticks()
{
    Row<SliderEditFrame> row;
    row.frame->setSliderProperty("tickPosition", QSlider::TicksBelow);
    row.frame->setSliderProperty("tickInterval", 50);
    row.frame->setGrooveBrush(QColor(Qt::red));
    const QImage picture = row.picture();
    const auto isTick = [&](int x) {
        return picture.pixel(x, picture.height() - 2)
            == row.slider->palette().color(QPalette::Mid).rgb();
    };
    for (const int position : {0, 50, 100}) {
        const int x = User::handleRect(row.slider, position).center().x();
        QVERIFY(isTick(x) || isTick(x + 1));
        QVERIFY(!isTick(x + 10) && !isTick(x - 10));
    }
}

QTEST_MAIN(tst_SliderGroove)

#include "tst_slidergroove.moc"
