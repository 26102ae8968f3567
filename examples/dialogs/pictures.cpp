#include "pictures.h"

#include "dialogs.h"
#include "picture.h"

#include <applytheme.h>

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>

#include <memory>

using Vantor::Widgets::applyTheme;
using Vantor::Widgets::EditorTheme;

namespace {

constexpr int gap = 12;

QImage pictureOf(QDialog *opened)
{
    const std::unique_ptr<QDialog> dialog(opened);
    dialog->show();
    for (int i = 0; i < 6; ++i) { // from the labels up to the dialog, and down again
        QCoreApplication::processEvents();
    }
    return dialog->grab().toImage();
}

QImage sheet(const QList<QImage> &images)
{
    int widths[2] = {};
    QList<int> heights;
    for (int i = 0; i < images.size(); ++i) {
        widths[i % 2] = qMax(widths[i % 2], images[i].width());
        if (i % 2 == 0) {
            heights.append(qMax(images[i].height(), images[i + 1].height()));
        }
    }
    int height = -gap;
    for (const int h : heights) {
        height += h + gap;
    }
    QImage sheet(widths[0] + gap + widths[1], height, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    for (int i = 0, y = 0; i < images.size(); ++i) {
        painter.drawImage(i % 2 == 0 ? 0 : widths[0] + gap, y, images[i]);
        y += i % 2 == 0 ? 0 : heights[i / 2] + gap;
    }
    return sheet;
}

QPalette darkPalette()
{
    const QColor window("#31363b"), base("#232629"), text("#eff0f1");
    QPalette palette(text, window, window.lighter(), window.darker(), window.darker(120), text,
                     base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, "#3daee9");
    palette.setColor(QPalette::HighlightedText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, "#7f8c8d");
    }
    return palette;
}

} // namespace

bool writePictures(const QString &folder)
{
    const QString style = QApplication::style()->objectName();
    const QImage picture = samplePicture();
    const Show ignore = [](const QImage &) {};
    for (const bool isDark : {false, true}) {
        if (isDark && QStyleFactory::keys().contains(style + "-dark", Qt::CaseInsensitive)) {
            QApplication::setStyle(style + "-dark");
            QApplication::setPalette(QApplication::style()->standardPalette());
        } else if (isDark) {
            QApplication::setPalette(darkPalette());
        } else {
            QApplication::setPalette(QApplication::style()->standardPalette());
        }
        QList<QImage> images;
        for (const auto &[ours, plain] : {std::make_pair(cropDialog, Plain::cropDialog),
                                          std::make_pair(colorsDialog, Plain::colorsDialog),
                                          std::make_pair(scaleDialog, Plain::scaleDialog)}) {
            applyTheme(qApp, EditorTheme::Desktop);
            images.append(pictureOf(ours(picture, ignore, nullptr)));
            applyTheme(qApp, EditorTheme::NoTheme);
            images.append(pictureOf(plain(picture, ignore, nullptr)));
        }
        const QString name =
            QString("dialogs-%1-%2.png").arg(style, QString(isDark ? "dark" : "light"));
        if (!QDir().mkpath(folder) || !sheet(images).save(QDir(folder).filePath(name))) {
            qWarning("%s cannot be written.", qPrintable(name));
            return false;
        }
    }
    return true;
}
