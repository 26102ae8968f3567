#include "compositecases.h"
#include "rgbeditframe.h"

using Vantor::Widgets::RGBEditFrame;

class tst_RGBEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsGrey();
    void reportsAllChannels();
    void rowOperation_data() { CompositeCases::addOperations(m_rowOperations); }
    void rowOperation();
    void allRowsOperation_data() { CompositeCases::addOperations(m_allRowsOperations); }
    void allRowsOperation();
    void visibility() { CompositeCases::checkVisibility(*m_frame, m_rows); }
    void spacing();
    void labelMaxLength();
    void mousePressed() { CompositeCases::checkMousePressed(*m_frame, m_rows); }

private:
    const QVector<CompositeCases::RowOperation<RGBEditFrame>> m_rowOperations =
        CompositeCases::rowOperations<RGBEditFrame>();
    const QVector<CompositeCases::AllRowsOperation<RGBEditFrame>> m_allRowsOperations =
        CompositeCases::allRowsOperations<RGBEditFrame>();
    RGBEditFrame *m_frame = nullptr;
    CompositeCases::Rows m_rows;
};

void tst_RGBEditFrame::init()
{
    m_frame = new RGBEditFrame;
    m_rows = {{RGBEditFrame::R, {*m_frame, "frameR"}},
              {RGBEditFrame::G, {*m_frame, "frameG"}},
              {RGBEditFrame::B, {*m_frame, "frameB"}}};
}

void tst_RGBEditFrame::cleanup()
{
    delete m_frame;
}

void tst_RGBEditFrame::startsGrey()
{
    int r = 0, g = 0, b = 0;
    m_frame->value(r, g, b);
    QCOMPARE(QList<int>({r, g, b}), QList<int>({50, 50, 50}));
    QCOMPARE(m_frame->objectName(), QStringLiteral("RGBEditFrame"));
    QCOMPARE(m_frame->property("isSliderFrame"), QVariant(true));
    const QMap<int, QByteArray> colors {{RGBEditFrame::R, "isColorControl_Red"},
                                        {RGBEditFrame::G, "isColorControl_Green"},
                                        {RGBEditFrame::B, "isColorControl_Blue"}};
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
        QCOMPARE(row->slider->dynamicPropertyNames(), QList<QByteArray> {colors.value(row.key())});
        QCOMPARE(row->slider->property(colors.value(row.key())), QVariant(true));
        QCOMPARE(row->frame->minimum(), 0);
        QCOMPARE(row->frame->maximum(), 255);
    }
}

void tst_RGBEditFrame::reportsAllChannels()
{
    QVERIFY(User::show(*m_frame));
    EventLog log;
    log.watch(m_frame, &RGBEditFrame::valueChanged, QStringLiteral("valueChanged"));
    m_frame->setValue(RGBEditFrame::G, 120);
    QCOMPARE(log.take(), QStringList());
    m_rows[RGBEditFrame::B].enter(QStringLiteral("7"));
    QCOMPARE(log.take(), entered({"valueChanged(50, 120, 7)"}));
    User::click(m_rows[RGBEditFrame::R].minus);
    QCOMPARE(log.take(), QStringList {"valueChanged(49, 120, 7)"});
    User::click(m_rows[RGBEditFrame::G].plus);
    QCOMPARE(log.take(), QStringList {"valueChanged(49, 121, 7)"});
    m_frame->setReleaseMode(true);
    User::drag(m_rows[RGBEditFrame::G].slider, {200, 100, 255});
    QCOMPARE(log.take(), QStringList {"valueChanged(49, 255, 7)"});
    // A range that clamps the shown value is the program's doing.
    m_frame->setRange(RGBEditFrame::G, 0, 90);
    QCOMPARE(log.take(), QStringList());
    int r = 0, g = 0, b = 0;
    m_frame->value(r, g, b);
    QCOMPARE(QList<int>({r, g, b}), QList<int>({49, 90, 7}));
}

void tst_RGBEditFrame::rowOperation()
{
    QFETCH(int, index);
    const auto &operation = m_rowOperations[index];
    CompositeCases::checkRowOperation(operation, *m_frame, m_rows, operation.rgbWarning,
                                      QStringLiteral("RGBEditFrame::") + operation.name);
}

void tst_RGBEditFrame::allRowsOperation()
{
    QFETCH(int, index);
    CompositeCases::checkAllRowsOperation(m_allRowsOperations[index], *m_frame, m_rows);
}

void tst_RGBEditFrame::spacing()
{
    m_frame->setVerticalSpacing(9);
    QCOMPARE(m_frame->layout()->spacing(), 9);
    CompositeCases::checkLastSpacer(*m_frame, "20x20 Minimum Expanding");
}

void tst_RGBEditFrame::labelMaxLength()
{
    const Row &red = m_rows[RGBEditFrame::R];
    QCOMPARE(m_frame->labelMaxLength(), 0);
    // Only the red row's font measures.
    red.frame->setFont(QFont(red.frame->font().family(), 20));
    m_rows[RGBEditFrame::B].frame->setFont(QFont(red.frame->font().family(), 40));
    m_frame->setLabelText(RGBEditFrame::R, QStringLiteral("i"));
    m_frame->setLabelText(RGBEditFrame::G, QStringLiteral("W"));
    m_frame->setLabelText(RGBEditFrame::B, QStringLiteral("i"));
    QCOMPARE(m_frame->labelMaxLength(), CompositeCases::textWidth(red, QStringLiteral("W")));
    for (const int flag : m_rows.keys()) {
        const QString text = QStringLiteral("Long label %1").arg(QString(flag, QLatin1Char('W')));
        m_frame->setLabelText(static_cast<RGBEditFrame::Type>(flag), text);
        QCOMPARE(m_frame->labelMaxLength(), CompositeCases::textWidth(red, text));
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_RGBEditFrame>(argc, argv);
}

#include "tst_rgbeditframe.moc"
