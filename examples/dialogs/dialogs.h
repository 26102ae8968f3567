#pragma once

#include <QtCore/QList>
#include <QtGui/QImage>

#include <functional>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

// Shows the user a picture: a preview while a dialog is open, and the result when it is accepted.
using Show = std::function<void(const QImage &)>;

// The dialogs of an image viewer. Each changes a copy of the picture.
QDialog *cropDialog(const QImage &picture, const Show &show, QWidget *parent);
QDialog *colorsDialog(const QImage &picture, const Show &show, QWidget *parent);
QDialog *scaleDialog(const QImage &picture, const Show &show, QWidget *parent);

// What they have in common: a column of widgets with OK, Cancel and Reset below it.
QDialog *editorDialog(const QString &title, const QList<QWidget *> &widgets,
                      const std::function<void()> &reset, QWidget *parent);

// The same dialogs of Qt's own sliders and spin boxes.
namespace Plain {
QDialog *cropDialog(const QImage &picture, const Show &show, QWidget *parent);
QDialog *colorsDialog(const QImage &picture, const Show &show, QWidget *parent);
QDialog *scaleDialog(const QImage &picture, const Show &show, QWidget *parent);
} // namespace Plain
