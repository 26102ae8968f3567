#pragma once

#include <QtCore/QCoreApplication>
#include <QtGui/QImage>

class LogPane;
class QWidget;

// Loads and saves pictures, with error messages for the user.
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    // Null if there is no picture; incomplete if a problem is set. Qt's readers only log
    // the reason.
    static QImage read(const QString &fileName, LogPane *log, QString *problem);

    // Empty if the user cancels.
    static QString askForOpen(QWidget *parent);
    static QString askForSave(QWidget *parent, const QString &title, const QString &name,
                              bool hasAlpha);

    static bool write(const QImage &picture, const QString &fileName, QString *problem);
};
