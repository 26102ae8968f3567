#include "alignfields.h"
#include "columnchange.h"

#include <QtGui/QBitmap>

using namespace Vantor::Widgets;

// One width for the fields of a panel in which every value fits, and the events that update it.
class tst_AlignFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fits_data();
    void fits();
    void column_data();
    void column() { runTestCode(); }
    void hostWidth();
    void firstSize();

private:
    const QFont m_font = QApplication::font();
};

namespace {

// The size of the text in the picture of a field. The edge of the picture is blank.
QSize inkOf(QLineEdit *field)
{
    const QImage ink = field->grab().toImage().createHeuristicMask();
    return QRegion(QBitmap::fromImage(ink)).boundingRect().size();
}

// With 65 pixels, those of the form, the column sets the width.
QVector<QSize> inksOf(const QVector<EditorRow> &rows, int width)
{
    QVector<QSize> inks;
    for (const EditorRow &row : rows)
        row.spinBox->setFixedWidth(width);
    settle();
    for (const EditorRow &row : rows)
        inks.append(inkOf(row.field));
    return inks;
}

struct Panel : ColumnPanel
{
    Panel()
    {
        gamma->setRange(0, 1000);
        alignFields(&page);
    }

    // The width that all visible fields have; -1 if they differ, or if it is too narrow.
    int width() const
    {
        QList<int> widths;
        for (const QAbstractSpinBox *field : page.findChildren<QAbstractSpinBox *>()) {
            if (field->isVisible()) {
                const int text = field->fontMetrics().boundingRect(field->text()).width();
                widths.append(field->width() > text ? field->width() : -1);
            }
        }
        return widths.count(widths.first()) == widths.size() ? widths.first() : -1;
    }
};

} // namespace

void tst_AlignFields::initTestCase()
{
    const int dpi = qEnvironmentVariableIntValue("QT_FONT_DPI");
    QVERIFY(dpi == 0 || QWidget().logicalDpiX() == dpi);
}

void tst_AlignFields::fits_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("none") << QString();
    for (const char *name : {"desktop", "touch-dark", "touch-light"})
        QTest::newRow(name) << themeSheet(name);
    QTest::newRow("host") << "QAbstractSpinBox { border: 3px solid red; padding: 0 7px; }"
                             "QSpinBox { font: bold 15px; } QDoubleSpinBox { margin: 2px; }";
}

// No pixel of either end of a range is clipped, in any font size, and the fields are not wider
// than needed. CTest runs this function with other sizes in dots per inch, too.
void tst_AlignFields::fits()
{
    QFETCH(QString, sheet);
    // The decimals are those of the row for double.
    const char *const names[] = {"decimals", "minimum", "maximum", "prefix", "suffix"};
    const QVector<QVariantList> ranges {{1, 0, 9, "", ""},           {2, 0, 99999, "", ""},
                                        {2, -88888, 88888, "", ""},  {6, -1, 1, "", ""},
                                        {2, 0, 4444, "x ", " mm/s"}, {0, -100, 0, "", " %"}};
    for (int points = 8; points <= 16; ++points) {
        QFont font = m_font;
        font.setPointSize(points);
        QApplication::setFont(font);
        QWidget page;
        page.setStyleSheet(sheet);
        auto *const layout = new QVBoxLayout(&page);
        QVector<EditorRow> rows;
        for (const QVariantList &range : ranges) {
            for (QWidget *row : QList<QWidget *> {new SliderEditFrame, new SliderEditFrameDouble}) {
                for (int i = 0; i < range.size(); ++i)
                    row->setProperty(names[i], range[i]);
                layout->addWidget(row);
                alignFields(row);
                rows.append({QString(), row});
            }
        }
        QVERIFY(User::show(page));
        page.setFocus();
        QVector<int> texts(rows.size());
        for (const char *end : {"minimum", "maximum"}) {
            for (int i = 0; i < rows.size(); ++i) {
                rows[i].frame->setProperty("value", rows[i].frame->property(end));
                const QString text = rows[i].field->text();
                texts[i] = qMax(texts[i], rows[i].field->fontMetrics().boundingRect(text).width());
            }
            const QVector<QSize> shown = inksOf(rows, 65);
            const QVector<QSize> whole = inksOf(rows, 600);
            for (int i = 0; i < rows.size(); ++i)
                QVERIFY2(
                    shown[i] == whole[i] && whole[i].width() > 1,
                    qPrintable(QString("%1 at %2 points").arg(rows[i].field->text()).arg(points)));
        }
        inksOf(rows, 65);
        for (int i = 0; i < rows.size(); ++i)
            QVERIFY2(rows[i].field->width() < texts[i] + rows[i].field->fontMetrics().height(),
                     qPrintable(QString("%1 at %2 points").arg(rows[i].field->text()).arg(points)));
    }
    QApplication::setFont(m_font);
}

void tst_AlignFields::column_data()
{
    QTest::addColumn<TestCode>("code");
    addCommonChanges<Panel>();
    const auto add = addChange<Panel>;
    add("longer range", 1, [](Panel &p) { p.gain->setRange(0, 12345678); });
    add("longer range of a composite", 1,
        [](Panel &p) { p.rgb->setRange(RGBEditFrame::G, -12345678, 0); });
    add("shorter range", -1, [](Panel &p) { p.gamma->setRange(0, 1); });
    add("lower minimum", 1, [](Panel &p) { p.gamma->setMinimum(-1000); });
    add("more decimals", 1, [](Panel &p) { p.gamma->setDecimals(5); });
    add("prefix", 1, [](Panel &p) { p.gain->setPrefix("about "); });
    add("suffix", 1, [](Panel &p) { p.gain->setSuffix(" kilometres"); });
    add("suffix of a double", 1, [](Panel &p) { p.gamma->setSuffix(" km"); });
    add("suffix that the focus hides", 1, [](Panel &p) {
        p.gamma->setFieldFocus();
        p.gamma->setSuffix(" km");
    });
    add("special value text", 1, [](Panel &p) {
        rowsOf(*p.gain)[0].spinBox->setProperty("specialValueText", "None of them all");
    });
    add("column of its own", 0, [](Panel &p) {
        alignFields(p.rgb);
        p.rgb->setRange(RGBEditFrame::G, 0, 12345678);
        settle();
        p.rgb->hide();
    });
}

// A width that the host sets stays, whatever the sheet, and is not that of the other fields.
void tst_AlignFields::hostWidth()
{
    for (const QString &sheet : {QString(), themeSheet("desktop"), themeSheet("touch-dark")}) {
        Panel panel;
        panel.page.setStyleSheet(sheet);
        QVERIFY(User::show(panel.page));
        const int others = panel.width();
        const auto gainWidth = [&] {
            settle();
            const bool isSame = rowsOf(*panel.gamma)[0].spinBox->width() == others;
            return isSame ? rowsOf(*panel.gain)[0].spinBox->width() : -1;
        };
        QCOMPARE(gainWidth(), others);
        const EditorRow row = rowsOf(*panel.gain)[0];
        row.type("1/0\n"); // the sheet is then applied again
        QVERIFY(row.spinBox->property("isEntryRefused").toBool());
        QCOMPARE(gainWidth(), others);
        panel.gain->setSpinBoxFixedWidth(200);
        QCOMPARE(gainWidth(), 200);
        panel.gain->setRange(0, 12345678);
        panel.page.setStyleSheet(sheet + ' ');
        QCOMPARE(gainWidth(), 200);
        panel.gain->setRange(0, 1);
        panel.gain->setSpinBoxWidthRange(300, 150);
        QCOMPARE(gainWidth(), 150);
        panel.gain->setSpinBoxWidthRange(300, 10);
        QCOMPARE(gainWidth(), others);
        panel.gain->setObjectName("gain");
        panel.page.setStyleSheet(sheet + "#gain #spinBox { min-width: 170px; max-width: 170px }");
        QVERIFY(gainWidth() >= 170 && gainWidth() < 180);
        panel.page.setStyleSheet(sheet);
        QCOMPARE(gainWidth(), others);
    }
}

// A window opens in the size that it keeps, and with the rules for what the host sets until then.
void tst_AlignFields::firstSize()
{
    Panel panel;
    panel.page.setStyleSheet(themeSheet("desktop")
                             + "* { font: 30px; } #gain QSpinBox { font: 60px; }");
    panel.gain->setRange(0, 12345678);
    panel.gain->setObjectName("gain");
    panel.page.show();
    const QSize size = panel.page.size();
    settle();
    QCOMPARE(panel.page.sizeHint(), size);
    QCOMPARE(rowsOf(*panel.gain)[0].spinBox->font().pixelSize(), 60);
}

QTEST_MAIN(tst_AlignFields)

#include "tst_alignfields.moc"
