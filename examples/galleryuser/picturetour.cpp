#include "picturetour.h"

#include "logpane.h"
#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "pictureview.h"
#include "scripteduser.h"
#include "userevents.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>

namespace {

// Every colour and, if it has alpha, every opacity.
QImage colourful(const QSize &size, bool hasAlpha)
{
    QImage picture(size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixel(
                x, y, qRgba(x % 256, y % 256, (x + 2 * y) % 256, hasAlpha ? (x + y) % 256 : 255));
        }
    }
    return picture;
}

bool isSame(const QImage &a, const QImage &b)
{
    return a.convertToFormat(QImage::Format_ARGB32) == b.convertToFormat(QImage::Format_ARGB32);
}

class Tour
{
public:
    explicit Tour(ScriptedUser &user) : m_user(user), m_window(user.window()), m_view(user.view())
    {
        ScriptedUser::expect(colourful(m_size, false).save(path("opaque.png"))
                                 && colourful(m_size, true).save(path("clear.png")),
                             "there are pictures to open");
    }

    void openAndQuit();
    void resetAll();
    void saveWhatIsShown();
    void keepTransparency();
    void dragInPicture();
    void makeRoom();
    void lookClosely();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QImage whole() const { return m_view->painted(QRect(QPoint(), m_view->pictureSize())); }

    // Discards unsaved edits.
    void open(const char *name)
    {
        const auto choose = [this, name] {
            m_user.takeFile(path(name), [this] { m_user.choose(QStringLiteral("Open…")); });
        };
        if (m_window.isWindowModified()) {
            m_user.answer(QMessageBox::Discard, choose);
        } else {
            choose();
        }
    }

    QImage save(const QString &menuEntry, const char *name)
    {
        m_user.takeFile(path(name), [this, menuEntry] { m_user.choose(menuEntry); });
        return QImage(path(name));
    }

    // The part of the view that shows the picture.
    QImage shown() const
    {
        m_view->setScale(1);
        QApplication::processEvents();
        const QRect area = m_view->toView(QRect(QPoint(), m_view->pictureSize())).toRect();
        return m_view->grab(area).toImage();
    }

    // From one of the rectangle's edges, or from inside.
    void drag(double x, double y, const QPoint &by)
    {
        const QRectF rect = m_view->rectInView();
        const QPoint from(int(rect.left() + rect.width() * x), int(rect.top() + rect.height() * y));
        m_user.drag(m_view, from, from + by);
    }

    ScriptedUser &m_user;
    MainWindow &m_window;
    PictureView *m_view;
    const QTemporaryDir m_folder;
    const QSize m_size = QSize(301, 199);
};

void Tour::openAndQuit()
{
    open("opaque.png");
    ScriptedUser::expect(isSame(whole(), colourful(m_size, false)), "a picture starts clean");
    m_user.showPage(QStringLiteral("Colour"));
    m_user.type(QStringLiteral("Opacity"), QStringLiteral("100\n"));
    const QImage washed = whole();

    m_user.answer(QMessageBox::Cancel, [this] { m_user.choose(QStringLiteral("Open…")); });
    ScriptedUser::expect(isSame(whole(), washed), "a change of mind leaves all as it is");
    m_user.answer(QMessageBox::Cancel, [this] { m_window.close(); });
    ScriptedUser::expect(m_window.isVisible(), "a window stays that is not to be closed");

    // A pending entry is not lost either.
    open("clear.png");
    ScriptedUser::expect(isSame(whole(), colourful(m_size, true)), "the next one starts clean");
    ScriptedUser::expect(!m_window.isWindowModified(), "there is nothing to save");
    m_user.type(QStringLiteral("Opacity"), QStringLiteral("50"));
    m_user.answer(QMessageBox::Save,
                  [this] { m_user.takeFile(path("saved.png"), [this] { m_window.close(); }); });
    ScriptedUser::expect(isSame(QImage(path("saved.png")), whole())
                             && !isSame(whole(), colourful(m_size, true)),
                         "what is being typed is saved, too");
    ScriptedUser::expect(!m_window.isVisible(), "what is saved can be closed");
    m_window.show();
    m_window.activateWindow();
}

void Tour::resetAll()
{
    open("opaque.png");
    m_user.showPage(QStringLiteral("Adjust"));
    m_user.type(QStringLiteral("Contrast"), QStringLiteral("40\n"));
    m_user.showPage(QStringLiteral("Mask"));
    m_user.type(QStringLiteral("Top"), QStringLiteral("20\n"));
    const QString top = QStringLiteral("Top");
    m_user.undoAndRedo(top, [this] { m_user.choose(QStringLiteral("Reset page")); });
    ScriptedUser::expect(!isSame(whole(), colourful(m_size, false)), "other pages keep theirs");
    m_user.showPage(QStringLiteral("Adjust"));
    m_user.undoAndRedo(QStringLiteral("Contrast"),
                       [this] { m_user.choose(QStringLiteral("Reset all")); });
    ScriptedUser::expect(isSame(whole(), colourful(m_size, false)), "all is as it was opened");

    const QString exposure = QStringLiteral("Exposure");
    m_user.type(exposure, QStringLiteral("2000\n"));
    ScriptedUser::expect(whole().pixel(10, 10) == qRgb(14, 14, 41), "more light is brighter");
    m_user.undoAndRedo(exposure, [this] { m_user.choose(QStringLiteral("Reset page")); });
    ScriptedUser::expect(isSame(whole(), colourful(m_size, false)), "the page is as it was");
}

void Tour::saveWhatIsShown()
{
    open("opaque.png");
    m_user.showPage(QStringLiteral("Mask"));
    m_user.type(QStringLiteral("Left"), QStringLiteral("17\n"));
    m_user.showPage(QStringLiteral("Layout"));
    m_user.type(QStringLiteral("Width"), QStringLiteral("131\n"));
    m_user.showPage(QStringLiteral("Crop"));
    m_user.type(QStringLiteral("Width"), QStringLiteral("100\n"));
    m_user.type(QStringLiteral("X"), QStringLiteral("195\n")); // through the layer
    m_user.showPage(QStringLiteral("Adjust"));
    m_user.type(QStringLiteral("Exposure"), QStringLiteral("700\n"));
    m_user.type(QStringLiteral("Contrast"), QStringLiteral("40\n"));
    m_user.type(QStringLiteral("Saturation"), QStringLiteral("1.5\n"));

    const QImage saved = save(QStringLiteral("Save picture…"), "picture.png");
    ScriptedUser::expect(saved.size() == m_size, "the picture is saved in its size");
    ScriptedUser::expect(isSame(saved, shown()), "the file has what the window shows");
    ScriptedUser::expect(saved.pixel(8, 100) == qRgb(0, 0, 0), "the mask is saved");
    ScriptedUser::expect(!m_window.isWindowModified(), "all is saved");
    const QImage crop = save(QStringLiteral("Save crop…"), "crop.png");
    ScriptedUser::expect(isSame(crop, saved.copy(195, 0, 100, m_size.height())),
                         "the crop is a part of the picture");
}

void Tour::keepTransparency()
{
    open("clear.png");
    m_user.showPage(QStringLiteral("Adjust"));
    const QImage clear = colourful(m_size, true);
    m_user.type(QStringLiteral("Continuous"), QStringLiteral("30\n"));
    const QImage saved = save(QStringLiteral("Save picture…"), "clear-saved.png");
    for (int x = 0; x < m_size.width(); ++x) {
        ScriptedUser::expect(qAlpha(saved.pixel(x, 50)) == qAlpha(clear.pixel(x, 50)),
                             "what is transparent stays so");
    }
    const QImage view = shown();
    ScriptedUser::expect(view.pixel(0, 0) == qRgb(255, 255, 255)
                             && view.pixel(8, 0) != view.pixel(0, 0),
                         "a checkerboard shows through");

    m_user.inDialog(
        [](QWidget *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            ScriptedUser::expect(files->nameFilters().at(1).contains(QLatin1String("white")),
                                 "the dialog says which formats have no transparency");
            files->reject();
            return true;
        },
        [this] { m_user.choose(QStringLiteral("Save picture…")); });
    QImage flat;
    m_user.answer(QMessageBox::Yes,
                  [&] { flat = save(QStringLiteral("Save picture…"), "clear.bmp"); });
    ScriptedUser::expect(flat.pixel(0, 0) == qRgb(255, 255, 255), "it becomes white there");
}

void Tour::dragInPicture()
{
    open("opaque.png");
    m_view->fit();
    const QString left = QStringLiteral("Left");
    const QString top = QStringLiteral("Top");
    m_user.showPage(QStringLiteral("Mask"));
    m_user.undoAndRedo(left, [&] { drag(0, 0.5, QPoint(60, 0)); });
    m_user.undoAndRedo(top, [&] { drag(0.5, 0, QPoint(0, 2000)); });
    ScriptedUser::expect(m_user.fieldText(top) == QLatin1String("199 px"),
                         "top and bottom meet at most");
    m_user.choose(QStringLiteral("Reset page"));
    drag(1, 0.5, QPoint(-40, 0));
    const int right = m_user.fieldNumber(QStringLiteral("Right"));
    m_user.undoAndRedo(QStringLiteral("Right"), [&] { User::press(Qt::Key_Left); });
    ScriptedUser::expect(m_user.fieldNumber(QStringLiteral("Right")) == right + 1,
                         "an arrow key moves the edge by a step");

    const QString x = QStringLiteral("X");
    const QString y = QStringLiteral("Y");
    const QString width = QStringLiteral("Width");
    m_user.showPage(QStringLiteral("Layout"));
    auto *isShown = m_window.currentScrollArea()->findChild<QCheckBox *>();
    m_user.undoAndRedo(x, [&] { drag(0.5, 0.5, QPoint(-50, -50)); });
    ScriptedUser::expect(isShown->isChecked(), "a layer that is dragged is shown");
    m_user.undoAndRedo(width, [&] { drag(1, 1, QPoint(60, 30)); });
    m_user.click("toolButtonLockSize");
    const QString locked = m_user.fieldText(width);
    m_user.undoAndRedo(x, [&] { drag(1, 1, QPoint(-8, -8)); });
    ScriptedUser::expect(m_user.fieldText(width) == locked, "a locked size stays");

    m_user.showPage(QStringLiteral("Crop"));
    drag(1, 1, QPoint(-200, -150));
    m_user.click("toolButtonLockPosition");
    m_user.undoAndRedo(x, [&] { drag(0.5, 0.5, QPoint(60, 20)); });
    ScriptedUser::expect(m_user.fieldText(x) == m_user.fieldText(y),
                         "a locked position moves along the diagonal");
    m_user.undoAndRedo(y, [&] { User::press(Qt::Key_Right); });
    m_user.click("toolButtonLockPosition");
    drag(0.5, 0.5, QPoint(2000, 2000));
    ScriptedUser::expect(m_user.fieldNumber(x) + m_user.fieldNumber(width) == m_size.width(),
                         "the crop stays in the picture");
}

void Tour::lookClosely()
{
    const auto isAt = [this](const QPoint &pos, const QPointF &pixel) {
        return (m_view->toPicture(pos) - pixel).manhattanLength() * m_view->scale() <= 2;
    };
    m_user.showPage(QStringLiteral("Adjust"));
    m_user.choose(QStringLiteral("Fit"));
    const double fitting = m_view->scale();
    const QPoint pos(90, 70);
    QPointF pixel = m_view->toPicture(pos);
    for (int i = 0; i < 3; ++i) {
        User::turnWheelAt(m_view, pos);
    }
    ScriptedUser::expect(m_view->scale() > 1.5 * fitting && isAt(pos, pixel),
                         "the wheel zooms in under the pointer");
    const QPoint middle = m_view->rect().center();
    pixel = m_view->toPicture(middle);
    m_user.drag(m_view, middle, middle + QPoint(50, 30));
    ScriptedUser::expect(isAt(middle + QPoint(50, 30), pixel), "the picture follows the pointer");
    m_user.choose(QStringLiteral("100 %"));
    ScriptedUser::expect(m_view->scale() == 1, "a pixel is a pixel");
    m_user.choose(QStringLiteral("Fit"));
    ScriptedUser::expect(m_view->scale() == fitting, "all of it is in the window again");
}

void Tour::makeRoom()
{
    const QSize size = m_window.size();
    m_window.resize(780, 480);
    QApplication::processEvents();
    ScriptedUser::expect(m_window.log()->height() < m_view->height() / 2,
                         "in a small window the log is small");
    m_user.choose(QStringLiteral("Signal log"));
    m_user.choose(QStringLiteral("Editors"));
    ScriptedUser::expect(m_view->size() == m_window.centralWidget()->size(),
                         "the picture has the whole window");
    m_user.choose(QStringLiteral("Signal log"));
    m_user.choose(QStringLiteral("Editors"));
    m_window.resize(size);

    m_user.showPage(QStringLiteral("Colour"));
    auto *swatch = m_window.findChild<QLabel *>(QStringLiteral("swatch"));
    ScriptedUser::expect(swatch->grab().toImage().pixel(20, 10) == qRgb(255, 140, 40),
                         "a swatch shows the colour of the wash");

    const QString contrast = QStringLiteral("Contrast");
    m_user.showPage(QStringLiteral("Adjust"));
    m_window.numberPad()->setEnabledByFocus(true);
    m_user.type(contrast, QStringLiteral("7*3"));
    m_user.click(m_window.log());
    ScriptedUser::expect(!m_window.numberPad()->isVisible(), "a click elsewhere closes the pad");
    ScriptedUser::expect(m_user.fieldText(contrast) == QLatin1String("21 %"),
                         "the entry counts by then");
    m_window.numberPad()->setEnabledByFocus(false);
}

} // namespace

void tourPictures(ScriptedUser &user)
{
    Tour tour(user);
    tour.openAndQuit();
    tour.resetAll();
    tour.saveWhatIsShown();
    tour.keepTransparency();
    tour.dragInPicture();
    tour.lookClosely();
    tour.makeRoom();
}
