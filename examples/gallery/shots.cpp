#include "shots.h"

#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "scripteduser.h"

#include <cropeditframe.h>
#include <layouteditframe.h>
#include <maskeditframe.h>
#include <rgballeditframe.h>
#include <rgbeditframe.h>
#include <rgbopacityeditframe.h>
#include <slidereditframe.h>
#include <slidereditframedouble.h>

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>
#include <functional>
#include <type_traits>

using namespace Vantor::Widgets;

namespace {

const int labelWidth = 80;

template <typename Row> QWidget *makeRow(const QString &label)
{
    auto *row = new Row;
    row->setLabelText(label);
    row->setLabelFixedWidth(labelWidth);
    row->setHorizontalSpacing(12, 8);
    return row;
}

template <typename Editor>
Editor *makeComposite(std::initializer_list<std::pair<typename Editor::Type, const char *>> rows)
{
    auto *editor = new Editor;
    for (const auto &row : rows) {
        editor->setLabelText(row.first, QLatin1String(row.second));
        editor->setLabelFixedWidth(row.first, labelWidth);
    }
    editor->setHorizontalSpacing(12, 8);
    editor->setVerticalSpacing(std::is_base_of_v<RectEditFrame, Editor> ? 4 : 0);
    editor->setLastVerticalSpacerExpanding(false);
    return editor;
}

// An editor of each class with the least that a host would set.
QWidget *makeEditor(const QString &name)
{
    using Rgb = RGBEditFrame;
    using All = RGBAllEditFrame;
    using Opacity = RGBOpacityEditFrame;
    using Rect = RectEditFrame;
    const std::initializer_list<std::pair<Rect::Type, const char *>> fields = {
        {Rect::X, "X"}, {Rect::Y, "Y"}, {Rect::Width, "Width"}, {Rect::Height, "Height"}};

    const QHash<QString, std::function<QWidget *()>> makers = {
        {QStringLiteral("sliderEditFrame"),
         [] {
             QWidget *row = makeRow<SliderEditFrame>(QStringLiteral("Contrast"));
             static_cast<SliderEditFrame *>(row)->setValue(36);
             return row;
         }},
        {QStringLiteral("sliderEditFrameDouble"),
         [] {
             QWidget *row = makeRow<SliderEditFrameDouble>(QStringLiteral("Gamma"));
             static_cast<SliderEditFrameDouble *>(row)->setRange(0, 4);
             static_cast<SliderEditFrameDouble *>(row)->setValue(1.25);
             return row;
         }},
        {QStringLiteral("rgbEditFrame"),
         [] {
             return makeComposite<Rgb>({{Rgb::R, "Red"}, {Rgb::G, "Green"}, {Rgb::B, "Blue"}});
         }},
        {QStringLiteral("rgbAllEditFrame"),
         [] {
             return makeComposite<All>(
                 {{All::R, "Red"}, {All::G, "Green"}, {All::B, "Blue"}, {All::ALL, "Master"}});
         }},
        {QStringLiteral("rgbOpacityEditFrame"),
         [] {
             return makeComposite<Opacity>({{Opacity::R, "Red"},
                                            {Opacity::G, "Green"},
                                            {Opacity::B, "Blue"},
                                            {Opacity::Opacity, "Opacity"}});
         }},
        {QStringLiteral("rectEditFrame"), [fields] { return makeComposite<Rect>(fields); }},
        {QStringLiteral("cropEditFrame"),
         [fields] {
             auto *editor = makeComposite<CropEditFrame>(fields);
             editor->setPositionLockEnable(true);
             editor->setSizeLockEnable(true, Rect::SizeScaleLock);
             editor->setCropRange(1920, 1080);
             editor->setCropValue(384, 216, 960, 540);
             editor->setSizeLock(true);
             return editor;
         }},
        {QStringLiteral("maskEditFrame"),
         [] {
             auto *editor = makeComposite<MaskEditFrame>({{Rect::X, "Top"},
                                                          {Rect::Y, "Bottom"},
                                                          {Rect::Width, "Left"},
                                                          {Rect::Height, "Right"}});
             editor->setMaskRange(1920, 1080);
             editor->setMaskValue(60, 60, 240, 240);
             return editor;
         }},
        {QStringLiteral("layoutEditFrame"),
         [fields] {
             auto *editor = makeComposite<LayoutEditFrame>(fields);
             editor->setSizeLockEnable(true, Rect::OffsetLock);
             return editor;
         }},
    };
    return makers.value(name)();
}

class Camera
{
public:
    Camera(MainWindow &window, const QString &folder) : m_window(window), m_folder(folder) { }

    bool save(const QPixmap &picture, const QString &name)
    {
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (!picture.save(path)) {
            std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
            return false;
        }
        return true;
    }

    // A step up and down on each page, so that its picture has signals in the log.
    bool shootPages(const QString &suffix)
    {
        bool ok = true;
        ScriptedUser user(m_window);
        for (const Page *page : m_window.pages()) {
            user.showPage(page->title());
            QWidget *plus = page->findChild<QWidget *>(QStringLiteral("sliderEditPlus"));
            user.click(plus);
            user.click(page->findChild<QWidget *>(QStringLiteral("sliderEditSubtract")));
            plus->setFocus();
            plus->clearFocus();
            user.moveAway();
            QApplication::processEvents();
            ok &= save(m_window.grab(), page->title().toLower() + suffix);
        }
        return ok;
    }

    bool shootEditors(const QString &suffix)
    {
        bool ok = true;
        for (const char *name : {"sliderEditFrame", "sliderEditFrameDouble", "rgbEditFrame",
                                 "rgbAllEditFrame", "rgbOpacityEditFrame", "rectEditFrame",
                                 "cropEditFrame", "maskEditFrame", "layoutEditFrame"}) {
            QWidget host;
            auto *layout = new QVBoxLayout(&host);
            layout->addWidget(makeEditor(QLatin1String(name)));
            m_window.theme()->adopt(&host);
            host.resize(560, 10);
            host.show();
            QApplication::processEvents();
            ok &= save(host.grab(), QStringLiteral("editor-") + QLatin1String(name) + suffix);
        }
        return ok;
    }

    // The pad is a window of its own: it is laid over the picture of the main
    // window where it stands on the screen.
    bool shootNumberPad(const QString &suffix)
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
        return save(whole, QStringLiteral("numberpad") + suffix)
            && save(pad, QStringLiteral("numberpad-alone") + suffix);
    }

private:
    MainWindow &m_window;
    const QDir m_folder;
};

} // namespace

bool takeShots(MainWindow &window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s cannot be made.\n", qPrintable(folder));
        return false;
    }
    ScriptedUser user(window);
    user.showPage(QStringLiteral("Adjust"));
    user.type(QStringLiteral("Saturation"), QStringLiteral("6/5="));
    user.showPage(QStringLiteral("Crop"));
    user.type(QStringLiteral("Width"), QStringLiteral("12*75\n"));

    Camera camera(window, folder);
    bool ok = true;
    const auto names = Theme::names();
    for (int i = 0; i < names.size(); ++i) {
        const QString suffix = QLatin1Char('-') + names.at(i).file;
        window.theme()->apply(static_cast<Theme::Kind>(i));
        ok &= camera.shootPages(suffix);
        ok &= camera.shootEditors(suffix);
        ok &= camera.shootNumberPad(suffix);
        window.theme()->setFontScale(1.5);
        ok &= camera.shootPages(suffix + QStringLiteral("-font150"));
        window.theme()->setFontScale(1.0);
        window.theme()->setRightToLeft(true);
        ok &= camera.shootPages(suffix + QStringLiteral("-rtl"));
        window.theme()->setRightToLeft(false);
    }
    return ok;
}
