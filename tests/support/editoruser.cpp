#include "editoruser.h"

#include "cropeditframe.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtWidgets/QVBoxLayout>

#include <cmath>

using namespace Vantor::Widgets;

EditorRow::EditorRow(QWidget *editor, const QString &nameInEditor)
    : name(nameInEditor), frame(editor), whole(qobject_cast<SliderEditFrame *>(editor)),
      label(editor->findChild<QLabel *>("labelName")),
      slider(editor->findChild<QSlider *>("slider")),
      spinBox(editor->findChild<QAbstractSpinBox *>()), field(spinBox->findChild<QLineEdit *>()),
      minus(editor->findChild<QToolButton *>("sliderEditSubtract")),
      plus(editor->findChild<QToolButton *>("sliderEditPlus"))
{
}

void EditorRow::type(const QString &text) const
{
    User::click(spinBox);
    QCoreApplication::processEvents(); // the field selects its text a moment later
    User::type(text);
}

QVector<EditorRow> rowsOf(QWidget &editor)
{
    QVector<EditorRow> rows;
    for (const QString name :
         {"R r", "G g", "B b", "All all", "Opacity opacity", "X x", "Y y", "Width w", "Height h"}) {
        if (auto *const frame = editor.findChild<QWidget *>("frame" + name.section(' ', 0, 0)))
            rows.append(EditorRow(frame, name.section(' ', 1)));
    }
    return rows.isEmpty() ? QVector<EditorRow> {EditorRow(&editor)} : rows;
}

QString limits(int min, int max)
{
    return QStringLiteral("%1..%2").arg(min).arg(max);
}

Page::Page(EventLog &log) : m_log(log)
{
    setLayout(new QVBoxLayout);
    setFocusPolicy(Qt::StrongFocus);
    resize(1000, 100);
}

void Page::keyPressEvent(QKeyEvent *event)
{
    // Qt's field passes on the keys that paste.
    if (event->modifiers() != Qt::ControlModifier)
        m_log.add("key");
}

// Positions of the slider for a value of 1.
static double scaleOf(const EditorRow &row)
{
    return std::pow(10.0, row.frame->property("decimals").toInt());
}

EditorUser::EditorUser(QWidget *editor, double unit) : rows(rowsOf(*editor)), m_unit(unit)
{
    addGestures();
    addSights();
    page.layout()->addWidget(editor);
    if (auto *const whole = qobject_cast<SliderEditFrame *>(editor))
        add(whole);
    else if (auto *const fraction = qobject_cast<SliderEditFrameDouble *>(editor))
        add(fraction);
    else if (auto *const rgb = qobject_cast<RGBEditFrame *>(editor))
        addComposite(rgb);
    else if (auto *const all = qobject_cast<RGBAllEditFrame *>(editor))
        addComposite(all);
    else if (auto *const opacity = qobject_cast<RGBOpacityEditFrame *>(editor))
        addComposite(opacity);
    else
        addRect(editor);
    User::show(page);
    log.take(); // the platform's own messages
}

void EditorUser::addGestures()
{
    const auto press = [](Qt::Key key) { return [key](const Step &) { User::press(key); }; };
    const auto move = [](const Step &step) {
        for (const QString &position : step.text.split(' '))
            User::moveHandle(step.row.slider, position.toInt());
    };
    const auto type = [](const Step &step) { step.row.type(step.text); };
    m_actions = {
        {"plus", [](const Step &step) { User::click(step.row.plus); }},
        {"minus", [](const Step &step) { User::click(step.row.minus); }},
        {"space", [](const Step &step) { QTest::keyClick(step.row.plus, Qt::Key_Space); }},
        {"hold",
         [move](const Step &step) {
             User::grabHandle(step.row.slider);
             if (!step.text.isEmpty())
                 move(step);
         }},
        {"move", move},
        {"drop", [](const Step &step) { User::dropHandle(step.row.slider); }},
        {"groove",
         [](const Step &step) { User::clickGroove(step.row.slider, step.text == "after"); }},
        {"click", type},
        {"elsewhere",
         [this](const Step &) {
             QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
             page.setFocus();
         }},
        {"type", type},
        {"keys", [](const Step &step) { User::type(step.text); }},
        {"paste", [](const Step &step) { User::paste(step.text); }},
        {"enter", [](const Step &step) { step.row.type(step.text + '\n'); }},
        {"up", press(Qt::Key_Up)},
        {"down", press(Qt::Key_Down)},
        {"right", press(Qt::Key_Right)},
        {"wheel",
         [](const Step &step) {
             User::turnWheel(step.row.slider);
             User::turnWheel(step.row.spinBox);
         }},
        {"leave",
         [](const Step &step) {
             QEvent leave(QEvent::Leave);
             QApplication::sendEvent(step.row.slider, &leave);
         }},
        {"tick", [](const Step &step) { tick(step.row.frame); }},
        {"focus", [](const Step &step) { step.row.spinBox->setFocus(); }},
        {"show", [](const Step &step) { step.row.frame->show(); }},
        {"hide", [](const Step &step) { step.row.frame->hide(); }},
        {"disable", [](const Step &step) { step.row.frame->setEnabled(false); }},
        {"enable", [](const Step &step) { step.row.frame->setEnabled(true); }}};
}

void EditorUser::addSights()
{
    const auto add = [this](const char *word, auto textOf) {
        m_actions.insert(word, [this, textOf](const Step &step) { log.add(textOf(step)); });
    };
    add("shown", [this](const Step &) { return shown(); });
    add("ranges", [this](const Step &) {
        QStringList texts;
        for (const EditorRow &row : rows)
            texts.append(limits(row.slider->minimum(), row.slider->maximum()));
        return texts.join(' ');
    });
    add("timer",
        [](const Step &step) { return samplingInterval(step.row.frame) > 0 ? "runs" : "stands"; });
    add("focused",
        [](const Step &step) { return step.row.frame->hasFocus() ? "editor" : "other"; });
    add("pressed",
        [](const Step &step) { return step.row.whole->isMousePressed() ? "yes" : "no"; });
    add("refused", [](const Step &step) {
        return step.row.spinBox->property("isEntryRefused").toBool() ? "yes" : "no";
    });
}

// The program around a slider editor.
template <typename Frame> void EditorUser::add(Frame *frame)
{
    using Value = decltype(frame->value());
    const auto value = [this](const QString &word) {
        return static_cast<Value>(word.toDouble() * m_unit);
    };
    const auto setText = [](const char *property) {
        return [property](const Step &step) { step.row.spinBox->setProperty(property, step.text); };
    };
    m_actions.insert("value", [=](const Step &step) { frame->setValue(value(step.word(0))); });
    m_actions.insert("range", [=](const Step &step) {
        frame->setRange(value(step.word(0)), value(step.word(1)));
    });
    m_actions.insert("step", [=](const Step &step) { frame->setSingleStep(value(step.text)); });
    m_actions.insert("pageStep", [=](const Step &step) { frame->setPageStep(step.number(0)); });
    m_actions.insert("direction", [=](const Step &step) {
        frame->setValueChangeDirection(step.number(0), int(value(step.word(1))));
    });
    m_actions.insert("hideSlider", [=](const Step &) { frame->setSliderVisible(false); });
    m_actions.insert("wheelEnabled", [=](const Step &) { frame->setSpinBoxWheelEnable(true); });
    addModes(frame);
    m_actions.insert("locale",
                     [](const Step &step) { step.row.spinBox->setLocale(QLocale(step.text)); });
    for (const char *property : {"suffix", "prefix", "specialValueText"})
        m_actions.insert(property, setText(property));
    if constexpr (std::is_same_v<Value, double>)
        m_actions.insert("decimals", [=](const Step &step) { frame->setDecimals(step.number(0)); });
    const Value position = static_cast<Value>(1 / scaleOf(rows.first()));
    frame->setSingleStep(position);
    frame->setRange(0, 100 * position);
    frame->setValue(10 * position);
    // A receiver finds the children updated.
    const EditorRow &row = rows.first();
    QObject::connect(frame, &Frame::valueChanged, &page, [=](Value reported) {
        log.add(inUnits(reported));
        if (row.slider->value() != qRound(reported * scaleOf(row)))
            log.add("too early");
    });
}

template <typename Frame> void EditorUser::addModes(Frame *frame)
{
    m_actions.insert("released", [=](const Step &) { frame->setReleaseMode(true); });
    // Long enough for the ticks to come by hand.
    m_actions.insert("sampled", [=](const Step &) { frame->setTimeSamplingRate(60000); });
}

// The program around a composite editor.
template <typename Frame> void EditorUser::addComposite(Frame *frame)
{
    const auto type = [](const Step &step) { return typename Frame::Type(2 << step.index); };
    log.watch(frame, &Frame::valueChanged, {});
    addModes(frame);
    m_actions.insert("value",
                     [=](const Step &step) { frame->setValue(type(step), step.number(0)); });
    m_actions.insert("range", [=](const Step &step) {
        frame->setRange(type(step), step.number(0), step.number(1));
    });
}

// The program around a rectangle editor.
void EditorUser::addRect(QWidget *editor)
{
    auto *const rect = qobject_cast<RectEditFrame *>(editor);
    const auto add = [this](const char *verb, auto &&action) {
        m_actions.insert(verb, [action](const Step &step) {
            action(step.number(0), step.number(1), step.number(2), step.number(3));
        });
    };
    addComposite(rect);
    log.watch(rect, &RectEditFrame::xValueChanged, "x");
    log.watch(rect, &RectEditFrame::yValueChanged, "y");
    log.watch(rect, &RectEditFrame::widthValueChanged, "w");
    log.watch(rect, &RectEditFrame::heightValueChanged, "h");
    log.watch(rect, &RectEditFrame::sizeLockChanged, "sizeLock");
    log.watch(rect, &RectEditFrame::PositionLockChanged, "positionLock");
    rect->setPositionLockEnable(true);
    rect->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    add("set", [=](int x, int y, int w, int h) { rect->setValue(x, y, w, h); });
    m_actions.insert("sizeLock", [=](const Step &step) { rect->setSizeLock(step.text == "on"); });
    m_actions.insert("lockType", [=](const Step &step) {
        rect->setSizeLockEnable(
            true, step.text == "offset" ? RectEditFrame::OffsetLock : RectEditFrame::SizeScaleLock);
    });
    m_actions.insert("ratio", [=](const Step &step) { rect->setSizeLock(step.text.toDouble()); });
    m_actions.insert("lock", [=](const Step &step) {
        User::click(rect->findChild<QToolButton *>(step.text == "size" ? "toolButtonLockSize"
                                                                       : "toolButtonLockPosition"));
    });
    if (auto *const crop = qobject_cast<CropEditFrame *>(editor)) {
        log.watch(crop, &CropEditFrame::cropValueChanged, "crop");
        add("area", [=](int w, int h, int, int) { crop->setCropRange(w, h); });
        m_actions.insert("areaFrom", [=](const Step &step) {
            crop->setCropRange(step.number(0), step.number(1), step.number(2), step.number(3),
                               step.number(4), step.number(5));
        });
        add("leastPosition", [=](int x, int y, int, int) { crop->setCropMinPos(x, y); });
        add("leastSize", [=](int w, int h, int, int) { crop->setCropMinSize(w, h); });
        add("crop", [=](int x, int y, int w, int h) { crop->setCropValue(x, y, w, h); });
        add("rect", [=](int x, int y, int w, int h) { crop->setCropValue(QRect(x, y, w, h)); });
    }
    if (auto *const mask = qobject_cast<MaskEditFrame *>(editor)) {
        log.watch(mask, &MaskEditFrame::maskValueChanged, "mask");
        add("area", [=](int w, int h, int, int) { mask->setMaskRange(w, h); });
        add("mask", [=](int t, int b, int l, int r) { mask->setMaskValue(t, b, l, r); });
    }
}

void EditorUser::perform(const QString &action)
{
    int index = 0;
    QString rest = action;
    for (int i = 0; i < rows.size(); ++i) {
        if (!rows[i].name.isEmpty() && action.startsWith(rows[i].name + ' ')) {
            index = i;
            rest = action.section(' ', 1);
        }
    }
    const QString verb = rest.section(' ', 0, 0);
    QVERIFY2(m_actions.contains(verb), qPrintable("What is " + action));
    m_actions[verb]({rows[index], index, rest.section(' ', 1)});
}

void EditorUser::play(const QString &steps)
{
    for (const QString &step : steps.split(" | ")) {
        const QString action = step.section(": ", 0, 0);
        QString expected = step.section(": ", 1);
        perform(action);
        // The key, the loss of the focus and the spin box's own end of editing.
        if (rows.first().whole && action.contains("enter "))
            expected =
                QStringList {"finished finished", expected, "finished left"}.join(' ').simplified();
        const QString actual = heard();
        QVERIFY2(actual == expected, qPrintable(step + " but was " + actual));
    }
}

QString EditorUser::heard()
{
    return log.take()
        .join(' ')
        .replace(", ", ",")
        .replace("debug: SpinBox editing finished", "finished")
        .replace("debug: SpinBox lose focus.", "left");
}

QString EditorUser::shown() const
{
    QStringList texts;
    for (const EditorRow &row : rows) {
        const double value = row.spinBox->property("cleanText").toDouble();
        const int position = row.slider->value();
        texts.append(m_unit == 1 ? row.spinBox->text() : inUnits(value));
        if (position != qRound(value * scaleOf(row)))
            texts.last() += '/' + QString::number(position);
    }
    return texts.join(' ');
}
