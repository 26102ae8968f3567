#include "editoruser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <cmath>

using namespace Vantor::Widgets;

// A groove that is filled with a brush: its colours in every look, and what of the slider
// stays as the style and the sheets draw it.
class tst_SliderGroove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void colors_data();
    void colors() { runTestCode(); }
    void surroundings();
    void ticks();
    void channels_data();
    void channels() { runTestCode(); }
    void kept();
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

// Gives an editor the look of the test's row.
void dress(EditorUser &user)
{
    QFETCH_GLOBAL(QString, style);
    QFETCH_GLOBAL(QString, sheet);
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    user.page.setLayoutDirection(direction); // before the sheet, whose rules depend on it
    user.page.setStyleSheet(sheet);
    QApplication::setStyle(style);
    user.page.resize(500, 100);
    settle();
    user.perform("elsewhere");
}

QList<QImage> picturesOf(const EditorUser &user)
{
    QList<QImage> pictures;
    for (const EditorRow &row : user.rows)
        pictures += pictureOf(row.slider);
    return pictures;
}

// In the groove where the middle of the handle is at the position, with the handle away.
QColor colorAt(const EditorRow &row, int position)
{
    QSlider *slider = row.slider;
    const int middle = (slider->minimum() + slider->maximum()) / 2;
    slider->setSliderPosition(position < middle ? slider->maximum() : slider->minimum());
    const QColor color = pictureOf(slider).pixelColor(User::handleRect(slider, position).center());
    slider->setSliderPosition(slider->value());
    return color;
}

int difference(const QColor &a, const QColor &b)
{
    return qMax(std::abs(a.red() - b.red()),
                qMax(std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())));
}

// A transparent colour lies over one of the checkerboard's fields.
void verifyColor(const EditorRow &row, int position, const QColor &expected)
{
    const QColor actual = colorAt(row, position);
    const auto isOver = [&](int field) {
        QImage pixel(1, 1, QImage::Format_RGB32);
        pixel.fill(QColor(field, field, field));
        QPainter(&pixel).fillRect(pixel.rect(), expected);
        return difference(actual, pixel.pixelColor(0, 0)) <= 5;
    };
    QVERIFY2(isOver(255) || isOver(192),
             qPrintable(row.step(QString("%1: %2").arg(position).arg(actual.name()))));
}

// Records which sliders are painted.
class PaintLog : public QObject
{
public:
    QSet<QObject *> painted;

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted.insert(watched);
        return false;
    }
};

} // namespace

// Every test runs with each sheet and in both directions.
void tst_SliderGroove::initTestCase_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const auto addRows = [](const char *name, const QString &style, const QString &sheet) {
        QTest::newRow(name) << style << sheet << Qt::LeftToRight;
        QTest::addRow("%s, mirrored", name) << style << sheet << Qt::RightToLeft;
    };
    addRows("Fusion", "Fusion", {});
    addRows("Windows", "Windows", {});
    addRows("a host's groove", "Fusion", hostSheet);
    for (const char *theme : {"desktop", "touch-light", "touch-dark"})
        addRows(theme, "Fusion", themeSheet(theme));
}

// A disabled row is pale, but not gone.
void tst_SliderGroove::colors_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addRows = [](const char *name, const QBrush &brush, const QVector<QColor> &colors) {
        addForBoth(name, [=](auto &user) {
            dress(user);
            user.frame->setGrooveBrush(brush);
            QCOMPARE(user.frame->grooveBrush(), brush);
            for (int i = 0; i < colors.size(); ++i) {
                verifyColor(user.row, 25 * i, colors[i]);
                user.frame->setEnabled(false);
                const int disabled = colorAt(user.row, 25 * i).saturation();
                QVERIFY(disabled > 0 && disabled < colors[i].saturation());
                user.frame->setEnabled(true);
            }
        });
    };
    QLinearGradient gradient(0, 0, 1, 0);
    gradient.setStops({{0, "#c80000"}, {1, "#0000c8"}});
    addRows("gradient", gradient, {"#c80000", "#960032", "#640064", "#320096", "#0000c8"});
    addRows("one colour", QColor("#10a060"), QVector<QColor>(5, "#10a060"));
}

// Outside the brush all is as without one, in each state of the handle: above and below the
// groove the handle itself, the corners and the border of the groove, the slider's background.
// A light and a dark line set the handle off from every colour. Without the brush nothing of it
// is left.
void tst_SliderGroove::surroundings()
{
    UserOf<SliderEditFrame> user;
    dress(user);
    user.perform("value 50");
    const QRect handle = User::handleRect(user.row.slider, 50);
    const auto pictures = [&user] {
        QList<QImage> images;
        for (const char *action : {"elsewhere", "hold", "drop", "focus"}) {
            user.perform(action);
            images += pictureOf(user.row.slider);
        }
        user.row.slider->setFocus(Qt::TabFocusReason);
        return images << pictureOf(user.row.slider);
    };
    const QList<QImage> plain = pictures();
    QFETCH_GLOBAL(QString, sheet);
    QVERIFY(sheet != hostSheet || plain[0] != plain[1]);
    user.frame->setGrooveBrush(QColor(Qt::red));
    const QList<QImage> brushed = pictures();
    const int middle = handle.center().y();
    for (int i = 0; i < plain.size(); ++i) {
        int reds = 0;
        bool hasLines = false;
        for (int x = 0; x < plain[i].width(); ++x) {
            const bool isHandle = x >= handle.left() && x <= handle.right();
            for (int y = handle.top(); y <= handle.bottom(); ++y) {
                const QColor before = plain[i].pixelColor(x, y);
                const QColor color = brushed[i].pixelColor(x, y);
                reds += color == Qt::red ? 1 : 0;
                QVERIFY(!isHandle || std::abs(y - middle) <= 7 || color == before);
                if (sheet == hostSheet && std::abs(x - handle.center().x()) > handle.width()) {
                    QVERIFY(before != QColor("#444466") || difference(color, before) <= 40);
                    QVERIFY(before != QColor("#ffffe0") || color == before);
                    QVERIFY(before != QColor("#ddddee") || color != before);
                }
            }
            hasLines = hasLines
                || (std::abs(handle.left() - x) <= handle.width() / 2
                    && brushed[i].pixelColor(x, middle) == Qt::white
                    && brushed[i].pixelColor(x + 1, middle) == Qt::black);
        }
        QVERIFY(hasLines);
        QVERIFY(reds > plain[i].width() / 2);
    }
    user.frame->setGrooveBrush(QBrush());
    QCOMPARE(pictures().mid(1), plain.mid(1)); // at first no handle was hovered yet
    QCOMPARE(user.row.slider->styleSheet(), QString());
}

// A slider with a brush has them, and one that a sheet draws, which would drop them.
void tst_SliderGroove::ticks()
{
    QFETCH_GLOBAL(QString, sheet);
    for (const QBrush &brush : {QBrush(), QBrush(Qt::red)}) {
        if (sheet.isEmpty() && brush.style() == Qt::NoBrush)
            continue; // those of the style
        UserOf<SliderEditFrame> user;
        dress(user);
        user.frame->setSliderProperty("tickPosition", QSlider::TicksBelow);
        user.frame->setSliderProperty("tickInterval", 50);
        user.frame->setGrooveBrush(brush);
        const QImage picture = pictureOf(user.row.slider);
        const auto isTick = [&](int x) {
            return picture.pixel(x, picture.height() - 2)
                == user.row.slider->palette().color(QPalette::Mid).rgb();
        };
        for (const int position : {0, 50, 100}) {
            const int x = User::handleRect(user.row.slider, position).center().x();
            QVERIFY(isTick(x) || isTick(x + 1));
            QVERIFY(!isTick(x + 10) && !isTick(x - 10));
        }
    }
}

// Each row of a colour editor at five positions. The channels have ranges of their own; the shares
// of them are in twentieths.
void tst_SliderGroove::channels_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QVector<int> &shares : {QVector<int> {16, 10, 4, 8}, {0, 20, 0, 20}}) {
        const auto check = [shares](auto &user) {
            dress(user);
            user.performAll("r range 0 255 | g range -100 100 | b range 1000 5000");
            const auto positionAt = [](const QSlider *slider, int share) {
                return QStyle::sliderValueFromPosition(slider->minimum(), slider->maximum(), share,
                                                       20);
            };
            for (int i = 0; i < user.rows.size(); ++i)
                user.rows[i].whole->setValue(positionAt(user.rows[i].slider, shares[i]));
            const QList<QImage> plain = picturesOf(user);
            user.frame->setColoredGrooves(true);
            for (int i = 0; i < user.rows.size(); ++i) {
                const EditorRow &row = user.rows[i];
                for (const int share : {0, 5, 10, 15, 20}) {
                    QVector<int> levels {shares[0], shares[1], shares[2], 20};
                    levels[i] = share;
                    for (int &level : levels)
                        level = level * 255 / 20;
                    if (row.name == "all")
                        QCOMPARE(pictureOf(row.slider), plain[i]);
                    else
                        verifyColor(row, positionAt(row.slider, share),
                                    QColor(levels[0], levels[1], levels[2], levels[3]));
                }
            }
            user.frame->setColoredGrooves(false);
            QCOMPARE(picturesOf(user), plain);
        };
        const QString name = QString::number(shares[0]);
        addFor<RGBEditFrame>(name, check);
        addFor<RGBAllEditFrame>(name, check);
        addFor<RGBOpacityEditFrame>(name, check);
    }
    addFor<RGBEditFrame>("logarithmic", [](auto &user) {
        dress(user);
        user.performAll("r range 1 1000 | g value 0 | b value 0");
        user.frame->row(RGBEditFrame::R)->setSliderScale(SliderEditFrame::LogarithmicScale);
        user.frame->setColoredGrooves(true);
        for (const int position : {0, 250, 500, 750, 1000}) {
            const double share = (std::pow(1000, position / 1000.0) - 1) / 999;
            verifyColor(user.rows[0], position, QColor(qRound(share * 255), 0, 0));
        }
    });
}

// When only the colours change, a groove is painted with pictures of what was around them. It
// looks as if it was painted as a whole, whatever has changed in between.
void tst_SliderGroove::kept()
{
    UserOf<RGBOpacityEditFrame> user;
    dress(user);
    user.frame->setColoredGrooves(true);
    const auto insideOf = [](const QSlider *slider) {
        const QPoint start = User::handleRect(slider, slider->minimum()).center();
        const QPoint end = User::handleRect(slider, slider->maximum()).center();
        return QRect(start, end).normalized();
    };
    const auto grooveOf = [&insideOf](QSlider *slider) {
        const QRect inside = insideOf(slider);
        QImage image(inside.size(), QImage::Format_RGB32);
        slider->render(&image, QPoint(), inside);
        return image;
    };
    for (const char *action :
         {"r value 200", "g hold 60", "b value 90", "g drop", "r focus", "elsewhere",
          "b range 0 300", "r disable", "g value 20", "r value 20", "r enable"}) {
        for (const EditorRow &row : user.rows)
            grooveOf(row.slider);
        user.perform(action);
        settle();
        for (const EditorRow &row : user.rows) {
            const QImage part = grooveOf(row.slider);
            const QImage whole = pictureOf(row.slider).copy(insideOf(row.slider));
            for (int x = 0; x < part.width(); ++x)
                QVERIFY2(difference(part.pixelColor(x, 0), whole.pixelColor(x, 0)) <= 16,
                         action); // the Windows style dithers a disabled handle
        }
    }
}

// Every path that changes a channel paints the grooves of the others, once it has changed.
void tst_SliderGroove::repaints_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addRows = [](const QString &start, const QString &action, bool isChange) {
        const auto check = [=](const QString &row, const QStringList &others) {
            return [=](auto &user) {
                user.frame->setColoredGrooves(true);
                user.performAll(QString(start + "%1 focus").replace("%1", row));
                settle();
                PaintLog log;
                for (const EditorRow &other : user.rows)
                    other.slider->installEventFilter(&log);
                user.performAll(QString(action).replace("%1", row));
                settle();
                for (const EditorRow &other : user.rows)
                    QVERIFY2(other.name == row
                                 || log.painted.contains(other.slider)
                                     == (isChange && others.contains(other.name)),
                             qPrintable(other.name));
            };
        };
        const auto name = [=](const QString &row) { return row + ": " + start + action; };
        addFor<RGBEditFrame>(name("r"), check("r", {"g", "b"}));
        addFor<RGBAllEditFrame>(name("b"), check("b", {"r", "g"}));
        addFor<RGBAllEditFrame>(name("all"), check("all", {}));
        addFor<RGBOpacityEditFrame>(name("g"), check("g", {"r", "b", "opacity"}));
        addFor<RGBOpacityEditFrame>(name("opacity"), check("opacity", {}));
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
