#include "Log.h"

#include "DataDirectory.h"

#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>

Q_LOGGING_CATEGORY(lcPanel, "norvalex.panel", QtInfoMsg)

namespace Log {

namespace {

QString levelWord(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("Debug:");
    case QtWarningMsg:
        return QStringLiteral("Warning:");
    case QtCriticalMsg:
        return QStringLiteral("Critical:");
    case QtFatalMsg:
        return QStringLiteral("Fatal:");
    case QtInfoMsg:
        return QStringLiteral("Info:");
    }
    return QString();
}

QMutex& logMutex()
{
    static QMutex mutex;
    return mutex;
}

} // namespace

QString filePath()
{
    return DataDirectory::path() + QStringLiteral("/NORVALEXRGB_UI_Log.txt");
}

QString formatLine(QtMsgType type, const QString& message)
{
    // Debug builds of Qt programs pass file and line with every message; the log never shows
    // them.
    const QString where = QStringLiteral("File:() Line:(0)");
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return QStringLiteral("\u3010%1\u3011%2 %3 %4").arg(time, levelWord(type), message, where);
}

void messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    QMutexLocker locker(&logMutex());
    const QString line = formatLine(type, message);
    // The directory is not created here: without it the line is lost, silently.
    QFile file(filePath());
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.write(line.toUtf8());
        file.write("\r\n");
        file.flush();
        file.close();
    }
}

void install()
{
    // Rules from QT_LOGGING_RULES or a logging configuration file still take precedence.
    QLoggingCategory::setFilterRules(QStringLiteral("norvalex.panel.debug=true"));
    qInstallMessageHandler(messageHandler);
}

} // namespace Log
