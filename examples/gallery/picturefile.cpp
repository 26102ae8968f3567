#include "picturefile.h"

#include "logpane.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtGui/QPainter>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace {

// With four bytes per pixel these are 256 MB. Qt 6 itself reads no more.
const int maxMegapixels = 64;

double megapixels(const QSize &size)
{
    return double(size.width()) * size.height() / 1e6;
}

// Qt's readers of these two formats accept an incomplete picture without a message.
bool endsTooSoon(const QString &fileName, const QByteArray &format)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    if (format == "bmp") {
        file.seek(2);
        return qFromLittleEndian<quint32>(file.read(4).constData()) > file.size();
    }
    return format == "gif" && file.seek(file.size() - 1) && file.read(1) != ";";
}

bool keepsAlpha(const QString &fileName)
{
    return QFileInfo(fileName).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
}

} // namespace

QImage PictureFile::read(const QString &fileName, LogPane *log, QString *problem)
{
    QImageReader reader(fileName);
    reader.setAutoTransform(true);
    if (megapixels(reader.size()) > maxMegapixels) {
        *problem = tr("%1 has %2 megapixels. Up to %3 can be opened.")
                       .arg(fileName)
                       .arg(megapixels(reader.size()), 0, 'f', 1)
                       .arg(maxMegapixels);
        return {};
    }
    // The JPEG reader returns an incomplete picture and only logs the reason.
    const QByteArray format = reader.format(); // no longer available after reading
    QStringList warnings;
    const auto connection = QObject::connect(
        log, &LogPane::warned, log, [&](const QString &message) { warnings.append(message); });
    const QImage picture = reader.read();
    QObject::disconnect(connection);
    if (picture.isNull()) {
        *problem = tr("%1 cannot be opened: %2").arg(fileName, reader.errorString());
        return {};
    }
    if (endsTooSoon(fileName, format)) {
        warnings.append(tr("the file ends too soon"));
    }
    if (!warnings.isEmpty()) {
        *problem = tr("%1 is not complete: %2").arg(fileName, warnings.first());
    }
    return picture;
}

QString PictureFile::askForOpen(QWidget *parent)
{
    return QFileDialog::getOpenFileName(parent, tr("Open"), QString(),
                                        tr("Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.svg)"));
}

QString PictureFile::askForSave(QWidget *parent, const QString &title, const QString &name,
                                bool hasAlpha)
{
    const QString others = hasAlpha ? tr("JPEG picture, what is transparent becomes white (*.jpg);;"
                                         "BMP picture, what is transparent becomes white (*.bmp)")
                                    : tr("JPEG picture (*.jpg);;BMP picture (*.bmp)");
    QFileDialog dialog(parent, title, QString(),
                       tr("PNG picture (*.png)") + QStringLiteral(";;") + others);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(name);
    // The dialog itself adds the suffix, and then asks before it overwrites a file.
    const auto takeSuffix = [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.section(QStringLiteral("*."), 1).remove(QLatin1Char(')')));
    };
    takeSuffix(dialog.selectedNameFilter());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const QString fileName = dialog.selectedFiles().constFirst();
    // The name may have another suffix than the filter.
    if (hasAlpha && !keepsAlpha(fileName)
        && keepsAlpha(QStringLiteral(".") + dialog.defaultSuffix())
        && QMessageBox::question(parent, title,
                                 tr("In this format what is transparent becomes white. Save it?"))
            != QMessageBox::Yes) {
        return {};
    }
    return fileName;
}

bool PictureFile::write(const QImage &picture, const QString &fileName, QString *problem)
{
    QImage written = picture;
    if (picture.hasAlphaChannel() && !keepsAlpha(fileName)) {
        written = QImage(picture.size(), QImage::Format_RGB32);
        written.fill(Qt::white);
        QPainter(&written).drawImage(0, 0, picture);
    }
    QImageWriter writer(fileName);
    if (!writer.write(written)) {
        *problem = tr("%1 cannot be written: %2").arg(fileName, writer.errorString());
        return false;
    }
    return true;
}
