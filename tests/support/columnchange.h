#pragma once

#include "editoruser.h"
#include "rgbeditframe.h"

#include <QtCore/QPointer>

// Rows of both kinds and of a composite editor, which share a column of one width.
struct ColumnPanel
{
    ColumnPanel()
    {
        auto *const layout = new QVBoxLayout(&page);
        for (QWidget *editor : QList<QWidget *> {gain, gamma, rgb})
            layout->addWidget(editor);
    }

    QWidget page;
    Vantor::Widgets::SliderEditFrame *const gain = new Vantor::Widgets::SliderEditFrame;
    QPointer<Vantor::Widgets::SliderEditFrameDouble> gamma =
        new Vantor::Widgets::SliderEditFrameDouble;
    Vantor::Widgets::RGBEditFrame *const rgb = new Vantor::Widgets::RGBEditFrame;
};

// What changes the width. A Panel also has the width() of its column, or -1 if the rows differ.
template <typename Panel> using Change = std::function<void(Panel &)>;

// Adds a row: the width changes in that direction, in a panel that is visible and in one that is
// shown later.
template <typename Panel>
void addChange(const char *name, int direction, const Change<Panel> &change)
{
    QTest::newRow(name) << TestCode([=] {
        for (const bool isShownFirst : {true, false}) {
            Panel panel;
            QVERIFY(User::show(panel.page));
            const int before = panel.width();
            QVERIFY(before > 0);
            if (!isShownFirst)
                panel.page.hide();
            change(panel);
            panel.page.show();
            QVERIFY(comesTrue([&] {
                const int after = panel.width();
                return after > 0 && (after > before) - (after < before) == direction;
            }));
        }
    });
}

inline QWidget *widerRow()
{
    auto *const row = new Vantor::Widgets::SliderEditFrame;
    row->setLabelText("Wider, and only now there");
    row->setRange(0, 12345678);
    return row;
}

// The rows of all columns.
template <typename Panel> void addCommonChanges()
{
    const auto add = addChange<Panel>;
    add("font of the panel", 1, [](Panel &p) { p.page.setFont(QFont("", 30)); });
    add("font of a sheet", 1, [](Panel &p) { p.page.setStyleSheet("* { font: 40px; }"); });
    add("padding of a sheet", 1,
        [](Panel &p) { p.page.setStyleSheet("QLabel, QAbstractSpinBox { padding: 0 19px; }"); });
    add("hidden row", -1, [](Panel &p) { p.gamma->hide(); });
    add("deleted row", -1, [](Panel &p) { delete p.gamma; });
    add("new row", 1, [](Panel &p) { p.rgb->parentWidget()->layout()->addWidget(widerRow()); });
}
