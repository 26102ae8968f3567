#include "editoruser.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QDialog>

using namespace Vantor::Widgets;

// At rest the field of a slider editor shows its value, which is also the last report, if
// there was one, whatever was typed, pasted or stepped.
class tst_TypedEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries() { runTestCode(); }
    void windows_data();
    void windows() { runTestCode(); }
    void replacedLineEdit();
};

// The name contains the range, the value and perhaps the decimals, and what is shown at the end.
template <typename Frame> static void addEntry(const QString &name, const QString &steps)
{
    const QStringList numbers = name.section(" -> ", 0, 0).split(' ');
    const QString shown = name.section(" -> ", 1);
    QString row = (UserOf<Frame>::isWhole ? "int " : "double ") + name + " | " + steps;
    row.replace('\n', "Enter").replace('\t', "Tab").replace('\b', "Backspace");
    QTest::newRow(qPrintable(row)) << TestCode([=] {
        UserOf<Frame> user(1);
        if (numbers.size() > 3)
            user.perform("decimals " + numbers[3]);
        user.play("range " + numbers[0] + ' ' + numbers[1] + " | value " + numbers[2]);
        user.play(steps + " | shown: " + shown);
        // Entering and leaving the field again reports nothing.
        user.performAll("show | click | elsewhere");
        QCOMPARE(user.shown(), shown);
        QCOMPARE(user.heard().remove("finished").trimmed(), QString());
    });
}

void tst_TypedEntries::entries_data()
{
    QTest::addColumn<TestCode>("code");
    addTable(DATA "/typedentries.txt",
             {{"int", addEntry<SliderEditFrame>}, {"double", addEntry<SliderEditFrameDouble>}});
}

namespace {

void showIn(QWidget &window, const EditorRow &row)
{
    row.frame->setParent(&window);
    row.frame->show();
    QVERIFY(User::show(window));
    row.spinBox->setFocus();
}

struct ShownByItsConstructor : QDialog
{
    explicit ShownByItsConstructor(const EditorRow &row) { showIn(*this, row); }
};

// A class of the host: the window is still of its base class when the field receives
// the focus, and again when its destructor hides the field.
struct HostDialog : ShownByItsConstructor
{
    using ShownByItsConstructor::ShownByItsConstructor;
};

template <typename SpinBox> struct WithPlainField : SpinBox
{
    WithPlainField() { this->setLineEdit(new QLineEdit); }
};

void destroyAfter(EditorUser &user, const QString &gesture, QWidget *window)
{
    showIn(*window, user.rows[0]);
    user.performAll("edits | " + gesture);
    QVERIFY(user.heard().contains("start"));
    delete window;
    QCOMPARE(user.heard(), QString());
}

} // namespace

// Qt hides an editor after the host's part of its window is destroyed. A pending entry is
// then dropped, a gesture reports nothing, and its edit does not end.
void tst_TypedEntries::windows_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QString gesture :
         {"type 42", "type 1+1", "type 7=", "hold 40", "released | hold 40", "push"}) {
        addForBoth("widget, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new QWidget); });
        // It is then already a plain widget.
        addForBoth("frame, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new QFrame); });
        addForBoth("host's dialog, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new HostDialog(user.row)); });
    }
    addForBoth("shown by its constructor", [](auto &user) {
        HostDialog window(user.row);
        QCoreApplication::processEvents();
        user.row.field->selectAll();
        user.play(user.isWhole ? "keys 1/4*4\t: finished 1 finished" : "keys 1/4*4\t: 100");
        user.frame->setParent(&user.page);
    });
}

// A line edit that a subclass sets instead of the calculator's evaluates nothing.
void tst_TypedEntries::replacedLineEdit()
{
    const auto check = [](auto &&box) {
        box.setSuffix("s");
        box.setSlotEditingFinished();
        QVERIFY(User::show(box));
        box.setFocus();
        box.selectAll();
        User::type("50");
        User::press(Qt::Key_Up);
        QCOMPARE(int(box.value()), 51);
    };
    check(WithPlainField<SliderEditSpinBox>());
    check(WithPlainField<SliderEditDoubleSpinBox>());
}

QTEST_MAIN(tst_TypedEntries)

#include "tst_typedentries.moc"
