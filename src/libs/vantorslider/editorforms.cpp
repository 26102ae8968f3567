#include "editorforms_p.h"

#include "childwidget_p.h"
#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <utility>

namespace Vantor::Widgets::Internal {

namespace {

void restore(QWidget *child, const QWidget *ofForm)
{
    child->setMinimumSize(ofForm->minimumSize());
    child->setMaximumSize(ofForm->maximumSize());
    applyWidths(child);
    auto *const button = qobject_cast<QToolButton *>(child);
    if (button != nullptr) {
        button->setText(static_cast<const QToolButton *>(ofForm)->text());
    }
}

bool isIn(const QWidget *root, const QWidget *widget)
{
    while (widget != nullptr && widget != root) {
        widget = widget->parentWidget();
    }
    return widget == root;
}

// The children have their names in all editors of the class. In the rows of a composite editor they
// have the same ones, and the same sizes. A window that is being destroyed may not be asked for its
// children: some of them are deleted.
template <typename Editor> void restoreFormsOf(const QWidget *root)
{
    QList<Editor *> editors;
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *const editor = qobject_cast<Editor *>(widget);
        if (editor != nullptr && isIn(root, editor)) {
            editors.append(editor);
        }
    }
    if (editors.isEmpty()) {
        return;
    }
    const Editor form;
    const auto children = form.template findChildren<QWidget *>();
    for (Editor *editor : std::as_const(editors)) {
        for (const QWidget *ofForm : children) {
            auto *const child = editor->template findChild<QWidget *>(ofForm->objectName());
            if (child != nullptr && qobject_cast<QLabel *>(child) == nullptr) {
                restore(child, ofForm);
            }
        }
        for (const char *property : {"lastVerticalSpace", "lockToolTips"}) {
            if (form.property(property).isValid()) {
                editor->setProperty(property, form.property(property));
            }
        }
    }
}

} // namespace

void restoreForms(const QWidget *root)
{
    restoreFormsOf<SliderEditFrame>(root);
    restoreFormsOf<SliderEditFrameDouble>(root);
    restoreFormsOf<RectEditFrame>(root);
    restoreFormsOf<RGBEditFrame>(root);
    restoreFormsOf<RGBAllEditFrame>(root);
    restoreFormsOf<RGBOpacityEditFrame>(root);
}

} // namespace Vantor::Widgets::Internal
