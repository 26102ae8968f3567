#include "logpane.h"

#include <QtCore/QThread>
#include <QtWidgets/QScrollBar>

#include <cstdio>

namespace {

LogPane *pane = nullptr;
QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The offscreen platform logs the features that it lacks.
    if (message.startsWith(QLatin1String("This plugin does not support"))) {
        return;
    }
    // A message from another thread must not access the widget.
    if (pane && pane->thread() == QThread::currentThread()) {
        pane->record(type == QtDebugMsg ? QStringLiteral("log") : QStringLiteral("log, warning"),
                     message);
        if (type == QtWarningMsg) {
            Q_EMIT pane->warned(message);
        }
        if (type == QtDebugMsg || (pane->isEcho() && type != QtFatalMsg)) {
            return;
        }
    }
    previousHandler(type, context, message);
}

} // namespace

LogPane::LogPane(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setMaximumBlockCount(2000);
    // Sets only the family, so that the size follows the application's font.
    QFont font;
    font.setFamily(QStringLiteral("monospace"));
    font.setStyleHint(QFont::TypeWriter);
    setFont(font);
    setPlaceholderText(tr("Each signal and log message appears here as it comes."));
    setAccessibleName(tr("Signal log"));
    pane = this;
    previousHandler = qInstallMessageHandler(handleMessage);
}

LogPane::~LogPane()
{
    qInstallMessageHandler(previousHandler);
    pane = nullptr;
}

void LogPane::record(const QString &who, const QString &what)
{
    const QString line = QStringLiteral("%1  %2").arg(who, -12).arg(what);
    const QTime time = m_stoppedAt.isValid() ? m_stoppedAt : QTime::currentTime();
    appendPlainText(time.toString(QStringLiteral("hh:mm:ss.zzz  ")) + line);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    if (m_echo) {
        std::puts(qPrintable(line));
        std::fflush(stdout); // the output of the surrounding program follows
    }
}
