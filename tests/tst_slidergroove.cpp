#include "editoruser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

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
    void channels_data();
    void channels() { runTestCode(); }
    void repaints_data();
    void repaints() { runTestCode(); }
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

// The user of an editor with the look of the test's row.
template <typename Frame> struct Look : UserOf<Frame>
{
    Look()
    {
        QFETCH_GLOBAL(QString, style);
        QFETCH_GLOBAL(QString, sheet);
        this->page.setStyleSheet(sheet);
        for (const EditorRow &row : this->rows) {
            if (!style.isEmpty())
                row.slider->setStyle(QStyleFactory::create(style));
        }
        this->page.resize(500, 100);
        QCoreApplication::processEvents();
        this->perform("elsewhere");
    }

    QImage picture(QSlider *of) const
    {
        QCoreApplication::processEvents();
        return of->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    // In the groove where the middle of the handle is at the position, with the handle away.
    QColor colorAt(const EditorRow &row, int position)
    {
        const int middle = (row.slider->minimum() + row.slider->maximum()) / 2;
        row.slider->setSliderPosition(position < middle ? row.slider->maximum()
                                                        : row.slider->minimum());
        const QColor color =
            picture(row.slider).pixelColor(User::handleRect(row.slider, position).center());
        row.slider->setSliderPosition(row.slider->value());
        return color;
    }
};

// A slider editor whose slider has the positions 0 to 100.
template <typename Frame> struct Row : Look<Frame>
{
    void move(int position) { this->perform(QString("value %1").arg(position)); }
    QImage picture() const { return Look<Frame>::picture(slider); }
    QRect handleRect() const { return User::handleRect(slider, slider->sliderPosition()); }

    QSlider *const slider = this->row.slider;
};

bool isNear(const QColor &a, const QColor &b, int tolerance)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
        && std::abs(a.blue() - b.blue()) <= tolerance;
}

// At positions from 0 to 100.
template <typename Frame> void checkColors(const QBrush &brush, const QVector<QColor> &expected)
{
    Row<Frame> user;
    user.frame->setGrooveBrush(brush);
    QCOMPARE(user.frame->grooveBrush(), brush);
    for (int i = 0; i < expected.size(); ++i) {
        const int position = i * 100 / (int(expected.size()) - 1);
        const QColor color = user.colorAt(user.row, position);
        QVERIFY2(isNear(color, expected[i], 4),
                 qPrintable(QString("%1 at %2").arg(color.name()).arg(position)));
        // Pale, but not gone.
        user.frame->setEnabled(false);
        const QColor disabled = user.colorAt(user.row, position);
        QVERIFY(disabled.saturation() > 0 && disabled.saturation() < color.saturation());
        user.frame->setEnabled(true);
    }
}

// Each row of a colour editor at five positions. The channels have ranges of their own.
template <typename Frame> void checkChannels(const QVector<double> &shares)
{
    Look<Frame> user;
    user.frame->setRange(Frame::R, 0, 255);
    user.frame->setRange(Frame::G, -100, 100);
    user.frame->setRange(Frame::B, 1000, 5000);
    const QList<SliderEditFrame *> rows = user.frame->rows();
    for (const bool isOn : {true, false}) {
        user.frame->setColoredGrooves(isOn);
        for (int i = 0; i < rows.size(); ++i) {
            const double range = double(rows[i]->maximum()) - rows[i]->minimum();
            rows[i]->setValue(rows[i]->minimum() + qRound(range * shares[i]));
        }
        for (int i = 0; i < rows.size(); ++i) {
            const bool isOpacity = std::is_same_v<Frame, RGBOpacityEditFrame> && i == 3;
            const bool isMaster = i == 3 && !isOpacity;
            for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
                const double range = double(rows[i]->maximum()) - rows[i]->minimum();
                const int position = rows[i]->minimum() + qRound(range * share);
                QVector<double> mixed = shares;
                mixed[i] = share;
                QColor expected(qRound(255 * mixed[0]), qRound(255 * mixed[1]),
                                qRound(255 * mixed[2]));
                const QColor actual = user.colorAt(user.rows[i], position);
                bool isRight = isNear(actual, expected, 5);
                // A field of the checkerboard shows through.
                for (const int field : {255, 192}) {
                    const auto blended = [share, field](int channel) {
                        return qRound(share * channel + (1 - share) * field);
                    };
                    isRight = isRight
                        || (isOpacity
                            && isNear(actual,
                                      {blended(expected.red()), blended(expected.green()),
                                       blended(expected.blue())},
                                      5));
                }
                if (!isOn && isOpacity)
                    continue; // a style's groove can have a colour of the checkerboard
                if (isOn && !isMaster)
                    QVERIFY2(isRight,
                             qPrintable(QString("%1 instead of %2 in %3 at %4")
                                            .arg(actual.name(), expected.name(), user.rows[i].name)
                                            .arg(share)));
                else
                    QVERIFY(!isRight);
            }
        }
    }
}

// Records which sliders are painted.
class PaintLog : public QObject
{
public:
    explicit PaintLog(const EditorUser &user)
    {
        for (const EditorRow &row : user.rows) {
            row.slider->setObjectName(row.name);
            row.slider->installEventFilter(this);
        }
    }

    QSet<QString> painted;

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted.insert(watched->objectName());
        return false;
    }
};

// Which sliders beside its own an action of a row paints.
template <typename Frame>
void checkRepaints(const QString &start, const QString &row, const QString &action,
                   const QSet<QString> &expected)
{
    UserOf<Frame> user;
    user.frame->setColoredGrooves(true);
    user.performAll(QString(start + "%1 focus").replace("%1", row));
    QCoreApplication::processEvents();
    PaintLog log(user);
    user.performAll(QString(action).replace("%1", row));
    QCoreApplication::processEvents();
    log.painted.remove(row);
    QCOMPARE(log.painted, expected);
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

void tst_SliderGroove::channels_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QVector<double> &shares : {QVector<double> {0.8, 0.5, 0.2, 0.4}, {0, 1, 0, 1}}) {
        const auto addRow = [&shares](const char *name, const auto &check) {
            QTest::addRow("%s, %g", name, shares[0]) << TestCode([=] { check(shares); });
        };
        addRow("RGB", checkChannels<RGBEditFrame>);
        addRow("RGBAll", checkChannels<RGBAllEditFrame>);
        addRow("RGBOpacity", checkChannels<RGBOpacityEditFrame>);
    }
}

// Every path that changes a channel paints the grooves of the others, once it has changed.
void tst_SliderGroove::repaints_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addRows = [](const QString &start, const QString &action, bool isChange) {
        const auto addRow = [=](const char *name, const auto &check, const QString &row,
                                const QSet<QString> &others) {
            QTest::addRow("%s, %s: %s%s", name, qPrintable(row), qPrintable(start),
                          qPrintable(action))
                << TestCode(
                       [=] { check(start, row, action, isChange ? others : QSet<QString>()); });
        };
        addRow("RGB", checkRepaints<RGBEditFrame>, "r", {"g", "b"});
        addRow("RGBAll", checkRepaints<RGBAllEditFrame>, "b", {"r", "g"});
        addRow("RGBAll", checkRepaints<RGBAllEditFrame>, "all", {});
        addRow("RGBOpacity", checkRepaints<RGBOpacityEditFrame>, "g", {"r", "b", "opacity"});
        addRow("RGBOpacity", checkRepaints<RGBOpacityEditFrame>, "opacity", {});
    };
    for (const char *action :
         {"%1 hold 60", "%1 plus", "%1 groove after", "%1 enter 12*2", "up", "%1 value 7"})
        addRows("", action, true);
    addRows("sampled | ", "%1 hold 60", true);
    addRows("released | ", "%1 hold 60", false);
    addRows("released | %1 hold 60 | ", "%1 drop", true);
    addRows("%1 default 9 | ", "%1 reset", true);
    addRows("%1 default 9 | ", "resetValues", true);
    addRows("", "%1 range 0 300", true);
    addRows("", "%1 enter 1/0", false);
    addRows("%1 value 50 | ", "%1 value 50", false);
}

QTEST_MAIN(tst_SliderGroove)

#include "tst_slidergroove.moc"
