// Compares the library's editors with the same work done by bare Qt widgets
// and prints one table. A figure is a ratio within one run, so it depends
// little on the machine.

#include "bareeditors.h"
#include "comparison.h"
#include "heapcounter.h"
#include "picture.h"
#include "userevents.h"

#include "cropeditframe.h"
#include "rgballeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"

#include <QtCore/QFile>
#include <QtCore/QSignalBlocker>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QtScript/QScriptEngine>
using ScriptEngine = QScriptEngine;
#else
#include <QtQml/QJSEngine>
using ScriptEngine = QJSEngine;
#endif

using namespace Vantor::Widgets;

namespace {

// Editors built in one sample, moves of one drag, keys in one sample and so on:
// enough that the overhead of the clock is negligible.
constexpr int batch = 50;
constexpr int rounds = 41;

QString microseconds(Nanoseconds time)
{
    return QStringLiteral("%1 µs").arg(time.count() / 1000, 0, 'f', 2);
}

Figure ratio(const QString &what, double goal, const Comparison &result)
{
    return {what, microseconds(result.ours), microseconds(result.bare), result.ratio, goal};
}

// Building and heap

template <typename Editor> Nanoseconds buildAndDelete()
{
    return timed(batch, [] {
        for (int i = 0; i < batch; ++i) {
            const std::unique_ptr<QWidget> editor(new Editor);
        }
    });
}

// The heap of one of many editors. As many editors, deleted before, leave free blocks of
// the right sizes: a block that was split off a larger one counts for more.
template <typename Editor> HeapCount heapOf()
{
    std::vector<std::unique_ptr<QWidget>> editors(batch);
    for (auto &editor : editors) {
        editor.reset(new Editor);
    }
    editors = std::vector<std::unique_ptr<QWidget>>(batch);
    const HeapCount before = heapCount();
    for (auto &editor : editors) {
        editor.reset(new Editor);
    }
    const HeapCount after = heapCount();
    return {(after.bytesHeld - before.bytesHeld) / batch,
            (after.allocations - before.allocations) / batch};
}

template <typename Editor, typename Bare>
void compareBuilding(const QString &name, double timeGoal, double heapGoal,
                     std::vector<Figure> &figures)
{
    figures.push_back(ratio(QStringLiteral("Build and delete one ") + name, timeGoal,
                            compare(rounds, buildAndDelete<Editor>, buildAndDelete<Bare>)));
    const auto ours = double(heapOf<Editor>().bytesHeld);
    const auto bare = double(heapOf<Bare>().bytesHeld);
    const auto kilobytes = [](double bytes) {
        return QStringLiteral("%1 kB").arg(bytes / 1000, 0, 'f', 1);
    };
    figures.push_back({QStringLiteral("Heap held by one ") + name, kilobytes(ours), kilobytes(bare),
                       ours / bare, heapGoal});
}

Figure countAllocations()
{
    const auto ours = double(heapOf<SliderEditFrame>().allocations);
    const auto bare = double(heapOf<BareRow>().allocations);
    return {QStringLiteral("Allocations of one `SliderEditFrame`"), QString::number(ours),
            QString::number(bare), ours, 480};
}

// A window with one editor in it.
template <typename Editor> struct Shown
{
    Shown()
    {
        window.resize(640, 240);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(editor);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("The window is not shown.");
        }
    }

    QWidget window;
    Editor *editor = new Editor;
};

// Before every sample: some of Qt's work takes longer in a background window.
void activate(const QWidget *widget)
{
    QWidget *window = widget->window();
    window->activateWindow();
    QCoreApplication::processEvents();
    if (!window->isActiveWindow()) {
        qFatal("The window does not become active.");
    }
}

QSpinBox *spinBoxOf(QWidget *editor)
{
    return editor->findChild<QSpinBox *>(QStringLiteral("spinBox"));
}

QSlider *sliderOf(QWidget *editor)
{
    return editor->findChild<QSlider *>(QStringLiteral("slider"));
}

// Values

Figure compareSetValue()
{
    Shown<SliderEditFrame> ours;
    Shown<BareRow> bare;
    ours.editor->setRange(0, 1000);
    bare.editor->setRange(0, 1000);
    const auto sample = [](auto *editor) {
        activate(editor);
        return timed(batch, [editor] {
            for (int i = 0; i < batch; ++i) {
                editor->setValue(100 + i);
            }
        });
    };
    return ratio(
        QStringLiteral("`setValue` on a row"), 1.05,
        compare(
            rounds * 10, [&] { return sample(ours.editor); }, [&] { return sample(bare.editor); }));
}

// Keys

// Types a digit at the end of the text and deletes it again.
Sample typing(QSpinBox *spinBox, const QString &text)
{
    return [spinBox, text] {
        activate(spinBox);
        spinBox->setFocus();
        auto *field = spinBox->findChild<QLineEdit *>();
        field->setText(text);
        const Nanoseconds taken = timed(2 * batch, [] {
            for (int i = 0; i < batch; ++i) {
                User::type(QStringLiteral("4\b"));
            }
        });
        if (field->text() != text) {
            qFatal("The keys did not arrive.");
        }
        return taken;
    };
}

Figure compareShortText()
{
    Shown<SliderEditFrame> ours;
    Shown<BareRow> bare;
    bare.editor->setRange(0, std::numeric_limits<int>::max());
    return ratio(QStringLiteral("A key typed into a 12-character expression"), 1.05,
                 compare(rounds * 4, typing(spinBoxOf(ours.editor), QStringLiteral("12*34+(56-7)")),
                         typing(spinBoxOf(bare.editor), QStringLiteral("123456789"))));
}

Figure compareLongText()
{
    Shown<SliderEditFrame> ours;
    Shown<RewritingSpinBox> bare;
    const QString text = QStringLiteral("12*34+(56-7)+1.5*20-").repeated(20);
    return ratio(QStringLiteral("A key typed into a 400-character expression, beside a bare field "
                                "that rewrites its text"),
                 1.1,
                 compare(rounds, typing(spinBoxOf(ours.editor), text), typing(bare.editor, text)));
}

Figure compareEnter()
{
    Shown<SliderEditFrame> ours;
    Shown<BareRow> bare;
    QSpinBox *field = spinBoxOf(ours.editor);
    const Sample oursSample = [&] {
        activate(field);
        ours.editor->setValue(7);
        field->setFocus();
        field->selectAll();
        User::type(QStringLiteral("12*3"));
        const Nanoseconds taken = timed(1, [] { User::press(Qt::Key_Return); });
        if (ours.editor->value() != 36 || field->hasFocus()) {
            qFatal("The expression was not evaluated.");
        }
        return taken;
    };
    QSpinBox *bareField = bare.editor->ui.spinBox;
    QObject::connect(bareField, &QSpinBox::editingFinished, bareField, [&bare, bareField] {
        if (bareField->hasFocus()) {
            ScriptEngine engine;
            bareField->setValue(qRound(engine.evaluate(QStringLiteral("12*3")).toNumber()));
            bare.editor->setFocus(Qt::OtherFocusReason);
        }
    });
    const Sample bareSample = [&] {
        activate(bareField);
        bare.editor->setValue(7);
        bareField->setFocus();
        bareField->selectAll();
        const Nanoseconds taken = timed(1, [] { User::press(Qt::Key_Return); });
        if (bareField->value() != 36 || bareField->hasFocus()) {
            qFatal("The value was not written.");
        }
        return taken;
    };
    return ratio(QStringLiteral("Enter after `12*3`, beside Enter in a spin box that evaluates "
                                "once, shows the result and hands over the focus"),
                 1.08, compare(rounds * 4, oursSample, bareSample));
}

// Drags

enum class Painting { Excluded, Included };

// Drags the handle back and forth, two pixels per move; reports counts the signals
// that the host has received.
Sample dragging(QSlider *slider, const int *reports, Painting painting = Painting::Excluded)
{
    const auto move = [slider, painting](const QPoint &pos) {
        User::moveTo(slider, pos);
        if (painting == Painting::Included) {
            QCoreApplication::processEvents();
        }
    };
    return [slider, reports, move] {
        activate(slider);
        const QPoint start = User::handleRect(slider, slider->sliderPosition()).center();
        User::pressAt(slider, start);
        const int before = *reports;
        const Nanoseconds taken = timed(2 * batch, [start, move] {
            for (int i = 1; i <= batch; ++i) {
                move(start + QPoint(2 * i, 0));
            }
            for (int i = batch - 1; i >= 0; --i) {
                move(start + QPoint(2 * i, 0));
            }
        });
        if (*reports != before + 2 * batch) {
            qFatal("%d moves caused %d reports.", 2 * batch, *reports - before);
        }
        User::releaseAt(slider, start);
        return taken;
    };
}

// The bare slider has the same nesting depth as the library's: Qt's share of a move
// grows with the depth.
template <typename Editor, typename Bare, typename Prepare>
Figure compareDrag(const QString &what, double goal, int maximum, const Prepare &prepare)
{
    Shown<Editor> ours;
    int ourReports = 0;
    QSlider *ourSlider = sliderOf(prepare(ours.editor, ourReports));

    Shown<Bare> bare;
    int bareReports = 0;
    QSlider *bareSlider = sliderOf(bare.editor);
    QSpinBox *bareField = spinBoxOf(bare.editor);
    bareSlider->setRange(0, maximum);
    bareField->setRange(0, maximum);
    // The slider's value follows the handle, as in the library's rows.
    bareSlider->setTracking(true);
    QObject::connect(bareSlider, &QSlider::valueChanged, bareField, &QSpinBox::setValue);
    QObject::connect(bareField, QOverload<int>::of(&QSpinBox::valueChanged), bareField,
                     [&bareReports] { ++bareReports; });
    bareSlider->setValue(maximum / 10);

    return ratio(
        QStringLiteral("One mouse move of a drag: ") + what, goal,
        compare(rounds * 4, dragging(ourSlider, &ourReports), dragging(bareSlider, &bareReports)));
}

QWidget *prepareCrop(CropEditFrame *editor, int &reports, const QString &draggedRow)
{
    editor->setCropRange(1000, 1000);
    editor->setCropValue(100, 100, 100, 100);
    QObject::connect(editor, &CropEditFrame::cropValueChanged, editor, [&reports] { ++reports; });
    return editor->findChild<SliderEditFrame *>(draggedRow);
}

void compareDrags(std::vector<Figure> &figures)
{
    figures.push_back(compareDrag<SliderEditFrame, BareRow>(
        QStringLiteral("row"), 1.05, 1000, [](SliderEditFrame *editor, int &reports) -> QWidget * {
            editor->setRange(0, 1000);
            editor->setValue(100);
            QObject::connect(editor, &SliderEditFrame::valueChanged, editor,
                             [&reports] { ++reports; });
            return editor;
        }));
    figures.push_back(compareDrag<RGBAllEditFrame, BarePanels>(
        QStringLiteral("`RGBAllEditFrame`"), 1.10, 255, [](RGBAllEditFrame *editor, int &reports) {
            QObject::connect(editor, &RGBAllEditFrame::valueChanged, editor,
                             [&reports] { ++reports; });
            return editor->findChild<QWidget *>(QStringLiteral("frameG"));
        }));
    figures.push_back(compareDrag<CropEditFrame, BarePanels>(
        QStringLiteral("`CropEditFrame`"), 1.15, 1000, [](CropEditFrame *editor, int &reports) {
            return prepareCrop(editor, reports, QStringLiteral("frameX"));
        }));
    figures.push_back(compareDrag<CropEditFrame, BarePanels>(
        QStringLiteral("`CropEditFrame` with the proportional lock"), 2.0, 1000,
        [](CropEditFrame *editor, int &reports) {
            QWidget *row = prepareCrop(editor, reports, QStringLiteral("frameWidth"));
            editor->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
            editor->setSizeLock(true);
            return row;
        }));
}

// What the colours in the grooves add to a drag with its painting.
Figure compareColoredGrooves(const QString &look, double goal, const QString &sheet)
{
    Shown<RGBOpacityEditFrame> colored;
    Shown<RGBOpacityEditFrame> plain;
    const auto dragged = [&sheet](Shown<RGBOpacityEditFrame> &shown, int &reports) {
        shown.window.setStyleSheet(sheet);
        shown.editor->setValue(RGBOpacityEditFrame::R, 20);
        QObject::connect(shown.editor, &RGBOpacityEditFrame::valueChanged, shown.editor,
                         [&reports] { ++reports; });
        return dragging(sliderOf(shown.editor), &reports, Painting::Included);
    };
    colored.editor->setColoredGrooves(true);
    int coloredReports = 0;
    int plainReports = 0;
    return ratio(QStringLiteral("One mouse move of a drag and its painting: "
                                "`RGBOpacityEditFrame` with coloured grooves, beside one without, ")
                     + look,
                 goal,
                 compare(rounds, dragged(colored, coloredReports), dragged(plain, plainReports)));
}

void compareColoredGrooves(std::vector<Figure> &figures)
{
    figures.push_back(compareColoredGrooves(QStringLiteral("plain"), 2.2, QString()));
    QFile sheet(QStringLiteral(DESKTOP_SHEET));
    if (!sheet.open(QIODevice::ReadOnly)) {
        qFatal("There is no sheet.");
    }
    figures.push_back(compareColoredGrooves(QStringLiteral("with `desktop.qss`"), 1.3,
                                            QString::fromUtf8(sheet.readAll())));
}

// Panels

template <typename Editor> std::unique_ptr<QWidget> buildPanel(int rowCount)
{
    std::unique_ptr<QWidget> panel(new QWidget);
    auto *layout = new QVBoxLayout(panel.get());
    for (int i = 0; i < rowCount; ++i) {
        layout->addWidget(new Editor);
    }
    return panel;
}

// Rules like those in a host's sheet. The children of both sides match the
// same rules; most match nothing, as in any sheet of a whole application.
QString sheetOf200Rules()
{
    QStringList rules {
        QStringLiteral("QFrame { background: #20242a; color: #e0e0e0 }"),
        QStringLiteral("QLabel#labelName { padding: 2px }"),
        QStringLiteral("QSpinBox { border: 1px solid #808080; border-radius: 3px }"),
        QStringLiteral("QSpinBox:focus { border-color: #40a0ff }"),
        QStringLiteral("QSlider::groove:horizontal { height: 4px; background: #606060 }"),
        QStringLiteral("QSlider::handle:horizontal { width: 12px; margin: -6px 0; "
                       "background: #40a0ff }"),
        QStringLiteral("QToolButton { border: 1px solid #808080 }"),
        QStringLiteral("QToolButton:pressed { background: #404040 }"),
        QStringLiteral("QFrame > QToolButton#sliderEditPlus { border-color: #a0a0a0 }"),
    };
    while (rules.size() < 200) {
        rules << QStringLiteral("QFrame#panel%1 > QToolButton:hover { color: #%2 }")
                     .arg(rules.size())
                     .arg(rules.size() * 1000, 6, 16, QLatin1Char('0'));
    }
    return rules.join(QLatin1Char('\n'));
}

template <typename Editor> Nanoseconds openPanel(const QString &sheet)
{
    constexpr int rowCount = 250;
    return timed(1, [&sheet] {
        const std::unique_ptr<QWidget> panel = buildPanel<Editor>(rowCount);
        panel->setStyleSheet(sheet);
        panel->ensurePolished();
        panel->resize(640, panel->sizeHint().height());
        panel->setAttribute(Qt::WA_DontShowOnScreen);
        panel->show();
        panel->grab();
    });
}

void comparePanels(std::vector<Figure> &figures)
{
    const auto panel = [](const QString &what, double goal, const QString &sheet) {
        return ratio(QStringLiteral("A panel of 250 rows built, polished, laid out and drawn, ")
                         + what,
                     goal,
                     compare(
                         rounds / 4, [&sheet] { return openPanel<SliderEditFrame>(sheet); },
                         [&sheet] { return openPanel<BareRow>(sheet); }));
    };
    figures.push_back(panel(QStringLiteral("plain"), 1.25, QString()));
    figures.push_back(
        panel(QStringLiteral("with a style sheet of 200 rules"), 1.10, sheetOf200Rules()));
}

void discardMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    Q_UNUSED(context)
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

} // namespace

// The exit code is 0 if every goal is met.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    // The timer of the blinking cursor would disturb the measurements.
    QApplication::setCursorFlashTime(0);
    // The debug messages of an entry would be written to the terminal.
    qInstallMessageHandler(discardMessages);

    std::vector<Figure> figures;
    compareBuilding<SliderEditFrame, BareRow>(QStringLiteral("`SliderEditFrame`"), 1.65, 1.27,
                                              figures);
    figures.push_back(countAllocations());
    compareBuilding<RGBOpacityEditFrame, BareRows>(QStringLiteral("`RGBOpacityEditFrame`"), 2.0,
                                                   1.40, figures);
    compareBuilding<CropEditFrame, BarePanels>(QStringLiteral("`CropEditFrame`"), 1.6, 1.33,
                                               figures);
    figures.push_back(compareSetValue());
    figures.push_back(compareShortText());
    figures.push_back(compareLongText());
    figures.push_back(compareEnter());
    compareDrags(figures);
    compareColoredGrooves(figures);
    comparePanels(figures);
    comparePicture(figures);
    return printTable(figures) == 0 ? 0 : 1;
}
