#pragma once

#include "editorrows_p.h"
#include "editspan_p.h"
#include "itemeditor_p.h"
#include "recteditframe.h"
#include "rectlocks_p.h"
#include "slidereditframe.h"
#include "ui_recteditframe.h"

#include <memory>

namespace Vantor::Widgets::Internal {

// The four fields and the state of the two locks; emits the editor's signals.
class RectEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RectEditFramePrivate(RectEditFrame *editer) : m_pEditer(editer) { }

    void createWidgets();
    void createConnects();
    bool eventFilter(QObject *watched, QEvent *event) override;
    void setPositionLock(bool bLock);
    void setSizeLock(bool bLock);
    void slotLockPositionButtonToggled(bool checked);
    void slotLockSizeButtonToggled(bool checked);

    EditorRows rows() const
    {
        return {{RectEditFrame::X, ui->frameX},
                {RectEditFrame::Y, ui->frameY},
                {RectEditFrame::Width, ui->frameWidth},
                {RectEditFrame::Height, ui->frameHeight}};
    }

    RectEditFrame *m_pEditer;
    const std::unique_ptr<Ui::RectEditFrame> ui = std::make_unique<Ui::RectEditFrame>();
    EditSpan m_edits {m_pEditer};
    ItemEditorFilter m_itemEditor {m_pEditer};
    RectEditFrame::LockType m_sizeLockType = RectEditFrame::SizeScaleLock;
    QPoint m_lockedPosition;
    // Width and height when the lock was turned on, or the ratio that the host has set.
    QSize m_lockedSize;
    bool m_isLockedPosition = false;
    bool m_isLockedSize = false;
    bool m_hasLockToolTips = false;
    // The accessible names as they were last translated.
    QString m_strPositionLock;
    QString m_strSizeLock;

private Q_SLOTS:
    void slotXValueChanged(int val) { changePosition(x(), val, y()); }
    void slotYValueChanged(int val) { changePosition(y(), val, x()); }
    void slotWidthValueChanged(int val) { changeSize(width(), val, height()); }
    void slotHeightValueChanged(int val) { changeSize(height(), val, width()); }

private:
    LockedField x() const
    {
        return {ui->frameX, &RectEditFrame::xValueChanged, m_lockedPosition.x()};
    }
    LockedField y() const
    {
        return {ui->frameY, &RectEditFrame::yValueChanged, m_lockedPosition.y()};
    }
    LockedField width() const
    {
        constexpr bool isLimitedFirst = true;
        return {ui->frameWidth, &RectEditFrame::widthValueChanged, m_lockedSize.width(), ui->frameX,
                isLimitedFirst};
    }
    LockedField height() const
    {
        return {ui->frameHeight, &RectEditFrame::heightValueChanged, m_lockedSize.height(),
                ui->frameY};
    }

    void nameLocks();
    bool switchButton(QToolButton *button, bool isChecked);
    void changePosition(const LockedField &changed, int val, const LockedField &partner);
    void changeSize(const LockedField &changed, int val, const LockedField &partner);

    // Emits the field's own signal, then valueChanged() of the whole rectangle.
    void report(const LockedField &changed, int val);
};

} // namespace Vantor::Widgets::Internal
