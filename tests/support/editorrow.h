#pragma once

#include "eventlog.h"
#include "row.h"

#include <QtWidgets/QVBoxLayout>

#include <type_traits>

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
enum Mode { Continuous, Released, Sampled, SampledReleased };

// A slider editor on a page, its children and the log of its signal. The slider
// goes from 0 to 100 and stands at 10; a step is one position.
template <typename Frame> struct EditorRow : EditorParts<Frame>
{
    using Value = decltype(std::declval<Frame>().value());
    static constexpr bool isInt = std::is_integral_v<Value>;
    static constexpr Value unit = static_cast<Value>(isInt ? 1 : 0.01);

    EventLog log;
    Page page {log};
    using EditorParts<Frame>::frame;
    using EditorParts<Frame>::slider;
    using EditorParts<Frame>::spinBox;

    EditorRow()
    {
        EditorParts<Frame>::operator=(EditorParts<Frame>(new Frame(&page)));
        page.layout()->addWidget(frame);
        log.watch(frame, &Frame::valueChanged, "valueChanged");
        frame->setSingleStep(unit);
        frame->setRange(0, 100 * unit);
        frame->setValue(10 * unit);
    }

    void hold(std::initializer_list<int> positions)
    {
        User::grabHandle(slider);
        for (const int position : positions)
            User::moveHandle(slider, position);
    }
    // Marks the release in the log.
    void drop()
    {
        log.add("drop");
        User::dropHandle(slider);
    }
    void drag(std::initializer_list<int> positions)
    {
        hold(positions);
        drop();
    }
    void click(QWidget *widget, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            User::click(widget);
    }
    // The interval of sampling is long: tests let the ticks come themselves.
    void setMode(Mode mode)
    {
        if (mode == Sampled || mode == SampledReleased)
            frame->setTimeSamplingRate(60000);
        if (mode == Released || mode == SampledReleased)
            frame->setReleaseMode(true);
    }
    void tick()
    {
        log.add("tick");
        ::tick(frame);
    }
    // The spin box's text and the slider's value.
    QString shown() const { return spinBox->text() + ' ' + QString::number(slider->value()); }
};

template <typename Value> QStringList reports(std::initializer_list<Value> values)
{
    QStringList entries;
    for (const Value value : values)
        entries.append(QStringLiteral("valueChanged(%1)").arg(value));
    return entries;
}
