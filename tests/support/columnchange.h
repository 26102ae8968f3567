#pragma once

#include "editoruser.h"

// Rows that share a column of one width, and what changes it. A Panel has a page, and the
// width() that its column has, or -1 if the rows differ.
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
