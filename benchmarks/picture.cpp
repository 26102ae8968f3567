#include "picture.h"

#include "pictureview.h"

#include <QtTest/QTest>

namespace {

constexpr int rounds = 21;
const QSize pictureSize(6000, 4000);
const QSize windowSize(1920, 1080);
constexpr double goalMs = 50;

QImage largePicture()
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = qRgb(x % 256, y % 256, (x ^ y) % 256);
        }
    }
    return picture;
}

// Everything that can change the picture before it is shown.
Edits everyEdit()
{
    Edits edits;
    edits.tone.saturation = 1.3;
    edits.colours.wash.setAlpha(51);
    edits.crop = QRect(QPoint(), pictureSize);
    edits.mask = QMargins(600, 400, 600, 400);
    edits.layer = QRect(1000, 1000, 4000, 2500);
    edits.isLayerShown = true;
    return edits;
}

QString milliseconds(Nanoseconds time)
{
    return QStringLiteral("%1 ms").arg(time.count() / 1e6, 0, 'f', 2);
}

} // namespace

void comparePicture(std::vector<Figure> &figures)
{
    PictureView view;
    view.setPicture(largePicture());
    view.resize(windowSize);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view)) {
        qFatal("The picture is not shown.");
    }
    Edits edits = everyEdit();
    const QImage shown(windowSize, QImage::Format_RGB32);

    const auto move = [&] {
        return timed(1, [&] {
            edits.tone.brightness = (edits.tone.brightness + 1) % 100;
            view.setEdits(edits);
            view.repaint();
        });
    };
    const auto copy = [&shown] { return timed(1, [&shown] { (void)shown.copy(); }); };
    const auto compareAt = [&](const QString &zoom) {
        const Comparison taken = compare(rounds, move, copy);
        figures.push_back(
            {QStringLiteral("A slider's move in a picture of 24 megapixels, in ms: ") + zoom,
             milliseconds(taken.ours), milliseconds(taken.bare), taken.ours.count() / 1e6, goalMs});
    };
    compareAt(QStringLiteral("all of it shown"));
    for (const int percent : {50, 100, 150, 800}) {
        view.setScale(percent / 100.0);
        compareAt(QStringLiteral("shown at %1 %").arg(percent));
    }
}
