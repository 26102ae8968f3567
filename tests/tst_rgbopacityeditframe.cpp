#include "compositecases.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

using Vantor::Widgets::RGBOpacityEditFrame;

class tst_RGBOpacityEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsOpaque();
    void reportsAllValues();
    void rowOperation_data() { CompositeCases::addOperations(m_rowOperations); }
    void rowOperation();
    void allRowsOperation_data() { CompositeCases::addOperations(m_allRowsOperations); }
    void allRowsOperation();
    void visibility();
    void spacing();

private:
    const QVector<CompositeCases::RowOperation<RGBOpacityEditFrame>> m_rowOperations =
        CompositeCases::rowOperations<RGBOpacityEditFrame>();
    const QVector<CompositeCases::AllRowsOperation<RGBOpacityEditFrame>> m_allRowsOperations =
        CompositeCases::allRowsOperations<RGBOpacityEditFrame>();
    RGBOpacityEditFrame *m_frame = nullptr;
    CompositeCases::Rows m_rows;
};

void tst_RGBOpacityEditFrame::init()
{
    m_frame = new RGBOpacityEditFrame;
    m_rows = {{RGBOpacityEditFrame::R, {*m_frame, "frameR"}},
              {RGBOpacityEditFrame::G, {*m_frame, "frameG"}},
              {RGBOpacityEditFrame::B, {*m_frame, "frameB"}},
              {RGBOpacityEditFrame::Opacity, {*m_frame, "frameOpacity"}}};
}

void tst_RGBOpacityEditFrame::cleanup()
{
    delete m_frame;
}

void tst_RGBOpacityEditFrame::startsOpaque()
{
    int r = 0, g = 0, b = 0, opacity = 0;
    m_frame->value(r, g, b, opacity);
    QCOMPARE(QList<int>({r, g, b, opacity}), QList<int>({50, 50, 50, 100}));
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row)
        QCOMPARE(
            CompositeCases::limits(row->frame->minimum(), row->frame->maximum()),
            QString::fromLatin1(row.key() == RGBOpacityEditFrame::Opacity ? "0..100" : "0..255"));
    QCOMPARE(m_frame->objectName(), QStringLiteral("RGBOpacityEditFrame"));
    QCOMPARE(m_frame->property("isSliderFrame"), QVariant(true));
    QVERIFY(m_rows[RGBOpacityEditFrame::Opacity].slider->dynamicPropertyNames().isEmpty());
    // The opacity row is below the block.
    QCOMPARE(m_frame->layout()->itemAt(1)->widget(), m_rows[RGBOpacityEditFrame::Opacity].frame);
}

void tst_RGBOpacityEditFrame::reportsAllValues()
{
    QVERIFY(User::show(*m_frame));
    EventLog log;
    log.watch(m_frame, &RGBOpacityEditFrame::valueChanged, QStringLiteral("valueChanged"));
    m_rows[RGBOpacityEditFrame::Opacity].enter(QStringLiteral("40"));
    QCOMPARE(log.take(), entered({"valueChanged(50, 50, 50, 40)"}));
    m_rows[RGBOpacityEditFrame::R].enter(QStringLiteral("255"));
    QCOMPARE(log.take(), entered({"valueChanged(255, 50, 50, 40)"}));
    // The row clamps to 100 and, by its own rule, reports that at the next end of editing.
    m_frame->setValue(RGBOpacityEditFrame::Opacity, 150);
    QCOMPARE(log.take(), QStringList());
    int r = 0, g = 0, b = 0, opacity = 0;
    m_frame->value(r, g, b, opacity);
    QCOMPARE(QList<int>({r, g, b, opacity}), QList<int>({255, 50, 50, 100}));
    User::click(m_rows[RGBOpacityEditFrame::Opacity].spinBox);
    User::press(Qt::Key_Enter);
    QStringList expected = entered({});
    expected.insert(1, "valueChanged(255, 50, 50, 100)");
    QCOMPARE(log.take(), expected);
}

void tst_RGBOpacityEditFrame::rowOperation()
{
    QFETCH(int, index);
    const auto &operation = m_rowOperations[index];
    CompositeCases::checkRowOperation(operation, *m_frame, m_rows, operation.rgbWarning,
                                      QStringLiteral("RGBEditFrame::") + operation.name);
}

void tst_RGBOpacityEditFrame::allRowsOperation()
{
    QFETCH(int, index);
    CompositeCases::checkAllRowsOperation(m_allRowsOperations[index], *m_frame, m_rows);
}

void tst_RGBOpacityEditFrame::visibility()
{
    CompositeCases::checkVisibility(*m_frame, m_rows);
    // A block that is hidden as a whole keeps what its rows were.
    m_frame->setEditerVisible(RGBOpacityEditFrame::R | RGBOpacityEditFrame::B);
    m_frame->setEditerVisible(RGBOpacityEditFrame::Opacity);
    QVERIFY(!m_rows[RGBOpacityEditFrame::R].frame->isHidden());
    QVERIFY(m_rows[RGBOpacityEditFrame::G].frame->isHidden());
}

void tst_RGBOpacityEditFrame::spacing()
{
    const auto *block = m_frame->findChild<Vantor::Widgets::RGBEditFrame *>();
    m_frame->setVerticalSpacing(4);
    QCOMPARE(m_frame->layout()->spacing(), 4);
    QCOMPARE(block->layout()->spacing(), 4);
    CompositeCases::checkLastSpacer(*m_frame, "20x277 Minimum Expanding");
    QCOMPARE(CompositeCases::lastSpacer(*block), QStringLiteral("20x0 Expanding Ignored"));
}

int main(int argc, char *argv[])
{
    return runTest<tst_RGBOpacityEditFrame>(argc, argv);
}

#include "tst_rgbopacityeditframe.moc"
