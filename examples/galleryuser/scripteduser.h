#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>

#include <functional>

class MainWindow;
class PictureView;
class QSlider;

// Drives the window by pointer, keys and wheel, like a user. Rows are named by their
// labels on the current page. The log records the actions and their results.
class ScriptedUser : public QObject
{
    Q_OBJECT

public:
    explicit ScriptedUser(MainWindow &window);

    MainWindow &window() const { return m_window; }
    PictureView *view() const;
    QWidget *row(const QString &label) const;
    QSlider *slider(const QString &row) const;
    QString fieldText(const QString &row) const; // as it is shown, with the unit
    int fieldNumber(const QString &row) const;

    void say(const QString &what) const;
    // Aborts the program otherwise.
    static void expect(bool isSo, const char *what);
    // Checks that the change is one step for undo and redo, as the row's field shows it.
    void undoAndRedo(const QString &row, const std::function<void()> &change);

    void showPage(const QString &title);
    void drag(const QString &row, int sliderPosition);
    void drag(QWidget *widget, const QPoint &from, const QPoint &to);
    void click(const QString &row, const char *button);
    void click(const char *lockButton);
    void click(QWidget *widget);
    void hold(const QString &row, const char *button);
    void doubleClickLabel(const QString &row);
    void clickInto(const QString &row);
    void type(const QString &row, const QString &text);
    void turnWheelOver(const QString &row);
    void moveAway(); // from the editors, so that none is drawn as hovered

    void choose(const QString &menuEntry);
    // The function that opens a dialog comes last: it returns when the dialog is closed. The
    // work returns whether that was its dialog.
    void answer(int button, const std::function<void()> &open);
    void takeFile(const QString &path, const std::function<void()> &open);
    void inDialog(const std::function<bool(QWidget *)> &work, const std::function<void()> &open);

private:
    static void move(const std::function<void(int)> &moveTo); // in steps from 1 to dragMoves

    static constexpr int dragMoves = 6;

    MainWindow &m_window;
};
