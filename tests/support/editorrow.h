#pragma once

#include "eventlog.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "testuser.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>

// A slider editor and what a user finds in it.
template <typename Frame> struct EditorParts
{
    EditorParts() = default;
    explicit EditorParts(Frame *editor)
        : frame(editor), label(editor->template findChild<QLabel *>("labelName")),
          slider(editor->template findChild<QSlider *>("slider")),
          spinBox(editor->template findChild<QAbstractSpinBox *>()),
          field(spinBox->template findChild<QLineEdit *>()),
          minus(editor->template findChild<QToolButton *>("sliderEditSubtract")),
          plus(editor->template findChild<QToolButton *>("sliderEditPlus"))
    {
    }

    // Types over what the field shows.
    void type(const QString &text) const
    {
        User::click(spinBox);
        QCoreApplication::processEvents(); // the field selects its text a moment later
        User::type(text);
    }

    Frame *frame = nullptr;
    QLabel *label = nullptr;
    QSlider *slider = nullptr;
    QAbstractSpinBox *spinBox = nullptr;
    QLineEdit *field = nullptr;
    QToolButton *minus = nullptr;
    QToolButton *plus = nullptr;
};

// The page around the widget under test. What reaches it is in the log.
class Page : public QWidget
{
public:
    explicit Page(EventLog &log) : m_log(log)
    {
        setLayout(new QVBoxLayout);
        setFocusPolicy(Qt::StrongFocus);
        resize(1000, 100);
    }

protected:
    void wheelEvent(QWheelEvent *) override { m_log.add("page: wheel"); }
    void keyPressEvent(QKeyEvent *) override { m_log.add("page: key"); }

private:
    EventLog &m_log;
};

// How a drag is reported.
enum Mode { Continuous, Released, Sampled };

// The interval of sampling is long: tests let the ticks come themselves.
template <typename Editor> void setMode(Editor *editor, Mode mode)
{
    if (mode == Sampled)
        editor->setTimeSamplingRate(60000);
    else if (mode == Released)
        editor->setReleaseMode(true);
}

// A slider editor on a page, its children and the log of its signal. The slider
// goes from 0 to 100 and stands at 10; a step is one position.
template <typename Frame> struct EditorRow : EditorParts<Frame>
{
    using Value = decltype(std::declval<Frame>().value());
    static constexpr bool isInt = std::is_same_v<Value, int>;
    static constexpr Value unit = static_cast<Value>(isInt ? 1 : 0.01);

    EventLog log;
    Page page {log};

    EditorRow()
    {
        Frame *const editor = new Frame(&page);
        EditorParts<Frame>::operator=(EditorParts<Frame>(editor));
        page.layout()->addWidget(editor);
        log.watch(editor, &Frame::valueChanged, "valueChanged");
        editor->setSingleStep(unit);
        editor->setRange(0, 100 * unit);
        editor->setValue(10 * unit);
    }

    QString report(int position) const
    {
        return QStringLiteral("valueChanged(%1)").arg(position * unit);
    }
    // The spin box's text and the slider's value.
    QString shown() const
    {
        return this->spinBox->text() + ' ' + QString::number(this->slider->value());
    }
};

// A test whose rows bring their own code.
using Check = std::function<void()>;
Q_DECLARE_METATYPE(Check)

template <typename Frame> Check checkOf(const std::function<void(EditorRow<Frame> &)> &check)
{
    return [check] {
        EditorRow<Frame> row;
        QVERIFY(User::show(row.page));
        row.log.take();
        check(row);
    };
}

// Adds the check, which takes either, for the integer and the floating-point editor.
template <typename BothCheck> void addForBoth(const QString &name, const BothCheck &check)
{
    using namespace Vantor::Widgets;
    QTest::newRow(qPrintable("int, " + name)) << checkOf<SliderEditFrame>(check);
    QTest::newRow(qPrintable("double, " + name)) << checkOf<SliderEditFrameDouble>(check);
}
