#include "cropeditframe.h"
#include "editoruser.h"
#include "reducetabstops.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>

using namespace Vantor::Widgets;

// Two tab stops in each row, and the other ways by which the focus comes to its widgets.
class tst_ReduceTabStops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chain();
    void row_data();
    void row() { runTestCode(); }
};

// From the first widget that a dialog gives the focus to, and with a row that is added later.
void tst_ReduceTabStops::chain()
{
    reduceTabStops(nullptr);
    QDialog dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    layout->addWidget(new SliderEditFrame);
    reduceTabStops(&dialog);
    layout->addWidget(new SliderEditFrameDouble);
    auto *const crop = new CropEditFrame;
    crop->setSizeLockEnable(true, CropEditFrame::OffsetLock);
    layout->addWidget(crop);
    layout->addWidget(new QPushButton);
    QCoreApplication::processEvents();
    QVERIFY(User::show(dialog));
    QStringList stops;
    for (int i = 0; i < 14; ++i) {
        stops.append(QApplication::focusWidget()->objectName());
        User::type("\t");
    }
    QCOMPARE(stops.join(' '),
             QString("slider spinBox slider doubleSpinBox slider spinBox slider spinBox "
                     "slider spinBox slider spinBox toolButtonLockSize "));
}

void tst_ReduceTabStops::row_data()
{
    QTest::addColumn<TestCode>("code");
    addForBoth("Enter", [](auto &user) {
        reduceTabStops(user.frame);
        user.play("enter 0: 0 | focused: editor");
        User::type("\t");
        QVERIFY(user.row.slider->hasFocus());
    });
    addForBoth("a button ends an entry", [](auto &user) {
        reduceTabStops(user.frame);
        user.performAll("click 0 | plus");
        QVERIFY(user.row.plus->hasFocus());
        QCOMPARE(user.shown(), QString("1"));
    });
    addForBoth("the label", [](auto &user) {
        User::click(user.row.label);
        QVERIFY(!user.row.spinBox->hasFocus());
        reduceTabStops(&user.page);
        User::click(user.row.label);
        QVERIFY(user.row.spinBox->hasFocus());
        user.play("selected: all");
    });
}

QTEST_MAIN(tst_ReduceTabStops)

#include "tst_reducetabstops.moc"
