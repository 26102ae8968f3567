// Runs the guide's C++ samples, and parses its style sheets: samples SHEET...
// A sample fails if it causes a warning or if one of its own comparisons fails, a sheet
// if it causes a warning or if a selector matches nothing.
#include "samplehost.h"

#include <cstdio>

namespace {

QString complaints;

void note(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && !text.startsWith("This plugin does not support"))
        complaints += "    " + text + '\n';
}

// Whether the attempt causes no failure or message. First removes what the last attempt
// may have left.
template <typename Attempt> bool isFine(const QString &name, Attempt attempt)
{
    qInstallMessageHandler(note);
    QLoggingCategory::setFilterRules(QString());
    qApp->setStyleSheet(QString());
    complaints.clear();
    const bool wasFailed = QTest::currentTestFailed(); // it is never reset
    attempt();
    QCoreApplication::processEvents();
    if (QTest::currentTestFailed() && !wasFailed)
        complaints += "    a comparison failed\n";
    std::printf("%s %s\n%s", complaints.isEmpty() ? "fine" : "FAULTY", qPrintable(name),
                qPrintable(complaints));
    return complaints.isEmpty();
}

// Whether the selector matches any widget of the host, in any state and subcontrol.
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
    // Deleted before the next host: Qt would mistake the next host's widgets at the same
    // addresses for these.
    {
        Host host;
        host.window.setStyleSheet(sheet);
        host.window.show();
        QCoreApplication::processEvents();
    }
    sheet.remove(QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
    const QRegularExpression rule("([^{}]+)\\{([^{}]*)\\}");
    const QRegularExpression noDeclaration("^(?!\\s*([A-Za-z-]+: .+)?$)");
    for (auto rules = rule.globalMatch(sheet); rules.hasNext();) {
        const auto match = rules.next();
        // Qt ignores a declaration that it can't parse.
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
