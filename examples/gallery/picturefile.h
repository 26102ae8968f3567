#pragma once

#include <QtCore/QCoreApplication>
#include <QtGui/QImage>

class LogPane;
class QWidget;

// Pictures from and to files, with words for the user where something is wrong.
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    // Null if there is no picture; with a problem one that is not complete. What Qt's
    // readers say of it they only log.
    static QImage read(const QString &fileName, LogPane *log, QString *problem);

    // Empty if the user thinks better of it.
    static QString askForOpen(QWidget *parent);
    static QString askForSave(QWidget *parent, const QString &title, const QString &name,
                              bool hasAlpha);

    static bool write(const QImage &picture, const QString &fileName, QString *problem);
};
