#include "alignlabels.h"
#include "columnchange.h"

#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolBox>

using namespace Vantor::Widgets;

// One width for the labels of a panel, and the events that update it.
class tst_AlignLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void column_data();
    void column() { runTestCode(); }
    void alignment();
    void deletedPanel();
};

namespace {

int needOf(const QLabel *label)
{
    QLabel alone(label->text());
    alone.setFont(label->font());
    alone.setBuddy(&alone); // so that "&" marks a shortcut
    return alone.sizeHint().width();
}

// The composite editor is in a scroll area.
struct Panel : ColumnPanel
{
    Panel()
    {
        (new QVBoxLayout(new QWidget))->addWidget(rgb);
        area->setWidgetResizable(true);
        area->setWidget(rgb->parentWidget());
        page.layout()->addWidget(area);
        gain->setLabelText("Middling");
        gamma->setLabelText("&Widest of them");
        rgb->setLabelText(RGBEditFrame::G, "Green");
        alignLabels(&page);
    }

    QList<QLabel *> visibleLabels() const
    {
        QList<QLabel *> labels;
        for (QLabel *label : page.findChildren<QLabel *>("labelName")) {
            if (label->isVisible())
                labels.append(label);
        }
        return labels;
    }

    // The width that all visible labels have; -1 if they differ, or if it is not exactly
    // what the widest text needs. With a padding Qt adds half a letter between text and
    // edge.
    int width() const
    {
        int need = 0;
        const auto labels = visibleLabels();
        for (const QLabel *label : labels)
            need = qMax(need, needOf(label));
        for (const QLabel *label : labels) {
            const int spare = label->contentsRect().width() - need;
            const bool isFit = label->frameWidth() > 0
                ? spare > 0 && spare <= label->fontMetrics().xHeight()
                : spare == 0;
            if (!isFit || label->width() != labels.first()->width())
                return -1;
        }
        return labels.first()->width();
    }

    QScrollArea *const area = new QScrollArea;
};

// A row is put into a widget that was empty when the labels were aligned last.
template <typename Widget, typename Put> void addPlace(const char *name, const Put &put)
{
    addChange<Panel>(name, 1, [put](Panel &p) {
        auto *const place = new Widget;
        p.page.layout()->addWidget(place);
        settle();
        put(place, widerRow());
    });
}

} // namespace

void tst_AlignLabels::column_data()
{
    QTest::addColumn<TestCode>("code");
    addCommonChanges<Panel>();
    const auto add = addChange<Panel>;
    addPlace<QScrollArea>("scroll area", [](auto *area, QWidget *row) { area->setWidget(row); });
    addPlace<QToolBox>("tool box", [](auto *box, QWidget *row) { box->addItem(row, "Item"); });
    addPlace<QStackedWidget>("stack", [](auto *stack, QWidget *row) { stack->addWidget(row); });
    addPlace<QWidget>("no layout", [](auto *page, QWidget *row) {
        row->setParent(page);
        row->show();
    });
    add("rich text", 1, [](Panel &p) { p.gain->setLabelText("<b>Wider</b> than <i>others</i>"); });
    add("longer text", 1, [](Panel &p) { p.gain->setLabelText("Wider than all the others"); });
    add("shorter text", -1, [](Panel &p) { p.gamma->setLabelText("Small"); });
    add("text of two lines", -1, [](Panel &p) { p.gamma->setLabelText("Middling\nand more"); });
    add("another language", -1, [](Panel &p) {
        p.page.setLayoutDirection(Qt::RightToLeft);
        p.page.setLocale(QLocale::Arabic);
        p.gain->setLabelText(QString::fromUtf8("ربح"));
        p.gamma->setLabelText(QString::fromUtf8("غاما"));
    });
    add("font of one label", 1, [](Panel &p) { rowsOf(*p.rgb)[1].label->setFont(QFont("", 60)); });
    add("width of a sheet", 0, [](Panel &p) { p.page.setStyleSheet("* { min-width: 300px; }"); });
    add("row in a hidden panel", 1, [](Panel &p) {
        p.area->hide();
        p.rgb->setLabelText(RGBEditFrame::B, "Wider, and not to be seen");
        settle();
        QCOMPARE(rowsOf(*p.gamma)[0].label->maximumWidth(), needOf(rowsOf(*p.gamma)[0].label));
        p.area->show();
    });
    add("row of an editor", 1, [](Panel &p) {
        p.rgb->setEditerVisible(RGBEditFrame::B);
        p.rgb->setLabelText(RGBEditFrame::R, "Wider, once it is seen");
        settle();
        p.rgb->setEditerVisible(RGBEditFrame::R);
    });
    add("new content", 1, [](Panel &p) { p.area->setWidget(widerRow()); });
    add("column of its own", 0, [](Panel &p) {
        alignLabels(p.area);
        p.rgb->setLabelText(RGBEditFrame::R, "Wider, but elsewhere");
        QVERIFY(comesTrue([&] {
            return rowsOf(*p.rgb)[2].label->maximumWidth() == needOf(rowsOf(*p.rgb)[0].label);
        }));
        settle();
        const QLabel *const outer = rowsOf(*p.gamma)[0].label;
        QCOMPARE(outer->maximumWidth(), needOf(outer));
        p.area->hide();
    });
}

// The labels keep their alignment unless the host passes one.
void tst_AlignLabels::alignment()
{
    Panel panel;
    rowsOf(*panel.gain)[0].label->setAlignment(Qt::AlignCenter);
    QVERIFY(User::show(panel.page));
    const auto alignments = [&panel] {
        settle();
        QList<int> alignments;
        for (const QLabel *label : panel.visibleLabels())
            alignments.append(int(label->alignment()));
        return alignments;
    };
    const int right = Qt::AlignRight | Qt::AlignVCenter;
    const int atLeft = Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter;
    const int atRight = right | Qt::AlignAbsolute;
    QCOMPARE(alignments(), QList<int>({Qt::AlignCenter, right, right, right, right}));
    alignLabels(&panel.page, Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(alignments(), QList<int>({atLeft, atLeft, atLeft, atLeft, atLeft}));
    panel.page.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(comesTrue([&] { return alignments() == QVector<int>(5, atRight).toList(); }));
    alignLabels(&panel.page, Qt::AlignRight);
    panel.rgb->parentWidget()->layout()->addWidget(new SliderEditFrame);
    QVERIFY(comesTrue([&] { return alignments() == QVector<int>(6, atLeft).toList(); }));
}

// With a change that is not yet applied.
void tst_AlignLabels::deletedPanel()
{
    alignLabels(nullptr);
    auto *panel = new Panel;
    QVERIFY(User::show(panel->page));
    alignLabels(panel->gain);
    panel->gain->setLabelText("Wider than all the others");
    panel->gamma->hide();
    QPointer<QWidget> gain = panel->gain;
    delete panel;
    settle();
    QVERIFY(!gain);
}

QTEST_MAIN(tst_AlignLabels)

#include "tst_alignlabels.moc"
