#pragma once

#include "eventlog.h"
#include "userevents.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

// The page around the widget under test. What reaches it is in the log.
class Page : public QWidget
{
public:
    explicit Page(EventLog &log) : m_log(log)
    {
        setLayout(new QVBoxLayout);
        resize(1000, 100);
    }

protected:
    void wheelEvent(QWheelEvent *) override { m_log.add(QStringLiteral("page: wheel")); }
    void keyPressEvent(QKeyEvent *event) override
    {
        m_log.add(QStringLiteral("page: key ") + QString::number(event->key(), 16));
    }

private:
    EventLog &m_log;
};

// A slider editor on a page, its children and the log of its signal. The slider
// is wide enough for a pixel per position with ranges up to some 600.
template <typename Frame> struct EditorRow
{
    EventLog log;
    Page page {log};
    Frame &frame {*new Frame(&page)};
    QSlider *slider {frame.template findChild<QSlider *>(QStringLiteral("slider"))};
    QAbstractSpinBox *spinBox {frame.template findChild<QAbstractSpinBox *>()};
    QLineEdit *field {spinBox->template findChild<QLineEdit *>()};
    QToolButton *minus {
        frame.template findChild<QToolButton *>(QStringLiteral("sliderEditSubtract"))};
    QToolButton *plus {frame.template findChild<QToolButton *>(QStringLiteral("sliderEditPlus"))};

    EditorRow()
    {
        page.layout()->addWidget(&frame);
        log.watch(&frame, &Frame::valueChanged, QStringLiteral("valueChanged"));
    }
};
