#include "mainwindow.h"

#include "adjustpage.h"
#include "colourpage.h"
#include "croppage.h"
#include "layoutpage.h"
#include "logpane.h"
#include "maskpage.h"
#include "numberpad.h"
#include "pagescroller.h"
#include "pictureview.h"
#include "testcard.h"

#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>

MainWindow::MainWindow()
    : m_view(new PictureView), m_log(new LogPane), m_stack(new QStackedWidget),
      m_pageButtons(new QButtonGroup(this)), m_numberPad(new NumberPad(this)),
      m_theme(new Theme(this))
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

    createPages();
    for (int i = 0; i < m_pages.size(); ++i) {
        auto *button = new QPushButton(m_pages.at(i)->title());
        button->setCheckable(true);
        barLayout->addWidget(button);
        m_pageButtons->addButton(button, i);
        connect(button, &QPushButton::clicked, this, [this, i] { showPage(i); });
    }

    auto *left = new QSplitter(Qt::Vertical);
    left->addWidget(m_view);
    left->addWidget(m_log);
    left->setStretchFactor(0, 1);
    left->setSizes({480, 280});
    left->setChildrenCollapsible(false);

    auto *halves = new QSplitter;
    halves->addWidget(left);
    halves->addWidget(panel);
    halves->setStretchFactor(0, 1);
    halves->setChildrenCollapsible(false);
    setCentralWidget(halves);

    createMenus();
    resize(1280, 800);
    showPage(0);
    setPicture(testCard(), tr("Test card"));
    m_theme->adopt(this);
    m_theme->apply(Theme::TouchDark);
}

QString MainWindow::openPicture(const QString &fileName)
{
    QImageReader reader(fileName);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull()) {
        return tr("%1 cannot be opened: %2").arg(fileName, reader.errorString());
    }
    setPicture(picture, QFileInfo(fileName).fileName());
    return {};
}

void MainWindow::showPage(int index)
{
    m_pageButtons->button(index)->setChecked(true);
    m_stack->setCurrentIndex(index);
    m_view->setOverlay(m_pages.at(index)->overlay());
}

QScrollArea *MainWindow::currentScrollArea() const
{
    return qobject_cast<QScrollArea *>(m_stack->currentWidget());
}

void MainWindow::createPages()
{
    m_pages = {new AdjustPage(m_view, m_log), new CropPage(m_view, m_log),
               new MaskPage(m_view, m_log), new LayoutPage(m_view, m_log),
               new ColourPage(m_view, m_log)};
    for (Page *page : qAsConst(m_pages)) {
        m_stack->addWidget(new PageScroller(page));
    }
}

void MainWindow::createMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), this, &MainWindow::chooseAndOpen, QKeySequence::Open);
    file->addAction(tr("&Save cropped picture…"), this, &MainWindow::chooseAndSave,
                    QKeySequence::Save);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    const auto addChoice = [](QMenu *menu, const QString &text, bool checked) {
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(checked);
        return action;
    };

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
}

void MainWindow::setPicture(const QImage &picture, const QString &name)
{
    m_view->setPicture(picture);
    for (Page *page : qAsConst(m_pages)) {
        page->setPictureSize(picture.size());
    }
    setWindowTitle(
        tr("%1 (%2 × %3) — Gallery").arg(name).arg(picture.width()).arg(picture.height()));
}

void MainWindow::chooseAndOpen()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open"), QString(), tr("Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.svg)"));
    const QString error = fileName.isEmpty() ? QString() : openPicture(fileName);
    if (!error.isEmpty()) {
        QMessageBox::critical(this, tr("Open"), error);
    }
}

QString MainWindow::saveCrop(const QString &fileName) const
{
    QImageWriter writer(fileName);
    if (!writer.write(m_view->croppedPicture())) {
        return tr("%1 cannot be written: %2").arg(fileName, writer.errorString());
    }
    return {};
}

void MainWindow::chooseAndSave()
{
    const QString title = tr("Save cropped picture");
    const QString fileName = QFileDialog::getSaveFileName(
        this, title, QStringLiteral("cropped.png"), tr("Pictures (*.png *.jpg *.bmp)"));
    const QString error = fileName.isEmpty() ? QString() : saveCrop(fileName);
    if (!error.isEmpty()) {
        QMessageBox::critical(this, title, error);
    }
}
