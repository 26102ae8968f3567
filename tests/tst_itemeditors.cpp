#include "editoruser.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableWidget>

using namespace Vantor::Widgets;

// Rows and fields that a delegate creates for a table: the model receives what was typed.
class tst_ItemEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries() { runTestCode(); }
};

namespace {

template <typename Editor> class Delegate : public QStyledItemDelegate
{
public:
    Delegate(bool hasProxy, EntryOptions options) : m_hasProxy(hasProxy), m_options(options) { }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &) const override
    {
        auto *const editor = new Editor(parent);
        editor->setEntryOptions(m_options);
        editor->setAutoFillBackground(true);
        if (m_hasProxy)
            editor->setFocusProxy(editor->template findChild<QAbstractSpinBox *>());
        return editor;
    }

private:
    const bool m_hasProxy;
    const EntryOptions m_options;
};

// A table of two cells that contain 50, with a field beside it.
template <typename Editor>
void check(bool hasProxy, EntryOptions options, const QString &typed, const QString &end,
           int expected)
{
    QWidget page;
    page.setLayout(new QVBoxLayout);
    auto *const table = new QTableWidget(2, 1);
    auto *const beside = new QLineEdit;
    page.layout()->addWidget(table);
    page.layout()->addWidget(beside);
    Delegate<Editor> delegate(hasProxy, options);
    table->setItemDelegate(&delegate);
    table->setColumnWidth(0, 500);
    table->verticalHeader()->setDefaultSectionSize(60);
    for (int row = 0; row < 2; ++row) {
        table->setItem(row, 0, new QTableWidgetItem);
        table->item(row, 0)->setData(Qt::EditRole, 50);
    }
    page.resize(700, 400);
    QVERIFY(User::show(page));
    table->setFocus();
    table->setCurrentCell(0, 0);
    if (end == "any key") {
        table->setEditTriggers(QAbstractItemView::AnyKeyPressed);
        User::type(typed.left(1));
    } else {
        table->editItem(table->item(0, 0));
    }
    const QPointer<QWidget> editor = table->findChild<Editor *>();
    QVERIFY(editor);
    auto *field = qobject_cast<QAbstractSpinBox *>(editor.data());
    if (field == nullptr)
        field = editor->findChild<QAbstractSpinBox *>();
    QCoreApplication::processEvents(); // the layout
    if (end != "any key" && !field->hasFocus())
        User::click(field);
    QCoreApplication::processEvents();
    QVERIFY(field->hasFocus());
    User::type(end == "any key" ? typed.mid(1) : typed);
    if (end == "cell")
        User::pressAt(table->viewport(), table->visualItemRect(table->item(1, 0)).center());
    else if (end == "program")
        table->setCurrentCell(1, 0);
    else if (end == "beside")
        User::click(beside);
    else
        User::press(end == "Escape" ? Qt::Key_Escape : end == "Tab" ? Qt::Key_Tab : Qt::Key_Return);
    QTRY_VERIFY(!editor);
    QCOMPARE(table->item(0, 0)->data(Qt::EditRole).toInt(), expected);
    QCOMPARE(table->item(1, 0)->data(Qt::EditRole).toInt(), 50);
}

template <typename Editor> void addEditor(bool hasProxy, int options)
{
    const auto add = [=](const QString &typed, const QString &end, int expected) {
        QTest::addRow("%s%s, options %d: %s, %s", Editor::staticMetaObject.className(),
                      hasProxy ? ", proxy" : "", options, qPrintable(typed), qPrintable(end))
            << TestCode(
                   [=] { check<Editor>(hasProxy, EntryOptions(options), typed, end, expected); });
    };
    for (const QString end : {"Tab", "Enter", "cell", "beside"}) {
        add("77", end, 77);
        add("12*3", end, 36);
    }
    add("77", "Escape", 50);
    if (hasProxy) {
        add("77", "any key", 77);
        add("77", "program", 77);
    }
}

} // namespace

void tst_ItemEditors::entries_data()
{
    QTest::addColumn<TestCode>("code");
    for (const int options : {0, int(EnterStays), int(EscapeRestores) | int(ExactEntry)}) {
        for (const bool hasProxy : {false, true}) {
            addEditor<SliderEditFrame>(hasProxy, options);
            addEditor<SliderEditFrameDouble>(hasProxy, options);
        }
        addEditor<SliderEditSpinBox>(false, options);
        addEditor<SliderEditDoubleSpinBox>(false, options);
    }
}

QTEST_MAIN(tst_ItemEditors)

#include "tst_itemeditors.moc"
