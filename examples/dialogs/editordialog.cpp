#include "dialogs.h"

#include <alignfields.h>
#include <alignlabels.h>
#include <reducetabstops.h>

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

QDialog *editorDialog(const QString &title, const QList<QWidget *> &widgets,
                      const std::function<void()> &reset, QWidget *parent)
{
    auto *dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                         | QDialogButtonBox::Reset);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(buttons->button(QDialogButtonBox::Reset), &QPushButton::clicked, dialog,
                     reset);

    auto *layout = new QVBoxLayout(dialog);
    for (QWidget *widget : widgets) {
        layout->addWidget(widget);
    }
    layout->addWidget(buttons);

    Vantor::Widgets::alignLabels(dialog, Qt::AlignLeft);
    Vantor::Widgets::alignFields(dialog);
    Vantor::Widgets::reduceTabStops(dialog);
    return dialog;
}
