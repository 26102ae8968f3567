#include "rectpage.h"

#include <slidereditframe.h>

RectPage::RectPage(const QString &title, PictureView::Overlay overlay, PictureView *view,
                   EditHistory *history, LogPane *log)
    : Page(title, history, log), m_overlay(overlay), m_view(view)
{
    connect(view, &PictureView::rectDragged, this, [this](const QRect &rect) {
        if (m_view->overlay() == m_overlay) {
            takeDragged(rect);
        }
    });
}

void RectPage::setUp(Rect *editor, const QString &name, const QStringList &labels)
{
    const Rect::Type fields[] = {Rect::X, Rect::Y, Rect::Width, Rect::Height};
    for (int i = 0; i < labels.size(); ++i) {
        editor->setLabelText(fields[i], labels.at(i));
        editor->setSingleStep(fields[i], step);
        editor->setPageStep(fields[i], 40);
    }
    for (auto *row : editor->rows()) {
        row->setSpinBoxFixedWidth(fieldWidth);
        row->setSuffix(tr(" px"));
    }
    editor->setVerticalSpacing(controlSpacing);
    editor->setAutoRepeat(true);
    editor->setLastVerticalSpacerExpanding(false);

    const auto receiver = [this, name](const char *signal) {
        return m_log->receiver(name, QLatin1String(signal));
    };
    connect(editor, &Rect::xValueChanged, m_log, receiver("xValueChanged"));
    connect(editor, &Rect::yValueChanged, m_log, receiver("yValueChanged"));
    connect(editor, &Rect::widthValueChanged, m_log, receiver("widthValueChanged"));
    connect(editor, &Rect::heightValueChanged, m_log, receiver("heightValueChanged"));
    connect(editor, &Rect::valueChanged, m_log, receiver("valueChanged"));
    connect(editor, &Rect::sizeLockChanged, m_log, receiver("sizeLockChanged"));
    connect(editor, &Rect::PositionLockChanged, m_log, receiver("PositionLockChanged"));

    const auto followLock = [this] {
        if (m_view->overlay() == m_overlay) {
            m_view->setOverlay(m_overlay, rules(m_view->pictureSize()));
        }
    };
    connect(editor, &Rect::sizeLockChanged, this, followLock);
    connect(editor, &Rect::PositionLockChanged, this, followLock);
}

void RectPage::setDefaults(Rect *editor, int x, int y, int width, int height)
{
    editor->row(Rect::X)->setDefaultValue(x);
    editor->row(Rect::Y)->setDefaultValue(y);
    editor->row(Rect::Width)->setDefaultValue(width);
    editor->row(Rect::Height)->setDefaultValue(height);
}

RectRules RectPage::rulesOf(Rect *editor, const QSize &area)
{
    RectRules rules;
    int least = 0; // of a position: 0 on each page
    editor->range(Rect::X, least, rules.lastCorner.rx());
    editor->range(Rect::Y, least, rules.lastCorner.ry());
    editor->range(Rect::Width, rules.least.rwidth(), rules.most.rwidth());
    editor->range(Rect::Height, rules.least.rheight(), rules.most.rheight());
    rules.area = area;
    rules.step = step;
    rules.isPositionLocked = editor->isPositionLocked();
    rules.isSizeLocked = editor->isSizeLocked();
    return rules;
}

void RectPage::showRect(Rect *editor, const std::function<void()> &set)
{
    const QRect before = editor->rectangle();
    set();
    const QRect after = editor->rectangle();
    for (const auto type : {Rect::X, Rect::Y, Rect::Width, Rect::Height}) {
        editor->setValueChangeDirection(type, Vantor::Widgets::SliderEditFrame::AllowedToAny, 0);
    }
    // A lock uses the rectangle at which it was switched on.
    if (before.topLeft() != after.topLeft() && editor->isPositionLocked()) {
        editor->setPositionLock(true);
    }
    if (before.size() != after.size() && editor->isSizeLocked()) {
        editor->setSizeLock(true);
    }
}
