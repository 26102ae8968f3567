// An image viewer with three dialogs: dialogs [--plain] [--pictures FOLDER] [PICTURE]
#include "dialogs.h"
#include "picture.h"
#include "pictures.h"

#include <applytheme.h>

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>

namespace {

class Viewer : public QMainWindow
{
public:
    explicit Viewer(const QImage &picture) : m_picture(picture)
    {
        m_view->setAlignment(Qt::AlignCenter);
        m_view->setMinimumSize(640, 360);
        setCentralWidget(m_view);
        display(picture);
    }

    template <typename MakeDialog> void addDialog(const QString &text, MakeDialog makeDialog)
    {
        menuBar()->addAction(text, this, [this, makeDialog] {
            QDialog *dialog = makeDialog(
                m_picture, [this](const QImage &result) { display(result); }, this);
            connect(dialog, &QDialog::accepted, this, [this] { m_picture = m_shown; });
            connect(dialog, &QDialog::rejected, this, [this] { display(m_picture); });
            dialog->open();
        });
    }

private:
    void display(const QImage &picture)
    {
        m_shown = picture;
        m_view->setPixmap(QPixmap::fromImage(picture.scaled(640, 360, Qt::KeepAspectRatio)));
        setWindowTitle(QString("%1 x %2").arg(picture.width()).arg(picture.height()));
    }

    QLabel *const m_view = new QLabel;
    QImage m_picture;
    QImage m_shown;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument("picture", "The picture to open.", "[picture]");
    const QCommandLineOption plain("plain", "Uses dialogs of Qt's own sliders and spin boxes.");
    const QCommandLineOption pictures(
        "pictures", "Writes pictures of both kinds of dialogs to <folder>.", "folder");
    parser.addOptions({plain, pictures});
    parser.process(app);
    if (parser.isSet(pictures)) {
        return writePictures(parser.value(pictures)) ? 0 : 1;
    }

    const QStringList files = parser.positionalArguments();
    const QImage picture = files.isEmpty() ? samplePicture() : QImage(files.first());
    if (picture.isNull()) {
        qWarning("%s cannot be read.", qPrintable(files.first()));
        return 1;
    }
    const bool isPlain = parser.isSet(plain);
    if (!isPlain) {
        Vantor::Widgets::applyTheme(&app, Vantor::Widgets::EditorTheme::Desktop);
    }
    Viewer viewer(picture);
    viewer.addDialog("&Crop...", isPlain ? Plain::cropDialog : cropDialog);
    viewer.addDialog("C&olors...", isPlain ? Plain::colorsDialog : colorsDialog);
    viewer.addDialog("&Scale...", isPlain ? Plain::scaleDialog : scaleDialog);
    viewer.show();
    return app.exec();
}
