#pragma once

#include "ui_barerow.h"

#include <QtWidgets/QFrame>

// The row of a slider editor with Qt's own slider and spin box.
class BareRow : public QFrame
{
public:
    explicit BareRow(QWidget *parent = nullptr);

    void setRange(int min, int max);
    // Neither child reports it.
    void setValue(int val);

    Ui::BareRow ui;
};

// Four rows one below the other.
class BareRows : public QFrame
{
public:
    explicit BareRows(QWidget *parent = nullptr);
};

// Four rows in the two panels, with the lock buttons, of a rectangle editor.
class BarePanels : public QFrame
{
public:
    explicit BarePanels(QWidget *parent = nullptr);
};

// A spin box whose line edit rewrites its text at every change, like any field that
// corrects the typed text.
class RewritingSpinBox : public QSpinBox
{
public:
    explicit RewritingSpinBox(QWidget *parent = nullptr);

    QLineEdit *field() const { return lineEdit(); }
    QValidator::State validate(QString &text, int &pos) const override;
};
