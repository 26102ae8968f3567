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
#include "pictureview.h"
#include "testcard.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>
#include <QtGui/QCloseEvent>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>

#include <QActionGroup> // of QtWidgets or, with Qt 6, of QtGui

namespace {

// At four bytes a pixel these are 256 MB. Qt 6 itself reads no more.
const int maxMegapixels = 64;

double megapixels(const QSize &size)
{
    return double(size.width()) * size.height() / 1e6;
}

// Qt's readers of these two take what there is of the picture without a word.
bool endsTooSoon(const QString &fileName, const QByteArray &format)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    if (format == "bmp") {
        file.seek(2);
        return qFromLittleEndian<quint32>(file.read(4).constData()) > file.size();
    }
    return format == "gif" && file.seek(file.size() - 1) && file.read(1) != ";";
}

} // namespace

MainWindow::MainWindow()
    : m_history(new EditHistory(this)), m_view(new PictureView), m_log(new LogPane),
      m_stack(new QStackedWidget), m_pageButtons(new QButtonGroup(this)),
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
    createPages();
    for (int i = 0; i < m_pages.size(); ++i) {
        auto *button = new QPushButton(m_pages.at(i)->title());
        button->setCheckable(true);
        barLayout->addWidget(button);
        m_pageButtons->addButton(button, i);
        // A screen reader toggles it rather than clicks it.
        connect(button, &QPushButton::toggled, this, [this, i](bool isChecked) {
            if (isChecked) {
                showPage(i);
            }
        });
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

bool MainWindow::openPicture(const QString &fileName, QString *problem)
{
    QImageReader reader(fileName);
    reader.setAutoTransform(true);
    if (megapixels(reader.size()) > maxMegapixels) {
        *problem = tr("%1 has %2 megapixels. Up to %3 can be opened.")
                       .arg(fileName)
                       .arg(megapixels(reader.size()), 0, 'f', 1)
                       .arg(maxMegapixels);
        return false;
    }
    // The reader of JPEG gives what there is of the picture and only logs why.
    const QByteArray format = reader.format(); // not known any more when it is read
    QStringList warnings;
    const auto connection = connect(m_log, &LogPane::warned, this,
                                    [&](const QString &message) { warnings.append(message); });
    const QImage picture = reader.read();
    disconnect(connection);
    if (picture.isNull()) {
        *problem = tr("%1 cannot be opened: %2").arg(fileName, reader.errorString());
        return false;
    }
    if (endsTooSoon(fileName, format)) {
        warnings.append(tr("the file ends too soon"));
    }
    if (!warnings.isEmpty()) {
        *problem = tr("%1 is not complete: %2").arg(fileName, warnings.first());
    }
    setPicture(picture, QFileInfo(fileName).fileName());
    return true;
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
    m_pages = {new AdjustPage(m_history, m_log), new CropPage(m_view, m_history, m_log),
               new MaskPage(m_history, m_log), new LayoutPage(m_history, m_log),
               new ColourPage(m_history, m_log)};
    for (Page *page : qAsConst(m_pages)) {
        m_stack->addWidget(new PageScroller(page));
    }
}

void MainWindow::createMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), this, &MainWindow::chooseAndOpen)
        ->setShortcut(QKeySequence::Open);
    file->addAction(tr("&Save cropped picture…"), this, &MainWindow::chooseAndSave)
        ->setShortcut(QKeySequence::Save);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(QKeySequence::Quit);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = m_history->stack()->createUndoAction(this, tr("&Undo"));
    undo->setShortcuts(QKeySequence::Undo);
    QAction *redo = m_history->stack()->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(QKeySequence::Redo);
    edit->addActions({undo, redo});

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
    Edits edits;
    edits.adjustment = m_history->edits().adjustment;
    for (Page *page : qAsConst(m_pages)) {
        page->startOn(picture.size(), edits);
    }
    m_history->reset(edits);
    m_savedCrop = edits.crop;
    setWindowTitle(
        tr("%1 (%2 × %3) — Gallery").arg(name).arg(picture.width()).arg(picture.height()));
}

void MainWindow::chooseAndOpen()
{
    if (!mayLoseCrop()) {
        return;
    }
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open"), QString(), tr("Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.svg)"));
    if (fileName.isEmpty()) {
        return;
    }
    QString problem;
    openPicture(fileName, &problem);
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, tr("Open"), problem);
    }
}

bool MainWindow::chooseAndSave()
{
    QFileDialog dialog(this, tr("Save cropped picture"), QString(),
                       tr("PNG picture (*.png);;JPEG picture (*.jpg);;BMP picture (*.bmp)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(tr("cropped"));
    // The dialog itself adds the suffix, and then asks before it overwrites a file.
    const auto takeSuffix = [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.section(QStringLiteral("*."), 1).remove(QLatin1Char(')')));
    };
    takeSuffix(dialog.selectedNameFilter());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const QString fileName = dialog.selectedFiles().constFirst();
    QImageWriter writer(fileName);
    if (!writer.write(m_view->croppedPicture())) {
        QMessageBox::critical(this, dialog.windowTitle(),
                              tr("%1 cannot be written: %2").arg(fileName, writer.errorString()));
        return false;
    }
    m_savedCrop = m_history->edits().crop;
    return true;
}

bool MainWindow::mayLoseCrop()
{
    if (m_history->edits().crop == m_savedCrop) {
        return true;
    }
    const auto answer =
        QMessageBox::question(this, tr("Crop"), tr("The cropped picture is not saved. Save it?"),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && chooseAndSave());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLoseCrop());
}
