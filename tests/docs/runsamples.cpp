// Runs the guide's samples of C++, and reads its style sheets: samples SHEET...
// A sample fails by a warning or by a comparison of its own, a sheet by a warning
// or by a selector that selects nothing.
#include "samplehost.h"

#include <cstdio>

namespace {

QString complaints;

void note(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && !text.startsWith("This plugin does not support"))
        complaints += "    " + text + '\n';
}

// Whether the attempt leaves no complaint. What the last one may have left behind is
// taken back first.
template <typename Attempt> bool isFine(const QString &name, Attempt attempt)
{
    qInstallMessageHandler(note);
    QLoggingCategory::setFilterRules(QString());
    qApp->setStyleSheet(QString());
    complaints.clear();
    const bool wasFailed = QTest::currentTestFailed(); // once set, it stays
    attempt();
    QCoreApplication::processEvents();
    if (QTest::currentTestFailed() && !wasFailed)
        complaints += "    a comparison failed\n";
    std::printf("%s %s\n%s", complaints.isEmpty() ? "fine" : "FAULTY", qPrintable(name),
                qPrintable(complaints));
    return complaints.isEmpty();
}

// Whether any widget of the host is selected, whatever its state and its part.
bool selectsSomething(QString selector)
{
    Host host;
    selector.remove(QRegularExpression(":[:!a-z-]+"));
    host.window.setStyleSheet(selector + " { qproperty-objectName: \"selected\"; }");
    for (QWidget *widget : host.window.findChildren<QWidget *>())
        widget->ensurePolished();
    return host.window.findChild<QWidget *>("selected") != nullptr;
}

void trySheet(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        complaints += "    cannot be read\n";
    QString sheet = QString::fromUtf8(file.readAll());
    // Gone before the next host: Qt would take that one's widgets, at the same
    // addresses, for the same ones.
    {
        Host host;
        host.window.setStyleSheet(sheet);
        host.window.show();
        QCoreApplication::processEvents();
    }
    sheet.remove(QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
    const QRegularExpression rule("([^{}]+)\\{([^{}]*)\\}");
    const QRegularExpression noDeclaration("^(?!\\s*([a-z-]+: .+)?$)");
    for (auto rules = rule.globalMatch(sheet); rules.hasNext();) {
        const auto match = rules.next();
        // Qt reads over a declaration that it can't make out.
        for (const QString &text : match.captured(2).split(';').filter(noDeclaration))
            complaints += "    no declaration: " + text + '\n';
        for (const QString &selector : match.captured(1).split(',')) {
            if (!selectsSomething(selector.trimmed()))
                complaints += "    selects nothing: " + selector.trimmed() + '\n';
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    bool isAllFine = true;
    for (const Sample &sample : samples)
        isAllFine &= isFine(sample.name, sample.run);
    for (const QString &sheet : application.arguments().mid(1))
        isAllFine &= isFine(QFileInfo(sheet).fileName(), [&] { trySheet(sheet); });
    return isAllFine ? 0 : 1;
}
