#include "editorrow.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QDialog>

#include <climits>

using namespace Vantor::Widgets;

// What the field of a slider editor shows at rest is its value and, if there was
// one, its last report, whatever was typed, pasted or stepped.
class tst_TypedEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whole_data();
    void whole() { play<SliderEditFrame>(); }
    void fraction_data();
    void fraction() { play<SliderEditFrameDouble>(); }
    void refused_data();
    void refused();
    void inADestroyedWindow_data();
    void inADestroyedWindow() { run(); }
    void inAWindowShownByItsConstructor_data();
    void inAWindowShownByItsConstructor() { run(); }
    void leavesTheHostItsEvents_data();
    void leavesTheHostItsEvents() { run(); }
    void focusProxy_data();
    void focusProxy() { run(); }
    void replacedLineEdit();

private:
    static void run()
    {
        QFETCH(Check, check);
        check();
    }
    template <typename Frame> static void play();
};

namespace {

struct Range
{
    double min, max, value;
    int decimals = 2;
};

} // namespace

Q_DECLARE_METATYPE(Range)

namespace {

// Types the text over what the field shows. What stands in "[]" is pasted, "^" and
// "v" are arrow keys, "#" a click elsewhere, "@" one into the field again, and "!"
// hides the row.
template <typename Row> void enter(Row &row, const QString &text)
{
    row.type({});
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == '[') {
            const int end = static_cast<int>(text.lastIndexOf(']'));
            User::paste(text.mid(i + 1, end - i - 1));
            i = end;
        } else if (c == '^' || c == 'v') {
            User::press(c == '^' ? Qt::Key_Up : Qt::Key_Down);
        } else if (c == '#') {
            QTest::mouseClick(row.page.windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
            row.page.setFocus();
        } else if (c == '!') {
            row.frame->hide();
        } else if (c == '@') {
            row.type({});
        } else {
            User::type(c);
        }
    }
}

// The numbers that were reported, without the messages around them.
QString reportsOf(EventLog &log)
{
    QStringList reports;
    for (const QString &entry : log.take()) {
        if (entry.startsWith("valueChanged"))
            reports.append(entry.mid(13).chopped(1));
        else if (!entry.startsWith("debug: SpinBox") && entry != "page: key")
            reports.append(entry);
    }
    return reports.join(' ');
}

void addColumns()
{
    QTest::addColumn<Range>("range");
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reports");
    QTest::addColumn<QString>("text");
}

void add(const Range &range, const QString &typed, const QString &reports, const QString &text,
         const QVariantMap &settings = {})
{
    QString name = QStringLiteral("%1 in %2..%3").arg(typed).arg(range.min).arg(range.max);
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        name += ' ' + setting.key();
    QTest::newRow(qPrintable(name.replace('\n', "Enter").replace('\t', "Tab")))
        << range << settings << typed << reports << text;
}

} // namespace

template <typename Frame> void tst_TypedEntries::play()
{
    QFETCH(Range, range);
    QFETCH(QVariantMap, settings);
    QFETCH(QString, typed);
    EditorRow<Frame> row;
    using Value = typename EditorRow<Frame>::Value;
    if constexpr (!EditorRow<Frame>::isInt)
        row.frame->setDecimals(range.decimals);
    row.frame->setRange(static_cast<Value>(range.min), static_cast<Value>(range.max));
    row.frame->setValue(static_cast<Value>(range.value));
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        row.spinBox->setProperty(qPrintable(setting.key()), setting.value());
    QVERIFY(User::show(row.page));
    row.page.setFocus();
    row.log.take();
    enter(row, typed);
    QTEST(row.spinBox->text(), "text");
    QTEST(reportsOf(row.log), "reports");
    // Another pass of the focus finds nothing new.
    row.frame->show();
    enter(row, "#");
    QTEST(row.spinBox->text(), "text");
    QCOMPARE(reportsOf(row.log), QString());
}

void tst_TypedEntries::whole_data()
{
    addColumns();
    const Range any {INT_MIN, INT_MAX, 10}, precise {0, 16777217, 16777217}, hundred {0, 100, 50};
    add(any, "2147483647\n", "2147483647", "2147483647");
    add(any, "9999999999\t", "2147483647", "2147483647");
    add(any, "-9999999999#", "-2147483648", "-2147483648");
    add(any, "16777217\n", "16777216", "16777216"); // the calculator's precision
    add(precise, "((1)\n", "", "16777217");
    add(precise, "[1 000]!", "", "16777217");
    add(precise, "0/0\t", "", "16777217");
    add(hundred, "127/2\n", "64", "64");
    add(hundred, "127/2!", "64", "64");
    add(hundred, "127/2^#", "65", "65");
    add(hundred, "127/2v#", "63", "63");
    add(hundred, "1/0^#", "51", "51");
    add(hundred, "7^#", "8", "8");
    add(hundred, "[for(i=0;i<9;i++);7=]\t", "7", "7");
    add(hundred, "12*3\n", "36", "36 px", {{"suffix", " px"}});
    add(hundred, "12*3=#", "36", "36 px", {{"suffix", " px"}});
    add(hundred, "12*3\t", "36", "$36", {{"prefix", "$"}});
    add(hundred, "07a^#", "8", "+8/s", {{"prefix", "+"}, {"suffix", "/s"}});
    add({0, 9999999, 1234567}, "1/0\n", "", "1234567 px", {{"suffix", " px"}});
    add({0, 9999, 1234}, "1,234\n", "234", "234"); // a comma groups no digits
    add({0, 9999, 10}, "1,234^#", "235", "235");
    add({0, 100, 0}, "#", "", "off", {{"specialValueText", "off"}});
    add({0, 100, 7}, "0\n", "0", "off", {{"specialValueText", "off"}});
}

void tst_TypedEntries::fraction_data()
{
    addColumns();
    const Range ten {0, 10, 1}, thousandths {0, 9999, 1.234, 3}, great {0, 9999999, 1234567.891, 3};
    add(ten, "4.6=#", "4.6", "4.60");
    add(ten, "4.6=+\n", "4.6", "4.60"); // the last result that was accepted counts
    add(ten, "0/0\n", "", "1.00");
    add(ten, "5/4^#", "1.26", "1.26");
    add(ten, "3/2!", "1.5", "1.50");
    add(thousandths, "0/0\n", "", "1.234");
    add(thousandths, "[1,,2]#", "", "1.234");
    add({0, 1e7, 1234567, 2}, "1/0\n", "", "1234567.00"); // shown as 1.23457e+06
    add({0, 99999, 12345.67, 2}, "1/0\t", "", "12345.67");
    add({0, 99999, 12345.67, 2}, "1/0\t", "", "$12345.67", {{"prefix", "$"}});
    add(ten, "2.5\n", "2.5", "2.50", {{"locale", QLocale(QLocale::German)}});
    const QVariantMap mm {{"suffix", "mm"}};
    add(thousandths, "#", "", "1.234mm", mm);
    add(great, "#", "", "1234567.891mm", mm);
    add({0, 9999, 2, 4}, "#", "", "2.0000mm", mm);
    add(ten, "3#", "3", "3.00mm", mm);
    add(ten, "3/2=#", "1.5", "1.50mm", mm);
    add(ten, "3/2\n", "1.5", "$1.50", {{"prefix", "$"}});
    add({0, 10, 0}, "#", "", "off", {{"specialValueText", "off"}, {"suffix", "mm"}});
}

void tst_TypedEntries::refused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isRefused");
    const auto add = [](const char *typed, bool isRefused) {
        QTest::newRow(typed) << typed << isRefused;
    };
    add("5\n", false);
    add("1/0\n", true);
    add("0/0\t", true);
    add("2+=", true);
    add("[while(1);]#", true);
    add("1/0\n@3", false); // edited
    add("1/0\n@10", false); // to what is shown
    add("1/0^", false); // another value
    add("1/0\n+", false); // the button
    add("1/0\ns", false); // the host's value
    add("1/0\n#", true);
}

// Style sheets see it at once: the field of a refused entry is red.
void tst_TypedEntries::refused()
{
    QFETCH(QString, typed);
    EditorRow<SliderEditFrame> row;
    row.page.setStyleSheet(
        "QSpinBox { color: black } QSpinBox[isEntryRefused=\"true\"] { color: red }");
    QVERIFY(User::show(row.page));
    const bool isHost = typed.endsWith('s'), isButton = typed.endsWith("\n+");
    enter(row, isHost || isButton ? typed.chopped(1) : typed);
    if (isHost)
        row.frame->setValue(10);
    if (isButton)
        User::click(row.plus);
    QTEST(row.spinBox->property("isEntryRefused").toBool(), "isRefused");
    const bool isRed = row.spinBox->palette().color(QPalette::Text) == Qt::red;
    QTEST(isRed, "isRefused");
}

namespace {

template <typename Window> struct Host : Window
{
    using Window::Window;
    ~Host() override { isGone = true; }
    void receive() { QVERIFY(!isGone); }
    bool isGone = false;
};

template <typename Window, typename Row> void destroyWindow(Row &row, const QString &typed)
{
    auto *const window = new Window;
    row.frame->setParent(window);
    row.frame->show();
    QVERIFY(User::show(*window));
    User::click(row.spinBox);
    QCoreApplication::processEvents();
    User::type(typed);
    row.log.take();
    delete window;
    QCOMPARE(row.log.take(), QStringList());
}

} // namespace

// Qt hides it when the host's part of it is gone; a pending entry is dropped.
void tst_TypedEntries::inADestroyedWindow_data()
{
    QTest::addColumn<Check>("check");
    for (const QString typed : {"42", "1+1", "7="}) {
        addForBoth("widget, " + typed, [=](auto &row) { destroyWindow<QWidget>(row, typed); });
        addForBoth("host's widget, " + typed,
                   [=](auto &row) { destroyWindow<Host<QWidget>>(row, typed); });
        addForBoth("host's dialog, " + typed,
                   [=](auto &row) { destroyWindow<Host<QDialog>>(row, typed); });
    }
}

// The window is of its base class as yet when the field gets the focus.
void tst_TypedEntries::inAWindowShownByItsConstructor_data()
{
    QTest::addColumn<Check>("check");
    addForBoth("dialog", [](auto &row) {
        struct Shown : QDialog
        {
            explicit Shown(decltype(row) row)
            {
                row.frame->setParent(this);
                row.frame->show();
                User::show(*this);
                row.spinBox->setFocus();
            }
        };
        Host<Shown> window(row);
        QCoreApplication::processEvents();
        row.field->selectAll();
        User::type("1/4*4\t");
        QCOMPARE(reportsOf(row.log), QString("1"));
        row.frame->setParent(&row.page);
    });
}

// Timers of the host and what the user does next wait for the end of a script. A
// dialog may close on a key then, and go.
void tst_TypedEntries::leavesTheHostItsEvents_data()
{
    QTest::addColumn<Check>("check");
    for (const QString script : {"for(;;){}", "for(i=1;i<1e4;i++);7"}) {
        const bool isEndless = script.contains("{}");
        for (const QString end : {"\n", "\t", "="}) {
            addForBoth(script + QString(end).replace('\n', "Enter").replace('\t', "Tab"),
                       [=](auto &row) {
                           row.type({});
                           User::paste(script);
                           row.log.take();
                           QTimer::singleShot(0, &row.page, [&row] { row.log.add("host"); });
                           User::type(end);
                           // With "=" the floating-point field reports when it is left.
                           const QString reports = reportsOf(row.log);
                           const bool isReported = !isEndless && (row.isInt || end != "=");
                           QCOMPARE(reports, QString(isReported ? row.isInt ? "7" : "1" : ""));
                           QString later;
                           QTRY_COMPARE(later += reportsOf(row.log), QString("host"));
                       });
        }
        addForBoth(script + " and Escape", [=](auto &row) {
            auto *const dialog = new QDialog;
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->setLayout(new QVBoxLayout);
            dialog->layout()->addWidget(row.frame);
            QVERIFY(User::show(*dialog));
            row.type({});
            User::paste(script);
            QApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, {}));
            User::type("\t");
            QPointer<QWidget> watched(dialog);
            QVERIFY(watched);
            QTRY_VERIFY(!watched);
        });
    }
}

// Enter can't hand the focus to the row then.
void tst_TypedEntries::focusProxy_data()
{
    QTest::addColumn<Check>("check");
    addForBoth("Enter", [](auto &row) {
        row.frame->setFocusProxy(row.spinBox);
        enter(row, "3*9\n");
        QCOMPARE(reportsOf(row.log), QString(row.isInt ? "27" : "1"));
        QVERIFY(row.spinBox->hasFocus());
    });
}

void tst_TypedEntries::replacedLineEdit()
{
    struct Box : SliderEditSpinBox
    {
        Box() { setLineEdit(new QLineEdit); }
    } box;
    box.setSpinBoxCal(7, 100, 0, 0, 2);
    box.setSlotEditingFinished();
    QVERIFY(User::show(box));
    box.setFocus();
    User::type("5");
    User::press(Qt::Key_Up);
    QCOMPARE(box.value(), 51);
}

int main(int argc, char *argv[])
{
    return runTest<tst_TypedEntries>(argc, argv);
}

#include "tst_typedentries.moc"
