#pragma once

#include <QtWidgets/QFrame>

class QGridLayout;
class QPushButton;

// An on-screen keyboard for the library's spin boxes. It opens below a widget
// that has the dynamic property "Quelmo_VK" when the widget receives the focus, and
// sends it real key events. It never takes the focus itself: a spin box that loses
// the focus finishes the entry. A click elsewhere closes the pad. While it is disabled, the
// platform's keyboard opens.
class NumberPad : public QFrame
{
    Q_OBJECT

public:
    explicit NumberPad(QWidget *parent);

    void setEnabledByFocus(bool enabled);
    QPushButton *button(const QString &text) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addKey(int row, int column, const QString &text, int key, const QString &name = QString());
    void followFocus(QWidget *widget);
    void place(const QWidget &field);

    QGridLayout *m_keys;
    bool m_isEnabled = false;
};
