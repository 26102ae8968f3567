// The guide's pictures of single rows, which no page of the gallery shows:
// guide_pictures FOLDER. They are taken of real editors after real events.
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

namespace {

enum Columns { AsMade, Aligned };

// A row of each kind, in one column as the guide says how.
struct Rows
{
    explicit Rows(Columns columns)
    {
        gain.setLabelText(QStringLiteral("Gain"));
        gain.setRange(0, 255);
        gain.setValue(96);
        gamma.setLabelText(QStringLiteral("Gamma"));
        gamma.setSingleStep(0.05);
        gamma.setDecimals(2);
        gamma.setRange(0.1, 4.0);
        gamma.setValue(2.2);
        if (columns == Aligned) {
            gain.setLabelFixedWidth(90);
            gamma.setLabelFixedWidth(90);
            gain.setButtonFixedWidth(50);
            gamma.setButtonFixedWidth(50);
            gain.setHorizontalSpacing(12, 8);
            gamma.setHorizontalSpacing(12, 8);
        }
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&gain);
        layout->addWidget(&gamma);
        window.resize(600, 10);
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
    SliderEditFrame gain;
    SliderEditFrameDouble gamma;
};

QString sheet(const QString &name)
{
    QFile file(QStringLiteral("vantorslider:touch-%1.qss").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString mirrored(QString text)
{
    return text.replace(QLatin1String("::sub-page"), QLatin1String("::other-page"))
        .replace(QLatin1String("::add-page"), QLatin1String("::sub-page"))
        .replace(QLatin1String("::other-page"), QLatin1String("::add-page"));
}

// The field selects its text as soon as it has the focus.
void enter(const SliderEditFrame &row, const QString &expression)
{
    auto *field = row.findChild<QSpinBox *>();
    field->setFocus();
    QApplication::processEvents();
    QTest::keyClicks(field, expression);
    QTest::keyClick(field, Qt::Key_Return);
}

bool save(QWidget &widget, const QDir &folder, const QString &name)
{
    QApplication::processEvents();
    const QString path = folder.filePath(name + QStringLiteral(".png"));
    if (!widget.grab().save(path)) {
        std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
        return false;
    }
    return true;
}

bool takeThem(const QDir &folder)
{
    bool isOk = true;
    {
        Rows rows(AsMade);
        isOk &= rows.show();
        rows.window.setFocus();
        isOk &= save(rows.window, folder, QStringLiteral("rows-unthemed"));
    }
    for (const QString &name : {QStringLiteral("light"), QStringLiteral("dark")}) {
        qApp->setStyleSheet(sheet(name));
        const QString suffix = QStringLiteral("-touch-") + name;
        {
            Rows rows(Aligned);
            isOk &= rows.show();
            enter(rows.gain, QStringLiteral("12*8"));
            isOk &= save(rows.gain, folder, QStringLiteral("row-focus") + suffix);
            enter(rows.gain, QStringLiteral("1/0"));
            isOk &= save(rows.gain, folder, QStringLiteral("row-refused") + suffix);
        }
        QApplication::setLayoutDirection(Qt::RightToLeft);
        qApp->setStyleSheet(mirrored(sheet(name)));
        {
            Rows rows(Aligned);
            isOk &= rows.show();
            rows.window.setFocus();
            isOk &= save(rows.window, folder, QStringLiteral("rows-right-to-left") + suffix);
        }
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    return isOk;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QDir::addSearchPath(QStringLiteral("vantorslider"), QStringLiteral(STYLES_DIR));
    return takeThem(QDir(QString::fromLocal8Bit(argv[1]))) ? 0 : 1;
}
