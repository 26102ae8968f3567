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

// What a sample may have left behind is taken back first.
void startAfresh()
{
    qInstallMessageHandler(note);
    QLoggingCategory::setFilterRules(QString());
    qApp->setStyleSheet(QString());
    complaints.clear();
}

bool isFine(const QString &name)
{
    // Once set, it stays.
    static bool wasFailed = false;
    if (QTest::currentTestFailed() && !wasFailed)
        complaints += "    a comparison failed\n";
    wasFailed = QTest::currentTestFailed();
    std::printf("%s %s\n%s", complaints.isEmpty() ? "fine" : "FAULTY", qPrintable(name),
                qPrintable(complaints));
    return complaints.isEmpty();
}

// Whether any widget of the host is selected, whatever its state and its part.
bool selectsSomething(QString selector)
{
    Host host;
    selector.remove(QRegularExpression(":[:!a-z-]+"));
    host.window.setStyleSheet(selector + " { qproperty-statusTip: \"selected\"; }");
    for (QWidget *widget : host.window.findChildren<QWidget *>()) {
        widget->ensurePolished();
        if (widget->statusTip() == "selected")
            return true;
    }
    return false;
}

bool isSheetFine(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QString sheet = QString::fromUtf8(file.readAll());
    startAfresh();
    {
        Host host;
        host.window.setStyleSheet(sheet);
        host.window.show();
        QCoreApplication::processEvents();
    }
    sheet.remove(QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
    const QRegularExpression rule("([^{}]+)\\{([^{}]*)\\}");
    const QRegularExpression declaration("^\\s*[a-z-]+: .+$|^\\s*$");
    for (auto rules = rule.globalMatch(sheet); rules.hasNext();) {
        const auto match = rules.next();
        // Qt reads over a declaration that it can't make out.
        for (const QString &text : match.captured(2).split(';')) {
            if (!declaration.match(text).hasMatch())
                complaints += "    no declaration: " + text + '\n';
        }
        for (const QString &selector : match.captured(1).split(',')) {
            if (!selectsSomething(selector.trimmed()))
                complaints += "    selects nothing: " + selector.trimmed() + '\n';
        }
    }
    return isFine(QFileInfo(path).fileName());
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    bool isAllFine = true;
    for (const Sample &sample : samples) {
        startAfresh();
        sample.run();
        QCoreApplication::processEvents();
        isAllFine = isFine(sample.name) && isAllFine;
    }
    for (const QString &sheet : application.arguments().mid(1))
        isAllFine = isSheetFine(sheet) && isAllFine;
    return isAllFine ? 0 : 1;
}
