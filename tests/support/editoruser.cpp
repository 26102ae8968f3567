#include "editoruser.h"

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>

#include <QAction> // of QtWidgets or, with Qt 6, of QtGui
#include <QShortcut>

#include <cmath>

using namespace Vantor::Widgets;

void EditorRow::type(const QString &text) const
{
    User::click(spinBox);
    QCoreApplication::processEvents(); // the field selects its text a moment later
    User::type(text);
}

QWidget *EditorRow::part(const QString &name, QWidget *other) const
{
    const QMap<QString, QWidget *> parts {
        {"minus", minus}, {"plus", plus}, {"field", field}, {"label", label}, {"handle", slider}};
    return parts.value(name, other);
}

bool EditorRow::isHeld() const
{
    return slider->isSliderDown() || minus->isDown() || plus->isDown();
}

QVector<EditorRow> rowsOf(QWidget &editor)
{
    QVector<EditorRow> rows;
    for (const QString name :
         {"R r", "G g", "B b", "All all", "Opacity opacity", "X x", "Y y", "Width w", "Height h"}) {
        if (auto *const frame = editor.findChild<QWidget *>("frame" + name.section(' ', 0, 0)))
            rows.append({name.section(' ', 1), frame});
    }
    if (rows.isEmpty())
        rows.append({QString(), &editor});
    return rows;
}

QString limits(int min, int max)
{
    return QStringLiteral("%1..%2").arg(min).arg(max);
}

EntryOptions entryOptions(const QString &names)
{
    EntryOptions options;
    options.setFlag(ExactEntry, names.contains("exact"));
    options.setFlag(DecimalComma, names.contains("comma"));
    options.setFlag(EscapeRestores, names.contains("escape"));
    options.setFlag(EnterStays, names.contains("stays"));
    options.setFlag(AnyKeyboard, names.contains("signs"));
    options.setFlag(SafeEntry, names.contains("safe"));
    return options;
}

QString gaps(const EditorRow &row)
{
    QStringList gaps;
    const QWidgetList children {row.label, row.slider, row.spinBox, row.minus, row.plus};
    for (int i = 1; i < children.size(); ++i) {
        const QRect before = children[i - 1]->geometry(), after = children[i]->geometry();
        gaps << QString::number(row.frame->layoutDirection() == Qt::LeftToRight
                                    ? after.left() - before.right() - 1
                                    : before.left() - after.right() - 1);
    }
    return gaps.join(' ');
}

Page::Page(EventLog &log) : m_log(log)
{
    setLayout(new QVBoxLayout);
    setFocusPolicy(Qt::StrongFocus);
    resize(1000, 100);
    for (const QString key : {"Ctrl+Z", "Ctrl+Shift+Z"})
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                [this] { m_log.add("page"); });
}

void Page::keyPressEvent(QKeyEvent *event)
{
    // Qt's field passes on the keys that paste, undo and redo.
    if ((event->modifiers() & Qt::ControlModifier) == 0 && event->key() != Qt::Key_Shift)
        m_log.add("key");
}

// Positions of the slider for a value of 1.
static double scaleOf(const EditorRow &row)
{
    return std::pow(10.0, row.frame->property("decimals").toInt());
}

// Whether the handle is at the position of the value. On a logarithmic scale it may also
// be at the position of any number that is rounded to the value.
static bool isHandleAt(const EditorRow &row, double value)
{
    const int position = row.slider->value();
    const double shown = std::round(value * scaleOf(row));
    if (row.frame->property("sliderScale").toInt() == SliderEditFrame::LinearScale)
        return position == shown;
    const double least = row.frame->property("minimum").toDouble();
    const double greatest = row.frame->property("maximum").toDouble();
    const double factor = greatest / least;
    const double between = std::round(1000 * std::log(value / least) / std::log(factor));
    const double end = value == least ? 0 : 1000;
    return position == (value == least || value == greatest ? end : qBound(1.0, between, 999.0))
        || shown == std::round(least * std::pow(factor, position / 1000.0) * scaleOf(row));
}

template <typename Frame> void EditorUser::addIf(QWidget *editor, void (EditorUser::*add)(Frame *))
{
    if (auto *const frame = qobject_cast<Frame *>(editor))
        (this->*add)(frame);
}

EditorUser::EditorUser(QWidget *editor, double unit) : rows(rowsOf(*editor)), m_unit(unit)
{
    addGestures();
    addSights();
    page.layout()->addWidget(editor);
    addIf(editor, &EditorUser::add<SliderEditFrame>);
    addIf(editor, &EditorUser::add<SliderEditFrameDouble>);
    addIf(editor, &EditorUser::addComposite<RGBEditFrame>);
    addIf(editor, &EditorUser::addComposite<RGBAllEditFrame>);
    addIf(editor, &EditorUser::addComposite<RGBOpacityEditFrame>);
    addIf(editor, &EditorUser::addRect);
    addIf(editor, &EditorUser::addCrop); // which is a rectangle, too
    addIf(editor, &EditorUser::addMask);
    QVERIFY(User::show(page));
    log.take(); // the platform's own messages
}

void EditorUser::addGestures()
{
    on("plus", [](const Step &step) { User::click(step.row.plus); });
    on("minus", [](const Step &step) { User::click(step.row.minus); });
    on("space", [](const Step &step) { QTest::keyClick(step.row.plus, Qt::Key_Space); });
    on("keyDown", [](const Step &step) { QTest::keyPress(step.row.plus, Qt::Key_Space); });
    on("keyUp", [](const Step &step) { QTest::keyRelease(step.row.plus, Qt::Key_Space); });
    on("hold move", [](const Step &step) {
        if (step.verb == "hold")
            User::grabHandle(step.row.slider);
        for (int i = 0; !step.word(i).isEmpty(); ++i)
            User::moveHandle(step.row.slider, step[i]);
    });
    on("drop", [](const Step &step) { User::dropHandle(step.row.slider); });
    on("rightClick", [](const Step &step) {
        QSlider *const slider = step.row.slider;
        const QPoint pos = User::handleRect(slider, slider->sliderPosition()).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const bool isPress = type == QEvent::MouseButtonPress;
            QMouseEvent event(type, pos, slider->mapToGlobal(pos), Qt::RightButton,
                              isPress ? Qt::LeftButton | Qt::RightButton : Qt::LeftButton, {});
            QApplication::sendEvent(slider, &event);
        }
    });
    on("groove", [](const Step &step) {
        QSlider *const slider = step.row.slider;
        const int y = User::handleRect(slider, slider->sliderPosition()).center().y();
        const QPoint pos(step.text == "after" ? slider->width() - 2 : 1, y);
        User::pressAt(slider, pos);
        User::releaseAt(slider, pos);
    });
    on("pressAt", [](const Step &step) { User::pressGroove(step.row.slider, step[0]); });
    on("touch touch2", [](const Step &step) {
        const QSlider *const slider = step.row.slider;
        const int position = step.text == "handle" ? slider->sliderPosition() : step[0];
        QWidget *const part = step.row.part(step.text, step.row.slider);
        const QRect place = part == slider ? User::handleRect(slider, position) : part->rect();
        User::touch(part, place.center(), step.verb == "touch2" ? 1 : 0);
    });
    on("swipe", [](const Step &step) {
        for (int i = 0; i < 4; ++i)
            User::moveFinger({step[0] / 4, step[1] / 4});
    });
    on("fingerTo", [](const Step &step) {
        for (int i = 0; !step.word(i).isEmpty(); ++i) {
            const QSlider *const slider = step.row.slider;
            User::moveFingerTo(slider, User::handleRect(slider, step[i]).center().x());
        }
    });
    on("lift lift2", [](const Step &step) { User::lift(step.verb == "lift2" ? 1 : 0); });
    on("rest", [](const Step &step) { QVERIFY(comesTrue([&] { return step.row.isHeld(); })); });
    on("push",
       [](const Step &step) { User::pressAt(step.row.plus, step.row.plus->rect().center()); });
    on("letGo",
       [](const Step &step) { User::releaseAt(step.row.plus, step.row.plus->rect().center()); });
    on("click type", [](const Step &step) { step.row.type(step.text); });
    on("enter", [](const Step &step) { step.row.type(step.text + '\n'); });
    on("keys", [](const Step &step) { User::type(step.text); });
    on("paste", [](const Step &step) { User::paste(step.text); });
    on("compose", [](const Step &step) { User::useInputMethod(step.text); });
    on("commit", [](const Step &step) { User::useInputMethod({}, step.text); });
    on("replace", [](const Step &step) { User::useInputMethod({}, step.word(1), step[0]); });
    on("undo", [](const Step &) { User::typeOrPress("Ctrl+Z"); });
    on("redo", [](const Step &) { User::typeOrPress("Shift+Ctrl+Z"); });
    on("menu", [](const Step &step) {
        QApplication::clipboard()->setText(step.text);
        QTimer::singleShot(0, step.row.field, [] {
            QCoreApplication::processEvents(); // the platform checks the menu's window
            QWidget *const menu = QApplication::activePopupWidget();
            menu->close();
            for (QAction *action : menu->actions()) {
                if (action->text().contains("Paste"))
                    action->trigger();
            }
        });
        const QPoint center = step.row.spinBox->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, center,
                                step.row.spinBox->mapToGlobal(center));
        QApplication::sendEvent(step.row.spinBox, &event);
    });
    on("noFocus", [this](const Step &step) {
        for (const QString &name : step.text.split(' ')) {
            QWidget *const part = step.row.part(name, name == "page" ? &page : step.row.frame);
            part->setFocusPolicy(Qt::NoFocus);
        }
    });
    for (const QString key : {"Up", "Down", "Left", "Right", "Home", "End", "Escape"})
        on(key.toLower(), [key](const Step &) { User::typeOrPress(key); });
    on("press", [](const Step &step) { User::typeOrPress(step.text); });
    on("held", [](const Step &) { User::repeatEnter(); });
    on("elsewhere", [this](const Step &) {
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
        page.setFocus();
    });
    on("wheel", [](const Step &step) {
        User::turnWheel(step.row.slider);
        User::turnWheel(step.row.spinBox);
    });
    on("leave", [](const Step &step) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(step.row.slider, &leave);
    });
    on("reset", [](const Step &step) { QTest::mouseDClick(step.row.label, Qt::LeftButton); });
    on("screenReader", [](const Step &step) {
        QAccessible::queryAccessibleInterface(step.row.frame)->actionInterface()->doAction("Reset");
    });
    on("tick", [](const Step &step) { tick(step.row.frame); });
    on("resetValue",
       [](const Step &step) { QMetaObject::invokeMethod(step.row.frame, "resetValue"); });
    on("default", [this](const Step &step) {
        step.row.frame->setProperty("defaultValue", step.word(0).toDouble() * m_unit);
    });
    on("pageStep decimals suffix prefix",
       [](const Step &step) { step.row.frame->setProperty(qPrintable(step.verb), step.text); });
    on("specialValueText",
       [](const Step &step) { step.row.spinBox->setProperty("specialValueText", step.text); });
    on("locale", [](const Step &step) { step.row.spinBox->setLocale(QLocale(step.text)); });
    on("hideSlider", [](const Step &step) { step.row.frame->setProperty("sliderVisible", false); });
    on("scale", [](const Step &step) {
        step.row.frame->setProperty("sliderScale", int(step.text == "logarithmic"));
    });
    on("focus", [](const Step &step) { step.row.part(step.text, step.row.spinBox)->setFocus(); });
    on("show hide", [](const Step &step) { step.row.frame->setVisible(step.verb == "show"); });
    on("enable disable",
       [](const Step &step) { step.row.frame->setEnabled(step.verb == "enable"); });
    on("dialog pageMenu", [this](const Step &step) {
        QDialog dialog(&page);
        QMenu menu(&page);
        menu.addAction("Save");
        const bool isMenu = step.verb == "pageMenu";
        QTimer::singleShot(0, &menu, [&] {
            QCoreApplication::processEvents();
            isMenu ? menu.close() : dialog.close();
        });
        if (isMenu)
            menu.exec();
        else
            dialog.exec();
        page.activateWindow(); // with Qt 6 the platform has activated the menu
        QVERIFY(QTest::qWaitForWindowActive(&page));
    });
    on("focusProxy", [](const Step &step) { step.row.frame->setFocusProxy(step.row.spinBox); });
    on("delete", [](const Step &step) {
        delete step.row.frame;
        QCoreApplication::processEvents(); // posted events find it deleted
    });
}

void EditorUser::addSights()
{
    on("shown", [this](const Step &) { log.add(shown()); });
    on("ranges", [this](const Step &) {
        for (const EditorRow &row : rows)
            log.add(limits(row.slider->minimum(), row.slider->maximum()));
    });
    on("width", [this](const Step &step) {
        page.resize(step[0], page.height());
        QCoreApplication::processEvents();
    });
    on("handle", [this](const Step &step) { log.add(QString::number(step.row.slider->value())); });
    on("selected", [this](const Step &step) {
        QCoreApplication::processEvents();
        const QString text = step.row.field->selectedText();
        log.add(text.isEmpty() ? "nothing" : text == step.row.field->text() ? "all" : text);
    });
    const auto add = [this](const QString &sight, auto yes, auto no, const auto &isSo) {
        on(sight, [=](const Step &step) { log.add(isSo(step.row) ? yes : no); });
    };
    add("timer", "runs", "stands", [](const EditorRow &row) {
        return qMax(samplingInterval(row.frame), samplingInterval(row.plus)) > 0;
    });
    add("isDown", "yes", "no", [](const EditorRow &row) { return row.isHeld(); });
    add("focused", "editor", "other", [](const EditorRow &row) { return row.frame->hasFocus(); });
    add("refused", "yes", "no",
        [](const EditorRow &row) { return row.spinBox->property("isEntryRefused").toBool(); });
    on("repeating", [this](const Step &step) {
        for (const QToolButton *button : {step.row.minus, step.row.plus})
            log.add(button->autoRepeat() ? "yes" : "no");
    });
}

// The program around any editor.
template <typename Frame> void EditorUser::addModes(Frame *frame)
{
    on("released", [=](const Step &step) { frame->setReleaseMode(step.text != "off"); });
    on("autoRepeat", [=](const Step &step) {
        frame->setAutoRepeat(step.text != "off");
        frame->setAutoRepeatDelay(20);
        frame->setAutoRepeatInterval(5);
    });
    on("options", [=](const Step &step) { frame->setEntryOptions(entryOptions(step.text)); });
    on("finish", [=](const Step &) { frame->finishEntry(); });
    on("pending", [=](const Step &) { log.add(frame->hasPendingEntry() ? "yes" : "no"); });
    on("block unblock", [=](const Step &step) {
        frame->blockSignals(step.verb == "block");
        QCoreApplication::processEvents();
    });
    on("inReport", [=](const Step &step) {
        QObject::connect(frame, &Frame::valueChanged, &page,
                         [this, action = step.text] { perform(action); });
    });
    on("inStart", [=](const Step &step) {
        QObject::connect(frame, &Frame::editStarted, &page,
                         [this, action = step.text] { perform(action); });
    });
    // So long that only the test sends ticks.
    on("sampled", [=](const Step &) { frame->setTimeSamplingRate(60000); });
    on("edits", [=](const Step &) {
        QObject::connect(frame, &Frame::editStarted, &page,
                         [this] { log.add(values() == m_valuesBefore ? "start" : "late"); });
        QObject::connect(frame, &Frame::editFinished, &page, [this] {
            log.add("end");
            m_valuesBefore = values();
        });
    });
}

// The program around a slider editor.
template <typename Frame> void EditorUser::add(Frame *frame)
{
    using Value = decltype(frame->value());
    const auto value = [this](const Step &step, int i) {
        return static_cast<Value>(step.word(i).toDouble() * m_unit);
    };
    addModes(frame);
    on("range", [=](const Step &step) { frame->setRange(value(step, 0), value(step, 1)); });
    on("direction",
       [=](const Step &step) { frame->setValueChangeDirection(step[0], int(value(step, 1))); });
    on("value minimum maximum singleStep",
       [=](const Step &step) { frame->setProperty(qPrintable(step.verb), value(step, 0)); });
    on("fieldFocus", [=](const Step &) { frame->setFieldFocus(); });
    on("pressed", [=](const Step &) { log.add(frame->isMousePressed() ? "yes" : "no"); });
    on("sliderOptions", [=](const Step &step) {
        SliderOptions options;
        options.setFlag(GrooveMovesHandle, step.text.contains("groove"));
        options.setFlag(FineDrag, step.text.contains("fine"));
        options.setFlag(FlickScrolls, step.text.contains("flick"));
        frame->setSliderOptions(options);
    });
    on("wheelEnabled", [=](const Step &) { frame->setSpinBoxWheelEnable(true); });
    on("bounds", [=](const Step &) {
        log.add(inUnits(frame->minimum()) + ".." + inUnits(frame->maximum()));
    });
    const EditorRow &row = rows.first();
    const Value position = static_cast<Value>(1 / scaleOf(row));
    frame->setSingleStep(position);
    frame->setRange(0, 100 * position);
    frame->setValue(10 * position);
    QObject::connect(frame, &Frame::valueChanged, &page, [=](Value reported) {
        log.add(inUnits(reported));
        if (!isHandleAt(row, reported))
            log.add("too early"); // a receiver finds the children updated
    });
}

// The program around a composite editor.
template <typename Frame> void EditorUser::addComposite(Frame *frame)
{
    const auto type = [](const Step &step) { return typename Frame::Type(2 << step.index); };
    log.watch(frame, &Frame::valueChanged, {});
    addModes(frame);
    on("value", [=](const Step &step) { frame->setValue(type(step), step[0]); });
    on("range", [=](const Step &step) { frame->setRange(type(step), step[0], step[1]); });
    on("resetValues", [=](const Step &) { frame->resetValues(); });
}

// The program around a rectangle editor.
void EditorUser::addRect(RectEditFrame *rect)
{
    addComposite(rect);
    log.watch(rect, &RectEditFrame::xValueChanged, "x");
    log.watch(rect, &RectEditFrame::yValueChanged, "y");
    log.watch(rect, &RectEditFrame::widthValueChanged, "w");
    log.watch(rect, &RectEditFrame::heightValueChanged, "h");
    log.watch(rect, &RectEditFrame::sizeLockChanged, "sizeLock");
    log.watch(rect, &RectEditFrame::PositionLockChanged, "positionLock");
    rect->setPositionLockEnable(true);
    rect->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    on("lock", [=](const Step &step) {
        const QString button =
            step.text == "size" ? "toolButtonLockSize" : "toolButtonLockPosition";
        User::click(rect->findChild<QToolButton *>(button));
    });
    on("sizeLock", [=](const Step &step) { rect->setSizeLock(step.text == "on"); });
    on("positionLock", [=](const Step &step) { rect->setPositionLock(step.text == "on"); });
    on("locks", [=](const Step &) {
        for (const bool isLocked : {rect->isPositionLocked(), rect->isSizeLocked()})
            log.add(isLocked ? "yes" : "no");
        log.add(QString::number(rect->sizeLockRatio()));
    });
    on("ratioOf", [=](const Step &step) { rect->setSizeLockRatio(QSize(step[0], step[1])); });
    on("ratio", [=](const Step &step) { rect->setSizeLock(step.text.toDouble()); });
    on("set", [=](const Step &step) { rect->setValue(step[0], step[1], step[2], step[3]); });
}

void EditorUser::addCrop(CropEditFrame *crop)
{
    log.watch(crop, &CropEditFrame::cropValueChanged, "crop");
    on("area", [=](const Step &step) { crop->setCropRange(step[0], step[1]); });
    on("areaFrom", [=](const Step &step) {
        crop->setCropRange(step[0], step[1], step[2], step[3], step[4], step[5]);
    });
    on("leastPosition", [=](const Step &step) { crop->setCropMinPos(step[0], step[1]); });
    on("leastSize", [=](const Step &step) { crop->setCropMinSize(step[0], step[1]); });
    on("crop", [=](const Step &step) { crop->setCropValue(step[0], step[1], step[2], step[3]); });
    on("rect",
       [=](const Step &step) { crop->setCropValue(QRect(step[0], step[1], step[2], step[3])); });
}

void EditorUser::addMask(MaskEditFrame *mask)
{
    log.watch(mask, &MaskEditFrame::maskValueChanged, "mask");
    on("area", [=](const Step &step) { mask->setMaskRange(step[0], step[1]); });
    on("leastSize", [=](const Step &step) { mask->setMaskMinSize(step[0], step[1]); });
    on("mask", [=](const Step &step) { mask->setMaskValue(step[0], step[1], step[2], step[3]); });
}

void EditorUser::on(const QString &verbs, const Action &action)
{
    for (const QString &verb : verbs.split(' '))
        m_actions.insert(verb, action);
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
    m_valuesBefore = values();
    m_actions[verb]({rows[index], index, verb, rest.section(' ', 1)});
}

void EditorUser::performAll(const QString &steps)
{
    for (const QString &step : steps.split(" | "))
        perform(step);
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

QVariantList EditorUser::values() const
{
    QVariantList values;
    for (const EditorRow &row : rows)
        values.append(row.frame->property("value"));
    return values;
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
        texts.append(m_unit == 1 ? row.spinBox->text() : inUnits(value));
        if (!isHandleAt(row, value))
            texts.last() += '/' + QString::number(row.slider->value());
    }
    return texts.join(' ');
}

void addTable(const QString &path, const QMap<QString, AddRow> &kinds)
{
    const QRegularExpression row("^(\\S+) ?(.*)((?:\n +.*)*)", QRegularExpression::MultilineOption);
    for (auto rows = row.globalMatch(linesOf(path).join('\n')); rows.hasNext();) {
        const QStringList texts = rows.next().capturedTexts();
        QVERIFY2(kinds.contains(texts[1]), qPrintable(texts[0]));
        QString steps = texts[texts[3].isEmpty() ? 2 : 3].simplified();
        for (const QString sign : {"n\n", "t\t", "b\b", "s "})
            steps.replace('\\' + sign.left(1), sign.mid(1));
        kinds[texts[1]](texts[2], steps);
    }
}
