#include "alignfields.h"
#include "alignlabels.h"
#include "applytheme.h"
#include "editoruser.h"

using namespace Vantor::Widgets;

// A theme that is applied by one call looks like the sheet of its file, set for the state that the
// host is in, whatever the host changes before or after the call.
class tst_ApplyTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingGlyphs();
    void looks_data();
    void looks() { runTestCode(); }
    void deletedWindow();
    void removedByItsWindow();
    void cleanup();

private:
    const QFont m_font = QApplication::font();
    const QPalette m_palette = QApplication::palette();
};

namespace {

struct Panel
{
    Panel()
    {
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *editor :
             QList<QWidget *> {new SliderEditFrame, new SliderEditFrameDouble, new RectEditFrame})
            layout->addWidget(editor);
        layout->addWidget(new QLabel("Host"));
        window.setFocusPolicy(Qt::StrongFocus);
        window.findChild<RectEditFrame *>()->setPositionLockEnable(true);
        window.findChild<SliderEditFrame *>()->setSpinBoxFixedWidth(90);
        window.findChild<SliderEditFrame *>()->setLabelText("Gain");
        alignLabels(&window);
        alignFields(&window);
    }

    QImage picture()
    {
        [&] { QVERIFY(User::show(window)); }();
        settle();
        window.setFocus();
        window.resize(600, window.sizeHint().height());
        return pictureOf(&window);
    }

    QWidget window;
};

// What is themed, and what has font and direction: the window, or the application if it is null.
struct Target
{
    void apply(EditorTheme theme) const
    {
        window != nullptr ? applyTheme(window, theme) : applyTheme(qApp, theme);
    }
    QString sheet() const { return window != nullptr ? window->styleSheet() : qApp->styleSheet(); }
    void setSheet(const QString &sheet) const
    {
        window != nullptr ? window->setStyleSheet(sheet) : qApp->setStyleSheet(sheet);
    }
    QWidget *window;
    QWidget *surroundings;
};

using Change = std::function<void(const Target &)>;

QString sheetOf(EditorTheme theme)
{
    const char *const names[] = {"", "desktop", "touch-light", "touch-dark"};
    QString sheet = theme == EditorTheme::NoTheme ? QString() : themeSheet(names[int(theme)]);
    if (QApplication::isRightToLeft() && theme != EditorTheme::Desktop)
        sheet.replace("sub-page", "other")
            .replace("add-page", "sub-page")
            .replace("other", "add-page");
    return sheet;
}

// The call before or after the change, before or after the window is shown.
void compareWithFile(EditorTheme first, EditorTheme last, bool isOfWindow, const Change &change)
{
    // Or the window would not pass its font on to its children.
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, isOfWindow);
    QList<QImage> pictures;
    for (const QString steps : {"apply change show", "show apply change", "change show apply"}) {
        Panel panel;
        QWidget *const window = isOfWindow ? &panel.window : nullptr;
        const Target target {window, window};
        for (const QString &step : steps.split(' ')) {
            if (step == "apply")
                target.apply(first);
            else if (step == "show")
                panel.picture();
            else
                change(target);
        }
        if (last != first)
            target.apply(last);
        pictures.append(panel.picture());
        applyTheme(qApp, EditorTheme::NoTheme);
        qApp->setStyleSheet(QString());
    }
    Panel panel;
    panel.window.ensurePolished();
    const Target target {isOfWindow ? &panel.window : nullptr, nullptr};
    change(target);
    const QString rules = target.sheet().startsWith("file:")
        ? contentOf(DATA_DIR "/hostrules.qss").replace("../..", DATA_DIR "/../..")
        : target.sheet();
    target.setSheet(sheetOf(last) + rules);
    const QImage expected = panel.picture();
    for (const QImage &picture : pictures)
        QCOMPARE(picture, expected);
}

} // namespace

void tst_ApplyTheme::cleanup()
{
    applyTheme(qApp, EditorTheme::NoTheme);
    qApp->setStyleSheet(QString());
    QApplication::setFont(m_font);
    QApplication::setPalette(m_palette);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

// The first function: later the plug-in is loaded.
void tst_ApplyTheme::missingGlyphs()
{
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    EventLog log;
    for (const auto theme : {EditorTheme::Desktop, EditorTheme::TouchDark, EditorTheme::TouchLight})
        applyTheme(qApp, theme);
    QCOMPARE(log.take(),
             QStringList("warning: Qt's SVG plug-in is missing: the theme shows no glyphs."));
    QCoreApplication::setLibraryPaths(paths);
    applyTheme(static_cast<QApplication *>(nullptr), EditorTheme::Desktop);
    applyTheme(static_cast<QWidget *>(nullptr), EditorTheme::Desktop);
}

void tst_ApplyTheme::looks_data()
{
    QTest::addColumn<TestCode>("code");
    using Theme = EditorTheme;
    const auto add = [](const QString &name, Theme first, Theme last, const Change &change) {
        for (const bool isOfWindow : {false, true}) {
            QTest::addRow("%s, %d to %d, %s", qPrintable(name), int(first), int(last),
                          isOfWindow ? "window" : "application")
                << TestCode([=] { compareWithFile(first, last, isOfWindow, change); });
        }
    };
    const auto nothing = [](const Target &) {};
    add("nothing", Theme::TouchLight, Theme::TouchLight, nothing);
    for (const Theme theme : {Theme::Desktop, Theme::TouchDark}) {
        add("nothing", theme, theme, nothing);
        add("font", theme, theme, [](const Target &target) {
            QFont font = QApplication::font();
            font.setPointSize(13);
            target.surroundings ? target.surroundings->setFont(font) : QApplication::setFont(font);
        });
        add("palette", theme, theme, [](const Target &) {
            QPalette palette(Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::darkGray, Qt::white,
                             Qt::black);
            palette.setColor(QPalette::Highlight, Qt::red);
            QApplication::setPalette(palette);
        });
        add("direction", theme, theme, [](const Target &target) {
            QObject *const surroundings = target.surroundings;
            (surroundings ? surroundings : qApp)->setProperty("layoutDirection", Qt::RightToLeft);
        });
        add("rules", theme, theme, [](const Target &target) {
            target.setSheet("QFrame[isSliderFrame=\"true\"] #spinBox { background: yellow; }"
                            "QLabel { color: blue; }");
        });
        add("rules added", theme, theme, [](const Target &target) {
            target.setSheet(target.sheet() + "QWidget { color: blue; }");
        });
        add("rules before and after, another", theme, Theme(int(theme) % 3 + 1),
            [](const Target &target) {
                target.setSheet("QFrame { margin: 3px; }" + target.sheet()
                                + "QWidget { color: blue; }");
            });
        add("rules of a file", theme, theme,
            [](const Target &target) { target.setSheet("file:///" DATA_DIR "/hostrules.qss"); });
        add("another", theme, Theme(int(theme) % 3 + 1), nothing);
        add("removed", theme, Theme::NoTheme, nothing);
        add("removed, with rules", theme, Theme::NoTheme, [](const Target &target) {
            target.setSheet(target.sheet() + "#spinBox { min-width: 120px; max-width: 120px; }");
        });
    }
}

// By a part of a window that is being destroyed, some of whose editors are already deleted.
void tst_ApplyTheme::removedByItsWindow()
{
    Panel other;
    auto *panel = new Panel;
    applyTheme(qApp, EditorTheme::Desktop);
    auto *const part = new QObject(&panel->window);
    connect(part, &QObject::destroyed, qApp, [] { applyTheme(qApp, EditorTheme::NoTheme); });
    panel->picture();
    delete panel;
    QCOMPARE(other.picture(), Panel().picture());
}

// With a change that is not yet applied.
void tst_ApplyTheme::deletedWindow()
{
    auto *panel = new Panel;
    applyTheme(qApp, EditorTheme::TouchDark);
    applyTheme(&panel->window, EditorTheme::TouchDark);
    panel->picture();
    panel->window.setStyleSheet("QLabel { color: blue; }");
    delete panel;
    QCoreApplication::processEvents();
    qApp->setStyleSheet(QString());
    QCOMPARE(qApp->styleSheet(), QString());
    Panel next; // polishes its widgets, and so restores the theme
    next.picture();
    QVERIFY(!qApp->styleSheet().isEmpty());
}

QTEST_MAIN(tst_ApplyTheme)

#include "tst_applytheme.moc"
