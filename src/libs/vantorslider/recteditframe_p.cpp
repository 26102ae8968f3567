#include "recteditframe_p.h"

#include "childwidget_p.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

#include <memory>

namespace Vantor::Widgets::Internal {

namespace {

void allowAnyDirection(SliderEditFrame *field)
{
    field->setValueChangeDirection(SliderEditFrame::AllowedToAny, field->value());
}

// A spacer above or below a lock. It is never larger than the lock's placeholder: a style sheet
// that collapses the placeholder collapses the column. If the sheet permits it any width, the
// column is as wide as the other panel's lock, whose width can be the style's.
class LockSpacer : public QSpacerItem
{
public:
    LockSpacer(const QSpacerItem &form, const QWidget *placeholder, const QWidget *otherLock)
        : QSpacerItem(form), m_placeholder(placeholder), m_otherLock(otherLock)
    {
    }

    QSize sizeHint() const override { return bounded(QSpacerItem::sizeHint()); }
    QSize minimumSize() const override { return bounded(QSpacerItem::minimumSize()); }

private:
    QSize bounded(QSize size) const
    {
        if (m_placeholder->maximumWidth() == QWIDGETSIZE_MAX && !m_placeholder->isHidden()) {
            size.setWidth(m_otherLock->minimumWidth());
        }
        return size.boundedTo(m_placeholder->maximumSize());
    }

    const QWidget *m_placeholder;
    const QWidget *m_otherLock;
};

// Replaces the form's spacer at that index.
QSpacerItem *collapsibleSpacer(QBoxLayout *column, int index, const QWidget *placeholder,
                               const QWidget *otherLock)
{
    const std::unique_ptr<QLayoutItem> form(column->takeAt(index));
    auto *spacer = new LockSpacer(*form->spacerItem(), placeholder, otherLock);
    column->insertItem(index, spacer);
    return spacer;
}

} // namespace

void RectEditFramePrivate::createWidgets()
{
    ui->toolButtonLockPosition->setProperty("lockoutstate", true);
    ui->toolButtonLockSize->setProperty("lockoutstate", true);
    ui->frameSpacerLockPosition->setProperty("isLockPositionFrame", true);
    ui->toolButtonLockPosition->setProperty("isLockPositionFrame", true);
    nameLocks();
    ui->toolButtonLockSize->installEventFilter(this);
    ui->toolButtonLockPosition->installEventFilter(&m_itemEditor);
    ui->toolButtonLockSize->installEventFilter(&m_itemEditor);
    ui->verticalSpacer_5 = collapsibleSpacer(ui->verticalLayoutLockPosition, 0,
                                             ui->frameSpacerLockPosition, ui->toolButtonLockSize);
    ui->verticalSpacer_4 = collapsibleSpacer(ui->verticalLayoutLockPosition, 2,
                                             ui->frameSpacerLockPosition, ui->toolButtonLockSize);
    ui->verticalSpacer_2 = collapsibleSpacer(ui->verticalLayoutLockSize, 0, ui->frameSpacerLockSize,
                                             ui->toolButtonLockPosition);
    ui->verticalSpacer_3 = collapsibleSpacer(ui->verticalLayoutLockSize, 2, ui->frameSpacerLockSize,
                                             ui->toolButtonLockPosition);
    m_pEditer->setPositionLockEnable(false);
    m_pEditer->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
}

// That of the size lock stands for the editor: each widget of a window receives a change of the
// language. The other one is watched only for its tool tip. A tool tip of the host takes
// precedence, also that of the editor or of a widget around it.
bool RectEditFramePrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == ui->toolButtonLockSize) {
        nameLocks();
    }
    if (event->type() == QEvent::ToolTip && m_hasLockToolTips) {
        auto *const lock = static_cast<QToolButton *>(watched);
        if (!hasToolTip(lock)) {
            const QPoint place = static_cast<const QHelpEvent *>(event)->globalPos();
            QToolTip::showText(place, lock->accessibleName(), lock);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// The buttons have no texts. A name that the host has set stays.
void RectEditFramePrivate::nameLocks()
{
    const auto setName = [](QToolButton *button, QString &last, const QString &name) {
        if (button->accessibleName() == last) {
            button->setAccessibleName(name);
            last = name;
        }
    };
    setName(ui->toolButtonLockPosition, m_strPositionLock, RectEditFrame::tr("Lock position"));
    setName(ui->toolButtonLockSize, m_strSizeLock, RectEditFrame::tr("Lock size"));
}

void RectEditFramePrivate::createConnects()
{
    using Private = RectEditFramePrivate;
    connect(ui->frameX, &SliderEditFrame::valueChanged, this, &Private::slotXValueChanged);
    connect(ui->frameY, &SliderEditFrame::valueChanged, this, &Private::slotYValueChanged);
    connect(ui->frameWidth, &SliderEditFrame::valueChanged, this, &Private::slotWidthValueChanged);
    connect(ui->frameHeight, &SliderEditFrame::valueChanged, this,
            &Private::slotHeightValueChanged);
    connect(ui->toolButtonLockPosition, &QToolButton::toggled, this,
            &Private::slotLockPositionButtonToggled);
    connect(ui->toolButtonLockSize, &QToolButton::toggled, this,
            &Private::slotLockSizeButtonToggled);
}

// QAbstractButton uses itself after toggled(), whose receiver may delete the editor. So toggled()
// is emitted after setChecked() has returned. Returns false if the editor was deleted.
bool RectEditFramePrivate::switchButton(QToolButton *button, bool isChecked)
{
    if (button->isChecked() == isChecked) {
        return true;
    }
    const QPointer<RectEditFramePrivate> self(this);
    {
        const QSignalBlocker blocker(button);
        button->setChecked(isChecked);
    }
    Q_EMIT button->toggled(isChecked);
    return !self.isNull();
}

// If the button's state changes, toggled() calls this function again: that call captures the
// position and emits the signal, then this call captures it once more.
void RectEditFramePrivate::setPositionLock(bool bLock)
{
    if (!switchButton(ui->toolButtonLockPosition, bLock)) {
        return;
    }
    m_isLockedPosition = bLock;
    if (bLock) {
        m_lockedPosition = QPoint(ui->frameX->value(), ui->frameY->value());
    }
    allowAnyDirection(ui->frameX);
    allowAnyDirection(ui->frameY);
}

// Like setPositionLock().
void RectEditFramePrivate::setSizeLock(bool bLock)
{
    if (!switchButton(ui->toolButtonLockSize, bLock)) {
        return;
    }
    m_isLockedSize = bLock;
    if (bLock) {
        m_lockedSize = QSize(ui->frameWidth->value(), ui->frameHeight->value());
    }
    allowAnyDirection(ui->frameWidth);
    allowAnyDirection(ui->frameHeight);
}

void RectEditFramePrivate::slotLockPositionButtonToggled(bool checked)
{
    setPositionLock(checked);
    Q_EMIT m_pEditer->PositionLockChanged(checked);
}

void RectEditFramePrivate::slotLockSizeButtonToggled(bool checked)
{
    setSizeLock(checked);
    Q_EMIT m_pEditer->sizeLockChanged(checked);
}

void RectEditFramePrivate::changePosition(const LockedField &changed, int val,
                                          const LockedField &partner)
{
    if (m_isLockedPosition) {
        moveAlong(changed, val, partner);
    }
    report(changed, val);
}

void RectEditFramePrivate::changeSize(const LockedField &changed, int val,
                                      const LockedField &partner)
{
    if (m_isLockedSize && m_sizeLockType == RectEditFrame::OffsetLock) {
        moveAlong(changed, val, partner);
    } else if (m_isLockedSize && m_sizeLockType == RectEditFrame::SizeScaleLock
               && changed.basis > 0) {
        const ScaledSides sides = scaleAlong(changed, val, partner);
        val = sides.changed;
        const QPointer<RectEditFramePrivate> self(this);
        Q_EMIT(m_pEditer->*partner.valueChanged)(sides.partner);
        if (!self) {
            return;
        }
    }
    report(changed, val);
}

void RectEditFramePrivate::report(const LockedField &changed, int val)
{
    const QPointer<RectEditFramePrivate> self(this);
    Q_EMIT(m_pEditer->*changed.valueChanged)(val);
    if (self) {
        const auto valueOf = [&changed, val](SliderEditFrame *frame) {
            return frame == changed.frame ? val : frame->value();
        };
        Q_EMIT m_pEditer->valueChanged(valueOf(ui->frameX), valueOf(ui->frameY),
                                       valueOf(ui->frameWidth), valueOf(ui->frameHeight));
    }
}

} // namespace Vantor::Widgets::Internal
