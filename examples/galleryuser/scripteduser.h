#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>

#include <functional>

class MainWindow;
class QPushButton;
class QSlider;

// Works the window by pointer, keys and wheel, as a person would. Rows are named by their labels on
// the page that is shown.
class ScriptedUser : public QObject
{
    Q_OBJECT

public:
    explicit ScriptedUser(MainWindow &window);

    // A tour of every page; what it does and what comes of it is in the log. The
    // program ends where something comes out otherwise than the user expects.
    void play();

    void showPage(const QString &title);
    QWidget *row(const QString &label) const;
    void drag(const QString &row, int sliderPosition);
    void click(const QString &row, const char *button);
    void click(const char *lockButton);
    void clickInto(const QString &row);
    void type(const QString &row, const QString &text);
    void click(QWidget *widget);
    void moveAway(); // from the editors, so that none is drawn as hovered

private:
    void playAdjust();
    void playCrop();
    void playMaskAndLayout();
    void playColour();
    void playNumberPad();
    void playUndo();

    QSlider *slider(const QString &row) const;
    QString fieldText(const QString &row) const;
    static void expect(bool isSo, const char *what);
    void say(const QString &what) const;
    void undoAndRedo(const QString &row, const std::function<void()> &change);
    void hold(const QString &row, const char *button);
    void drag(QWidget *widget, const QPoint &from, const QPoint &to);
    static void move(const std::function<void(int)> &moveTo); // in steps from 1 to dragMoves
    void turnWheelOver(const QString &row);

    static constexpr int dragMoves = 6;

    MainWindow &m_window;
};
