#pragma once

#include "theme.h"

#include <entryoptions.h>

#include <QtWidgets/QMainWindow>

class EditHistory;
class LogPane;
class NumberPad;
class Page;
class PictureView;
class QButtonGroup;
class QMenu;
class QScrollArea;
class QSplitter;
class QStackedWidget;

// The workbench: the picture above the signal log, and the pages beside them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();

    // Fills a screen that is smaller than the usual size of the window.
    void showOnScreen();
    void fill(const QRect &screen);

    // Shows the user an error if the picture cannot be opened, or only in part. In the
    // latter case it returns true.
    bool openPicture(const QString &fileName, QString *problem);

    const QVector<Page *> &pages() const { return m_pages; }
    void showPage(int index);
    QScrollArea *currentScrollArea() const;
    Theme *theme() const { return m_theme; }
    LogPane *log() const { return m_log; }
    PictureView *view() const { return m_view; }
    NumberPad *numberPad() const { return m_numberPad; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void arrange(const QSize &window);
    void createPages();
    void createFileAndEditMenus();
    void createViewMenu(QWidget *panel);
    void createEntryMenu(QMenu *menu);
    void createSliderMenu(QMenu *menu);
    void setPicture(const QImage &picture, const QString &name);
    void reset(const QVector<Page *> &pages, const QString &name);
    void chooseAndOpen();
    // False if it is not saved.
    bool chooseAndSave(const QRect &part, const QString &title, const QString &name);
    bool savePicture();
    bool saveCrop();
    bool mayLoseEdits(); // asks the user if there are unsaved edits

    EditHistory *m_history;
    PictureView *m_view;
    LogPane *m_log;
    QVector<Page *> m_pages;
    QSplitter *m_halves;
    QStackedWidget *m_stack;
    QButtonGroup *m_pageButtons;
    NumberPad *m_numberPad;
    Theme *m_theme;
    Vantor::Widgets::EntryOptions m_entryOptions;
    Vantor::Widgets::SliderOptions m_sliderOptions;
};
