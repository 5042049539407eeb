#include "Log.h"

#include "DataDirectory.h"

#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>

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

QString formatLine(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QString where = QStringLiteral("File:(%1) Line:(%2)")
                              .arg(QString::fromUtf8(context.file ? context.file : ""))
                              .arg(context.line);
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return QStringLiteral("\u3010%1\u3011%2 %3 %4").arg(time, levelWord(type), message, where);
}

void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    QMutexLocker locker(&logMutex());
    const QString line = formatLine(type, context, message);
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
    qInstallMessageHandler(messageHandler);
}

} // namespace Log
