#include "shots.h"

#include "logpane.h"
#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "scripteduser.h"

#include <recteditframe.h>

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>

namespace {

// "editor-rgbEditFrame" for a Vantor::Widgets::RGBEditFrame
QString editorName(const QWidget &editor)
{
    const QString name =
        QString::fromLatin1(editor.metaObject()->className()).section(QStringLiteral("::"), -1);
    const int capitals = name.startsWith(QLatin1String("RGB")) ? 3 : 1;
    return QStringLiteral("editor-") + name.left(capitals).toLower() + name.mid(capitals);
}

class Camera
{
public:
    Camera(MainWindow &window, const QString &folder) : m_window(window), m_folder(folder) { }

    bool isOk() const { return m_isOk; }

    // A step up and down on each page, so that its picture shows signals in the log.
    void shootPages(const QString &suffix)
    {
        ScriptedUser user(m_window);
        for (const Page *page : m_window.pages()) {
            open(user, page->title());
            QWidget *plus = page->findChild<QWidget *>(QStringLiteral("sliderEditPlus"));
            user.click(plus);
            user.click(page->findChild<QWidget *>(QStringLiteral("sliderEditSubtract")));
            plus->setFocus();
            plus->clearFocus();
            user.moveAway();
            QApplication::processEvents();
            save(m_window.grab(), page->title().toLower() + suffix);
            leave(user, page->title());
        }
    }

    // One picture of each editor class, as it is on its page.
    void shootEditors(const QString &suffix)
    {
        QStringList names;
        ScriptedUser user(m_window);
        for (Page *page : m_window.pages()) {
            open(user, page->title());
            user.moveAway();
            const auto frames = page->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
            for (const QFrame *frame : frames) {
                const QString name = editorName(*frame);
                if (frame->property("isSliderFrame").toBool() && !names.contains(name)) {
                    names.append(name);
                    save(page->grab(frame->geometry()), name + suffix);
                }
            }
            leave(user, page->title());
        }
        shootRectEditor(suffix);
    }

    // A row whose field shows that it has refused the entry.
    void shootRefusedEntry(const QString &suffix)
    {
        const QString row = QStringLiteral("Contrast");
        m_window.activateWindow();
        ScriptedUser user(m_window);
        user.showPage(QStringLiteral("Adjust"));
        user.type(row, QStringLiteral("1/0\n"));
        user.moveAway();
        save(user.row(row)->grab(), QStringLiteral("entry-refused") + suffix);
        user.type(row, QStringLiteral("0\n"));
    }

    // The pad is a separate window: it is drawn over the picture of the main
    // window at its place on the screen.
    void shootNumberPad(const QString &suffix)
    {
        m_window.showPage(0);
        m_window.activateWindow();
        m_window.numberPad()->setEnabledByFocus(true);
        ScriptedUser(m_window).clickInto(QStringLiteral("Contrast"));
        QPixmap whole = m_window.grab();
        const QPixmap pad = m_window.numberPad()->grab();
        QPainter(&whole).drawPixmap(m_window.numberPad()->pos() - m_window.mapToGlobal(QPoint()),
                                    pad);
        m_window.numberPad()->setEnabledByFocus(false);
        save(whole, QStringLiteral("numberpad") + suffix);
        save(pad, QStringLiteral("numberpad-alone") + suffix);
    }

    // The first page on a panel's screen.
    void shootPanel(const QSize &screen)
    {
        m_window.fill(QRect(m_window.pos(), screen));
        m_window.showPage(0);
        QApplication::processEvents();
        save(m_window.grab(),
             QStringLiteral("panel-%1x%2").arg(screen.width()).arg(screen.height()));
    }

private:
    static void open(ScriptedUser &user, const QString &page)
    {
        user.showPage(page);
        if (page == QLatin1String("Mask")) {
            for (const char *row : {"Top", "Bottom", "Left", "Right"}) {
                user.type(QLatin1String(row), QStringLiteral("120\n"));
            }
            user.view()->setFocus(); // and no row is drawn with the focus
        }
    }

    // On the other pages the picture has neither mask nor layer.
    static void leave(ScriptedUser &user, const QString &page)
    {
        if (page == QLatin1String("Mask") || page == QLatin1String("Layout")) {
            user.choose(QStringLiteral("Reset page"));
        }
    }

    // The base class of three editors is on no page.
    void shootRectEditor(const QString &suffix)
    {
        using Rect = Vantor::Widgets::RectEditFrame;
        QWidget host;
        auto *editor = new Rect;
        editor->setHorizontalSpacing(12, 8);
        for (const auto &field :
             {std::make_pair(Rect::X, "X"), std::make_pair(Rect::Y, "Y"),
              std::make_pair(Rect::Width, "Width"), std::make_pair(Rect::Height, "Height")}) {
            editor->setLabelText(field.first, QLatin1String(field.second));
            editor->setLabelFixedWidth(field.first, 90);
        }
        editor->setValue(12, 24, 64, 48);
        editor->setVerticalSpacing(8);
        editor->setLastVerticalSpacerExpanding(false);
        (new QVBoxLayout(&host))->addWidget(editor);
        m_window.theme()->adopt(&host);
        host.resize(560, 10);
        host.show();
        QApplication::processEvents();
        save(host.grab(editor->geometry()), editorName(*editor) + suffix);
    }

    void save(const QPixmap &picture, const QString &name)
    {
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (!picture.save(path)) {
            std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
            m_isOk = false;
        }
    }

    MainWindow &m_window;
    const QDir m_folder;
    bool m_isOk = true;
};

} // namespace

bool takeShots(MainWindow &window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s cannot be made.\n", qPrintable(folder));
        return false;
    }
    window.log()->stopClock(QTime(12, 0));
    ScriptedUser user(window);
    user.showPage(QStringLiteral("Adjust"));
    user.type(QStringLiteral("Saturation"), QStringLiteral("6/5="));
    user.showPage(QStringLiteral("Crop"));
    user.type(QStringLiteral("Width"), QStringLiteral("12*75\n"));
    user.type(QStringLiteral("Height"), QStringLiteral("540\n"));
    user.type(QStringLiteral("X"), QStringLiteral("384\n"));
    user.type(QStringLiteral("Y"), QStringLiteral("216\n"));
    user.click("toolButtonLockPosition");

    Camera camera(window, folder);
    const QSize size = window.size();
    const auto names = Theme::names();
    for (int i = 0; i < names.size(); ++i) {
        const QString suffix = QLatin1Char('-') + names.at(i).file;
        window.theme()->apply(static_cast<Theme::Kind>(i));
        camera.shootPages(suffix);
        camera.shootEditors(suffix);
        camera.shootRefusedEntry(suffix);
        camera.shootNumberPad(suffix);
        window.resize(780, 480);
        camera.shootPages(suffix + QStringLiteral("-small"));
        window.resize(size);
        window.theme()->setFontScale(1.5);
        camera.shootPages(suffix + QStringLiteral("-font150"));
        window.theme()->setFontScale(1.0);
        window.theme()->setRightToLeft(true);
        camera.shootPages(suffix + QStringLiteral("-rtl"));
        window.theme()->setRightToLeft(false);
    }
    window.theme()->apply(Theme::TouchDark);
    for (const QSize screen : {QSize(1024, 600), QSize(800, 480)}) {
        camera.shootPanel(screen);
        camera.shootPanel(screen.transposed());
    }
    return camera.isOk();
}
