#include "compositecases.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"

using Vantor::Widgets::RGBAllEditFrame;

class tst_RGBAllEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsGrey();
    void reportsAllValues();
    void rowOperation_data() { CompositeCases::addOperations(m_rowOperations); }
    void rowOperation();
    void allRowsOperation_data() { CompositeCases::addOperations(m_allRowsOperations); }
    void allRowsOperation();
    void visibility();
    void spacing();
    void labelMaxLength();

private:
    const QVector<CompositeCases::RowOperation<RGBAllEditFrame>> m_rowOperations =
        CompositeCases::rowOperations<RGBAllEditFrame>();
    const QVector<CompositeCases::AllRowsOperation<RGBAllEditFrame>> m_allRowsOperations =
        CompositeCases::allRowsOperations<RGBAllEditFrame>();
    RGBAllEditFrame *m_frame = nullptr;
    CompositeCases::Rows m_rows;
};

void tst_RGBAllEditFrame::init()
{
    m_frame = new RGBAllEditFrame;
    m_rows = {{RGBAllEditFrame::R, {*m_frame, "frameR"}},
              {RGBAllEditFrame::G, {*m_frame, "frameG"}},
              {RGBAllEditFrame::B, {*m_frame, "frameB"}},
              {RGBAllEditFrame::ALL, {*m_frame, "frameAll"}}};
}

void tst_RGBAllEditFrame::cleanup()
{
    delete m_frame;
}

void tst_RGBAllEditFrame::startsGrey()
{
    int r = 0, g = 0, b = 0, all = 0;
    m_frame->value(r, g, b, all);
    QCOMPARE(QList<int>({r, g, b, all}), QList<int>({50, 50, 50, 50}));
    for (const Row &row : m_rows)
        QCOMPARE(CompositeCases::limits(row.frame->minimum(), row.frame->maximum()),
                 QStringLiteral("0..255"));
    QCOMPARE(m_frame->objectName(), QStringLiteral("RGBAllEditFrame"));
    QCOMPARE(m_frame->property("isSliderFrame"), QVariant(true));
    QVERIFY(m_rows[RGBAllEditFrame::ALL].slider->dynamicPropertyNames().isEmpty());
    // The master row is the one on top.
    QCOMPARE(m_frame->layout()->itemAt(0)->widget(), m_rows[RGBAllEditFrame::ALL].frame);
}

void tst_RGBAllEditFrame::reportsAllValues()
{
    QVERIFY(User::show(*m_frame));
    EventLog log;
    log.watch(m_frame, &RGBAllEditFrame::valueChanged, QStringLiteral("valueChanged"));
    m_rows[RGBAllEditFrame::ALL].enter(QStringLiteral("200"));
    QCOMPARE(log.take(), entered({"valueChanged(50, 50, 50, 200)"}));
    m_rows[RGBAllEditFrame::G].enter(QStringLiteral("10"));
    QCOMPARE(log.take(), entered({"valueChanged(50, 10, 50, 200)"}));
    m_frame->setValue(RGBAllEditFrame::ALL, 80);
    m_frame->setRange(RGBAllEditFrame::R, 0, 40);
    QCOMPARE(log.take(), QStringList());
    User::click(m_rows[RGBAllEditFrame::B].minus);
    User::click(m_rows[RGBAllEditFrame::ALL].minus);
    QCOMPARE(log.take(),
             QStringList({"valueChanged(40, 10, 49, 80)", "valueChanged(40, 10, 49, 79)"}));
    int r = 0, g = 0, b = 0, all = 0;
    m_frame->value(r, g, b, all);
    QCOMPARE(QList<int>({r, g, b, all}), QList<int>({40, 10, 49, 79}));
}

void tst_RGBAllEditFrame::rowOperation()
{
    QFETCH(int, index);
    const auto &operation = m_rowOperations[index];
    CompositeCases::checkRowOperation(operation, *m_frame, m_rows, operation.rgbWarning,
                                      QStringLiteral("RGBEditFrame::") + operation.name);
}

void tst_RGBAllEditFrame::allRowsOperation()
{
    QFETCH(int, index);
    CompositeCases::checkAllRowsOperation(m_allRowsOperations[index], *m_frame, m_rows);
}

void tst_RGBAllEditFrame::visibility()
{
    CompositeCases::checkVisibility(*m_frame, m_rows);
    // A block that is hidden as a whole keeps what its rows were.
    m_frame->setEditerVisible(RGBAllEditFrame::R | RGBAllEditFrame::B);
    m_frame->setEditerVisible(RGBAllEditFrame::ALL);
    QVERIFY(!m_rows[RGBAllEditFrame::R].frame->isHidden());
    QVERIFY(m_rows[RGBAllEditFrame::G].frame->isHidden());
}

void tst_RGBAllEditFrame::spacing()
{
    const auto *block = m_frame->findChild<Vantor::Widgets::RGBEditFrame *>();
    m_frame->setVerticalSpacing(6);
    QCOMPARE(m_frame->layout()->spacing(), 6);
    QCOMPARE(block->layout()->spacing(), 0);
    CompositeCases::checkLastSpacer(*m_frame, "20x20 Minimum Preferred");
    QCOMPARE(CompositeCases::lastSpacer(*block), QStringLiteral("20x20 Minimum Expanding"));
}

void tst_RGBAllEditFrame::labelMaxLength()
{
    const Row &master = m_rows[RGBAllEditFrame::ALL];
    const Row &red = m_rows[RGBAllEditFrame::R];
    QCOMPARE(m_frame->labelMaxLength(), 0);
    red.frame->setFont(QFont(red.frame->font().family(), 25));
    m_frame->setLabelText(RGBAllEditFrame::ALL, QStringLiteral("All"));
    m_frame->setLabelText(RGBAllEditFrame::B, QStringLiteral("i"));
    QCOMPARE(m_frame->labelMaxLength(), CompositeCases::textWidth(master, QStringLiteral("All")));
    m_frame->setLabelText(RGBAllEditFrame::B, QStringLiteral("WWW"));
    QCOMPARE(m_frame->labelMaxLength(), CompositeCases::textWidth(red, QStringLiteral("WWW")));
}

int main(int argc, char *argv[])
{
    return runTest<tst_RGBAllEditFrame>(argc, argv);
}

#include "tst_rgballeditframe.moc"
