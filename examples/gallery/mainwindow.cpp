#include "mainwindow.h"

#include "adjustpage.h"
#include "colourpage.h"
#include "croppage.h"
#include "edithistory.h"
#include "layoutpage.h"
#include "logpane.h"
#include "maskpage.h"
#include "numberpad.h"
#include "pagescroller.h"
#include "picturefile.h"
#include "pictureview.h"
#include "testcard.h"

#include <slidereditframe.h>
#include <slidereditframedouble.h>

#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>

#include <QActionGroup> // of QtWidgets or, with Qt 6, of QtGui

#include <utility>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

namespace {

// A shortcut does not move the focus, so an entry may be pending.
void finishEntries(const QWidget *window)
{
    for (SliderEditFrame *row : window->findChildren<SliderEditFrame *>()) {
        row->finishEntry();
    }
    for (SliderEditFrameDouble *row : window->findChildren<SliderEditFrameDouble *>()) {
        row->finishEntry();
    }
}

QAction *addChoice(QMenu *menu, const QString &text, bool checked)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
    return action;
}

} // namespace

MainWindow::MainWindow()
    : m_history(new EditHistory(this)), m_view(new PictureView), m_log(new LogPane),
      m_halves(new QSplitter), m_stack(new QStackedWidget), m_pageButtons(new QButtonGroup(this)),
      m_numberPad(new NumberPad(this)), m_theme(new Theme(this))
{
    auto *pageBar = new QWidget;
    pageBar->setObjectName(QStringLiteral("pageBar"));
    auto *barLayout = new QHBoxLayout(pageBar);
    barLayout->setContentsMargins(0, 0, 0, 0);
    barLayout->setSpacing(0);

    auto *panel = new QWidget;
    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    panelLayout->addWidget(pageBar);
    panelLayout->addWidget(m_stack);

    connect(m_history, &EditHistory::changed, m_view, &PictureView::setEdits);
    m_history->watch(m_view);
    connect(m_history->stack(), &QUndoStack::cleanChanged, this,
            [this](bool isClean) { setWindowModified(!isClean); });
    createPages();
    for (int i = 0; i < m_pages.size(); ++i) {
        auto *button = new QPushButton(m_pages.at(i)->title());
        button->setCheckable(true);
        barLayout->addWidget(button);
        m_pageButtons->addButton(button, i);
        // A screen reader toggles it instead of clicking it.
        connect(button, &QPushButton::toggled, this, [this, i](bool isChecked) {
            if (isChecked) {
                showPage(i);
            }
        });
    }

    auto *left = new QSplitter(Qt::Vertical);
    left->addWidget(m_view);
    left->addWidget(m_log);
    left->setSizes({600, 200}); // in this proportion in a small window, too
    left->setChildrenCollapsible(false);

    m_halves->addWidget(left);
    m_halves->addWidget(panel);
    m_halves->setStretchFactor(0, 1);
    m_halves->setChildrenCollapsible(false);
    setCentralWidget(m_halves);

    createFileAndEditMenus();
    createViewMenu(panel);
    resize(1280, 800);
    showPage(0);
    setPicture(testCard(), tr("Test card"));
    m_theme->adopt(this);
    m_theme->apply(Theme::TouchDark);
}

// A panel may have neither a window manager nor room for the usual size.
void MainWindow::showOnScreen()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    if (available.width() > width() && available.height() > height()) {
        show();
        return;
    }
    fill(available);
    showMaximized();
    activateWindow(); // in place of a window manager
}

void MainWindow::fill(const QRect &screen)
{
    setGeometry(screen); // as far as the minimum size of the old arrangement allows
    arrange(screen.size());
    layout()->activate();
    setGeometry(screen);
}

// On an upright screen the pages are below the picture. No page makes the window wider.
void MainWindow::arrange(const QSize &window)
{
    const bool isUpright = window.height() > window.width();
    m_halves->setOrientation(isUpright ? Qt::Vertical : Qt::Horizontal);
    const int beside = isUpright ? 0 : m_view->minimumWidth() + m_halves->handleWidth();
    for (PageScroller *page : m_stack->findChildren<PageScroller *>()) {
        page->setWidthLimit(window.width() - beside);
    }
}

bool MainWindow::openPicture(const QString &fileName, QString *problem)
{
    const QImage picture = PictureFile::read(fileName, m_log, problem);
    if (picture.isNull()) {
        return false;
    }
    setPicture(picture, QFileInfo(fileName).fileName());
    return true;
}

void MainWindow::showPage(int index)
{
    m_pageButtons->button(index)->setChecked(true);
    m_stack->setCurrentIndex(index);
    const Page *page = m_pages.at(index);
    m_view->setOverlay(page->overlay(), page->rules(m_view->pictureSize()));
}

QScrollArea *MainWindow::currentScrollArea() const
{
    return qobject_cast<QScrollArea *>(m_stack->currentWidget());
}

void MainWindow::createPages()
{
    m_pages = {new AdjustPage(m_history, m_log), new CropPage(m_view, m_history, m_log),
               new MaskPage(m_view, m_history, m_log), new LayoutPage(m_view, m_history, m_log),
               new ColourPage(m_history, m_log)};
    for (Page *page : std::as_const(m_pages)) {
        m_stack->addWidget(new PageScroller(page));
    }
}

void MainWindow::createFileAndEditMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), this, &MainWindow::chooseAndOpen)
        ->setShortcut(QKeySequence::Open);
    file->addAction(tr("&Save picture…"), this, &MainWindow::savePicture)
        ->setShortcut(QKeySequence::Save);
    file->addAction(tr("Save &crop…"), this, &MainWindow::saveCrop)
        ->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(QKeySequence::Quit);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = m_history->stack()->createUndoAction(this, tr("&Undo"));
    undo->setShortcuts(QKeySequence::Undo);
    QAction *redo = m_history->stack()->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(QKeySequence::Redo);
    edit->addActions({undo, redo});
    edit->addSeparator();
    edit->addAction(tr("Reset &page"), this, [this] {
        Page *page = m_pages.at(m_stack->currentIndex());
        reset({page}, tr("Reset %1").arg(page->title()));
    });
    edit->addAction(tr("Reset &all"), this, [this] { reset(m_pages, tr("Reset all")); });
}

void MainWindow::createViewMenu(QWidget *panel)
{
    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("&Fit"), m_view, &PictureView::fit)
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+0")));
    view->addAction(tr("&100 %"), this, [this] { m_view->setScale(1); })
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+1")));
    view->addAction(tr("Zoom &in"), this, [this] { m_view->setScale(m_view->scale() * 2); })
        ->setShortcut(QKeySequence::ZoomIn);
    view->addAction(tr("Zoom &out"), this, [this] { m_view->setScale(m_view->scale() / 2); })
        ->setShortcut(QKeySequence::ZoomOut);
    view->addSeparator();
    QAction *editors = addChoice(view, tr("&Editors"), true);
    editors->setShortcut(Qt::Key_F8);
    connect(editors, &QAction::toggled, panel, &QWidget::setVisible);
    QAction *log = addChoice(view, tr("Signal &log"), true);
    log->setShortcut(Qt::Key_F9);
    connect(log, &QAction::toggled, m_log, &QWidget::setVisible);
    view->addSeparator();

    QMenu *themes = view->addMenu(tr("&Theme"));
    auto *themeGroup = new QActionGroup(this);
    const auto names = Theme::names();
    for (int i = 0; i < names.size(); ++i) {
        QAction *action = addChoice(themes, names.at(i).text, i == Theme::TouchDark);
        themeGroup->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, i] { m_theme->apply(static_cast<Theme::Kind>(i)); });
    }

    QMenu *scales = view->addMenu(tr("&Font scale"));
    auto *scaleGroup = new QActionGroup(this);
    for (const qreal scale : {1.0, 1.25, 1.5}) {
        QAction *action =
            addChoice(scales, QLocale().toString(scale, 'f', 2), qFuzzyCompare(scale, 1.0));
        scaleGroup->addAction(action);
        connect(action, &QAction::triggered, this, [this, scale] { m_theme->setFontScale(scale); });
    }

    connect(addChoice(view, tr("&Right to left"), false), &QAction::toggled, m_theme,
            &Theme::setRightToLeft);
    connect(addChoice(view, tr("Number &pad"), false), &QAction::toggled, m_numberPad,
            &NumberPad::setEnabledByFocus);
    createEntryMenu(view->addMenu(tr("E&ntries")));
    createSliderMenu(view->addMenu(tr("&Sliders")));
}

// Each option applies to all rows of all pages.
void MainWindow::createEntryMenu(QMenu *menu)
{
    using namespace Vantor::Widgets;
    const auto addOption = [this, menu](const QString &text, EntryOption option) {
        QAction *action = addChoice(menu, text, false);
        connect(action, &QAction::toggled, this, [this, option](bool on) {
            m_entryOptions.setFlag(option, on);
            for (Page *page : std::as_const(m_pages)) {
                Q_EMIT page->entryOptionsChanged(m_entryOptions);
            }
        });
        return action;
    };
    addOption(tr("&Exact results"), ExactEntry)->setChecked(true); // for rows with three decimals
    addOption(tr("Decimal &comma"), DecimalComma);
    addOption(tr("E&scape restores the value"), EscapeRestores)->setChecked(true);
    addOption(tr("Enter s&tays in the field"), EnterStays);
    addOption(tr("Signs of &any keyboard"), AnyKeyboard);
    addOption(tr("&Ignore accidents"), SafeEntry)->setChecked(true);
}

// Likewise.
void MainWindow::createSliderMenu(QMenu *menu)
{
    using namespace Vantor::Widgets;
    const auto addOption = [this, menu](const QString &text, SliderOption option) {
        QAction *action = addChoice(menu, text, false);
        connect(action, &QAction::toggled, this, [this, option](bool on) {
            m_sliderOptions.setFlag(option, on);
            for (SliderEditFrame *row : findChildren<SliderEditFrame *>()) {
                row->setSliderOptions(m_sliderOptions);
            }
            for (SliderEditFrameDouble *row : findChildren<SliderEditFrameDouble *>()) {
                row->setSliderOptions(m_sliderOptions);
            }
        });
        action->setChecked(true);
    };
    addOption(tr("&Groove moves the handle"), GrooveMovesHandle);
    addOption(tr("&Fine drag above and below"), FineDrag);
    addOption(tr("A flick &scrolls the page"), FlickScrolls);
}

void MainWindow::setPicture(const QImage &picture, const QString &name)
{
    m_view->setPicture(picture);
    Edits edits;
    for (Page *page : std::as_const(m_pages)) {
        page->startOn(picture.size());
        page->clear(edits, picture.size());
    }
    m_history->reset(edits);
    showPage(m_stack->currentIndex()); // with the rules for this picture
    setWindowTitle(
        tr("%1[*] (%2 × %3) — Gallery").arg(name).arg(picture.width()).arg(picture.height()));
}

void MainWindow::reset(const QVector<Page *> &pages, const QString &name)
{
    Edits edits = m_history->edits();
    for (const Page *page : pages) {
        page->clear(edits, m_view->pictureSize());
    }
    m_history->change(name, edits);
}

void MainWindow::chooseAndOpen()
{
    if (!mayLoseEdits()) {
        return;
    }
    const QString fileName = PictureFile::askForOpen(this);
    if (fileName.isEmpty()) {
        return;
    }
    QString problem;
    openPicture(fileName, &problem);
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, tr("Open"), problem);
    }
}

bool MainWindow::chooseAndSave(const QRect &part, const QString &title, const QString &name)
{
    const QString fileName = PictureFile::askForSave(this, title, name, m_view->hasAlpha());
    if (fileName.isEmpty()) {
        return false;
    }
    QString problem;
    if (!PictureFile::write(m_view->painted(part), fileName, &problem)) {
        QMessageBox::critical(this, title, problem);
        return false;
    }
    m_history->stack()->setClean();
    return true;
}

bool MainWindow::savePicture()
{
    finishEntries(this);
    return chooseAndSave(QRect(QPoint(), m_view->pictureSize()), tr("Save picture"), tr("picture"));
}

bool MainWindow::saveCrop()
{
    finishEntries(this);
    return chooseAndSave(m_history->edits().crop, tr("Save crop"), tr("crop"));
}

bool MainWindow::mayLoseEdits()
{
    finishEntries(this);
    if (m_history->stack()->isClean()) {
        return true;
    }
    const auto answer = QMessageBox::question(
        this, tr("Picture"), tr("The picture has changes that are not saved. Save them?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && savePicture());
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    arrange(event->size());
    QMainWindow::resizeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLoseEdits());
}
