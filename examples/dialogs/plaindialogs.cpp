// The dialogs of an image viewer as Qt's own widgets give them, to compare them with.
#include "dialogs.h"
#include "picture.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

namespace {

// A dialog that grows by rows of label, slider and spin box.
class PlainDialog : public QDialog
{
public:
    PlainDialog(const QString &title, QWidget *parent) : QDialog(parent)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(title);
    }

    QSpinBox *addRow(const QString &text, int min, int max, int value, const QString &suffix)
    {
        auto *spinBox = new QSpinBox;
        spinBox->setRange(min, max);
        spinBox->setSuffix(suffix);
        auto *slider = new QSlider(Qt::Horizontal);
        slider->setRange(min, max);
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), slider, &QSlider::setValue);
        connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
        addRow(text, slider, spinBox, value);
        return spinBox;
    }

    // The slider has a position for each step of 0.01.
    QDoubleSpinBox *addRow(const QString &text, double min, double max, double value,
                           const QString &suffix)
    {
        auto *spinBox = new QDoubleSpinBox;
        spinBox->setRange(min, max);
        spinBox->setSuffix(suffix);
        auto *slider = new QSlider(Qt::Horizontal);
        slider->setRange(qRound(100 * min), qRound(100 * max));
        connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), slider,
                [slider](double value) { slider->setValue(qRound(100 * value)); });
        connect(slider, &QSlider::valueChanged, spinBox,
                [spinBox](int position) { spinBox->setValue(position / 100.0); });
        addRow(text, slider, spinBox, value);
        return spinBox;
    }

    void addWidget(QWidget *widget) { m_layout->addWidget(widget, m_layout->rowCount(), 0, 1, 3); }

    void addButtons()
    {
        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                             | QDialogButtonBox::Reset);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(buttons->button(QDialogButtonBox::Reset), &QPushButton::clicked, this, [this] {
            for (const auto &reset : m_resets) {
                reset();
            }
        });
        addWidget(buttons);
    }

private:
    template <typename SpinBox, typename Value>
    void addRow(const QString &text, QSlider *slider, SpinBox *spinBox, Value value)
    {
        auto *label = new QLabel(text);
        label->setBuddy(spinBox);
        const int row = m_layout->rowCount();
        m_layout->addWidget(label, row, 0);
        m_layout->addWidget(slider, row, 1);
        m_layout->addWidget(spinBox, row, 2);
        m_resets.append([spinBox, value] { spinBox->setValue(value); });
        m_resets.last()();
    }

    QGridLayout *const m_layout = new QGridLayout(this);
    QList<std::function<void()>> m_resets;
};

constexpr auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
constexpr auto doubleValueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);

} // namespace

namespace Plain {

QDialog *cropDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    auto *dialog = new PlainDialog("Crop", parent);
    const int w = picture.width(), h = picture.height();
    auto *left = dialog->addRow("&Left", 0, w - 1, 0, " px");
    auto *top = dialog->addRow("&Top", 0, h - 1, 0, " px");
    auto *width = dialog->addRow("&Width", 1, w, w, " px");
    auto *height = dialog->addRow("&Height", 1, h, h, " px");
    dialog->addButtons();

    const auto crop = [=] {
        return QRect(left->value(), top->value(), width->value(), height->value()) & picture.rect();
    };
    for (const QSpinBox *spinBox : {left, top, width, height}) {
        QObject::connect(spinBox, valueChanged, dialog, [=] { show(withCrop(picture, crop())); });
    }
    QObject::connect(dialog, &QDialog::accepted, dialog, [=] { show(picture.copy(crop())); });
    return dialog;
}

QDialog *colorsDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    auto *dialog = new PlainDialog("Colors", parent);
    auto *brightness = dialog->addRow("&Brightness", -100, 100, 0, " %");
    auto *contrast = dialog->addRow("&Contrast", -100, 100, 0, " %");
    auto *gamma = dialog->addRow("Ga&mma", 0.1, 10.0, 1.0, QString());
    auto *red = dialog->addRow("&Red", -100, 100, 0, " %");
    auto *green = dialog->addRow("&Green", -100, 100, 0, " %");
    auto *blue = dialog->addRow("B&lue", -100, 100, 0, " %");
    dialog->addButtons();

    const auto preview = [=] {
        show(withColors(picture,
                        {brightness->value(), contrast->value(), gamma->value(), red->value(),
                         green->value(), blue->value()}));
    };
    for (const QSpinBox *spinBox : {brightness, contrast, red, green, blue}) {
        QObject::connect(spinBox, valueChanged, dialog, preview);
    }
    QObject::connect(gamma, doubleValueChanged, dialog, preview);
    return dialog;
}

QDialog *scaleDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    auto *dialog = new PlainDialog("Scale", parent);
    const int w = picture.width(), h = picture.height();
    auto *factor = dialog->addRow("&Scale", 1.0, 400.0, 100.0, " %");
    auto *width = dialog->addRow("&Width", 1, 4 * w, w, " px");
    auto *height = dialog->addRow("&Height", 1, 4 * h, h, " px");
    auto *isSmooth = new QCheckBox("S&mooth");
    isSmooth->setChecked(true);
    dialog->addWidget(isSmooth);
    dialog->addButtons();

    QObject::connect(factor, doubleValueChanged, dialog, [=](double percent) {
        width->setValue(qRound(w * percent / 100));
        height->setValue(qRound(h * percent / 100));
    });
    const auto preview = [=] {
        show(picture.scaled(width->value(), height->value(), Qt::IgnoreAspectRatio,
                            isSmooth->isChecked() ? Qt::SmoothTransformation
                                                  : Qt::FastTransformation));
    };
    QObject::connect(width, valueChanged, dialog, preview);
    QObject::connect(height, valueChanged, dialog, preview);
    QObject::connect(isSmooth, &QCheckBox::toggled, dialog, preview);
    return dialog;
}

} // namespace Plain
