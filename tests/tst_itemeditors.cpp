#include "editoruser.h"
#include "layouteditframe.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableWidget>

using namespace Vantor::Widgets;

// Editors that a delegate creates for a table: the model receives what was typed.
class tst_ItemEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries() { runTestCode(); }
};

namespace {

template <typename Editor> void setUp(Editor &editor)
{
    if constexpr (std::is_same_v<CropEditFrame, Editor>)
        editor.setCropRange(200, 200);
    else if constexpr (std::is_same_v<MaskEditFrame, Editor>)
        editor.setMaskRange(200, 200);
    else if constexpr (std::is_same_v<RectEditFrame, Editor>)
        editor.setPositionLockEnable(true);
}

struct Delegate : QStyledItemDelegate
{
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        return create(parent);
    }

    std::function<QWidget *(QWidget *)> create;
};

template <typename Editor> QVariant itemOf(const QVector<int> &values)
{
    Editor editor;
    setUp(editor);
    const auto rows = editor.template findChildren<SliderEditFrame *>();
    for (int i = 0; i < rows.size(); ++i)
        rows[i]->setValue(values[i]);
    return rows.isEmpty() ? values.first() : editor.metaObject()->userProperty().read(&editor);
}

// The user of a table of two cells, both with that item and the first one in its editor, and of a
// field beside it. The words of the steps are keys, what else is clicked, or typed text.
template <typename Editor>
void check(bool hasProxy, EntryOptions options, const QString &steps, const QVariant &item,
           const QVariant &expected)
{
    Delegate delegate;
    delegate.create = [=](QWidget *parent) {
        auto *const editor = new Editor(parent);
        setUp(*editor);
        editor->setAutoFillBackground(true);
        editor->setEntryOptions(options);
        if (hasProxy)
            editor->setFocusProxy(editor->template findChild<QAbstractSpinBox *>());
        return editor;
    };
    QWidget page;
    page.setLayout(new QVBoxLayout);
    auto *const table = new QTableWidget(2, 1);
    auto *const beside = new QLineEdit;
    page.layout()->addWidget(table);
    page.layout()->addWidget(beside);
    table->setItemDelegate(&delegate);
    table->setEditTriggers(QAbstractItemView::AnyKeyPressed);
    table->setColumnWidth(0, 600);
    table->verticalHeader()->setDefaultSectionSize(180);
    for (int row = 0; row < 2; ++row) {
        table->setItem(row, 0, new QTableWidgetItem);
        table->item(row, 0)->setData(Qt::EditRole, item);
    }
    page.resize(700, 500);
    QVERIFY(User::show(page));
    table->setFocus();
    table->setCurrentCell(0, 0);
    QStringList words = steps.split(' ');
    if (words.removeOne("key"))
        User::type(words.takeFirst());
    else
        table->editItem(table->item(0, 0));
    const QPointer<QWidget> editor = table->findChild<Editor *>();
    for (const QString &word : words) {
        QWidget *const focus = QApplication::focusWidget();
        QVERIFY2(editor && (editor == focus || editor->isAncestorOf(focus)), qPrintable(word));
        QCoreApplication::processEvents(); // the layout, the selection
        if (word == "cell")
            User::pressAt(table->viewport(), table->visualItemRect(table->item(1, 0)).center());
        else if (word == "program")
            table->setCurrentCell(1, 0);
        else if (word == "beside")
            User::click(beside);
        else if (auto *const part = editor->findChild<QWidget *>(word))
            User::click(part);
        else
            User::typeOrPress(word);
    }
    QVERIFY(comesTrue([&editor] { return !editor; }));
    QCOMPARE(table->item(0, 0)->data(Qt::EditRole), expected);
    QCOMPARE(table->item(1, 0)->data(Qt::EditRole), item);
    // What the user does next.
    const bool isNextOpen = words.last() == "Tab";
    QCOMPARE(table->findChild<Editor *>() != nullptr, isNextOpen);
    QVERIFY(words.last() == "beside" ? beside->hasFocus()
                : isNextOpen         ? table->viewport()->isAncestorOf(QApplication::focusWidget())
                                     : table->hasFocus());
}

template <typename Editor>
void add(bool hasProxy, int options, const QString &steps, const QVector<int> &expected)
{
    QTest::addRow("%s%s, options %d: %s", Editor::staticMetaObject.className(),
                  hasProxy ? ", proxy" : "", options, qPrintable(steps))
        << TestCode([=] {
               const QVector<int> values {50, 51, 52, 53};
               check<Editor>(hasProxy, EntryOptions(options), steps, itemOf<Editor>(values),
                             itemOf<Editor>(expected + values.mid(expected.size())));
           });
}

template <typename Editor> void addEditor(bool hasProxy, int options)
{
    for (const QString end : {"Tab", "Return", "cell", "beside"}) {
        add<Editor>(hasProxy, options, "77 " + end, {77});
        add<Editor>(hasProxy, options, "12*3 " + end, {36});
    }
    add<Editor>(hasProxy, options, "77 Escape", {50});
    add<Editor>(hasProxy, options, "key 7 7 Tab", {77});
}

template <typename Row> void addRow(int options)
{
    for (const bool hasProxy : {false, true}) {
        addEditor<Row>(hasProxy, options);
        add<Row>(hasProxy, options, "77 program", {77});
        add<Row>(hasProxy, options, "7 slider Tab 77 sliderEditPlus Tab", {78});
        for (const QString end : {"Return", "cell", "beside", "program"})
            add<Row>(hasProxy, options, "77 slider " + end, {67}); // a page step
        add<Row>(hasProxy, options, "77 slider Escape", {});
    }
}

template <typename Editor> void addComposite()
{
    const auto add = [](const QString &steps, const QVector<int> &expected) {
        ::add<Editor>(false, 0, steps, expected);
    };
    const int fields = int(Editor().template findChildren<SliderEditFrame *>().size());
    const QString all =
        QString("key 7 Tab 12*3 Tab 9 Tab 10").section(' ', 0, 2 * fields - 1) + ' ';
    for (const QString end : {"Tab", "Return", "cell", "beside", "program"})
        add(all + end, {7, 36, 9, 10});
    add(all + "Escape", {});
    add("7 Tab 8 Backtab 9 Return", {9, 8});
    add("7 slider Tab 9 slider sliderEditPlus Tab 8 Return", {20, 8});
}

} // namespace

void tst_ItemEditors::entries_data()
{
    QTest::addColumn<TestCode>("code");
    for (const int options : {0, int(EnterStays), int(EscapeRestores) | int(ExactEntry)}) {
        addRow<SliderEditFrame>(options);
        addRow<SliderEditFrameDouble>(options);
        addEditor<SliderEditSpinBox>(false, options);
        addEditor<SliderEditDoubleSpinBox>(false, options);
    }
    addComposite<RGBEditFrame>();
    addComposite<RGBAllEditFrame>();
    addComposite<RGBOpacityEditFrame>();
    addComposite<RectEditFrame>();
    addComposite<CropEditFrame>();
    addComposite<MaskEditFrame>();
    // The lock works from the values shown when it is clicked.
    add<RectEditFrame>(false, 0, "77 toolButtonLockPosition Tab 80 Return", {79, 80});
}

QTEST_MAIN(tst_ItemEditors)

#include "tst_itemeditors.moc"
