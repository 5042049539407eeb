// The log: diagnostic lines off unless asked for, debug mode's file lines, and the line format
// in builds whose messages carry their source location.

// Debug builds pass file and line with every message; this test is built that way in any build.
#define QT_MESSAGELOGCONTEXT

#include "Log.h"
#include "Startup.h"
#include "TestEnvironment.h"

#include <QtTest>

namespace {

// The defaults are under test, not the rules ctest passes to every test program.
const bool rulesCleared = qunsetenv("QT_LOGGING_RULES");

const QString kTime = QStringLiteral("\u3010\\d{4}-\\d{2}-\\d{2} \\d{2}:\\d{2}:\\d{2}\u3011");

QStringList logLines()
{
    QFile file(Log::filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

class tst_Log : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(Startup::dataDirectory()).removeRecursively();
        QVERIFY(QDir().mkpath(Startup::dataDirectory()));
    }

    void diagnosticLinesFollowDebugMode()
    {
        QVERIFY(rulesCleared);
        // Off by default, and then nothing is formatted for them.
        int formatted = 0;
        const auto costly = [&formatted] {
            ++formatted;
            return QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
        };
        qCDebug(lcPanel) << "receivePreview_Event" << costly();
        QCOMPARE(formatted, 0);
        QVERIFY(lcPanel().isWarningEnabled());

        // Debug mode: every line in the file, with no source location although this build
        // passes one.
        Log::install();
        qCDebug(lcPanel) << "Main_View::slot_show_Info" << costly();
        qWarning("lighting library lacks %d", 2);
        qInstallMessageHandler(nullptr);
        QLoggingCategory::setFilterRules(QString());
        QCOMPARE(formatted, 1);
        const QStringList lines = logLines();
        QCOMPARE(lines.size(), 2);
        const QRegularExpression debugLine(
            '^' + kTime +
            QStringLiteral("Debug: Main_View::slot_show_Info \"[-0-9T:.]+\" "
                           "File:\\(\\) Line:\\(0\\)$"));
        QVERIFY2(debugLine.match(lines.at(0)).hasMatch(), qPrintable(lines.at(0)));
        const QRegularExpression warningLine(
            '^' + kTime +
            QStringLiteral("Warning: lighting library lacks 2 File:\\(\\) Line:\\(0\\)$"));
        QVERIFY2(warningLine.match(lines.at(1)).hasMatch(), qPrintable(lines.at(1)));
    }

    // Each level's word; lines keep their order; without the data directory they are lost.
    void levelWordsAndOrder()
    {
        QVERIFY(Log::formatLine(QtCriticalMsg, "x").contains("\u3011Critical: x"));
        QVERIFY(Log::formatLine(QtFatalMsg, "x").contains("\u3011Fatal: x"));
        QVERIFY(Log::formatLine(QtInfoMsg, "x").contains("\u3011Info: x"));
        QVERIFY(Log::formatLine(QtMsgType(77), "x").contains("\u3011 x"));

        const QMessageLogContext context("Lighting_View.cpp", 162, "f", "default");
        QDir(Startup::dataDirectory()).removeRecursively();
        Log::messageHandler(QtDebugMsg, context, QStringLiteral("lost"));
        QVERIFY(!QFileInfo::exists(Log::filePath()));
        QDir().mkpath(Startup::dataDirectory());
        Log::messageHandler(QtDebugMsg, context, QStringLiteral("first %1"));
        Log::messageHandler(QtWarningMsg, context, QStringLiteral("second \u6e2c\u8a66"));
        const QStringList lines = logLines();
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.at(0).endsWith("Debug: first %1 File:() Line:(0)"));
        QVERIFY(lines.at(1).endsWith("Warning: second \u6e2c\u8a66 File:() Line:(0)"));
    }
};

QTEST_MAIN(tst_Log)
#include "tst_log.moc"
