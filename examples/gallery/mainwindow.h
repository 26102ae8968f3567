#pragma once

#include "theme.h"

#include <QtWidgets/QMainWindow>

class LogPane;
class NumberPad;
class Page;
class PictureView;
class QButtonGroup;
class QScrollArea;
class QStackedWidget;

// The workbench: the picture over the signal log, beside them the pages.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();

    // Both return what went wrong, in words for the user, or an empty text.
    QString openPicture(const QString &fileName);
    QString saveCrop(const QString &fileName) const;

    const QVector<Page *> &pages() const { return m_pages; }
    void showPage(int index);
    QScrollArea *currentScrollArea() const;
    Theme *theme() const { return m_theme; }
    LogPane *log() const { return m_log; }
    PictureView *view() const { return m_view; }
    NumberPad *numberPad() const { return m_numberPad; }

private:
    void createPages();
    void createMenus();
    void setPicture(const QImage &picture, const QString &name);
    void chooseAndOpen();
    void chooseAndSave();

    PictureView *m_view;
    LogPane *m_log;
    QVector<Page *> m_pages;
    QStackedWidget *m_stack;
    QButtonGroup *m_pageButtons;
    NumberPad *m_numberPad;
    Theme *m_theme;
};
