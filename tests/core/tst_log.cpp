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
        qWarning("lighting library lacks %d \u6e2c\u8a66", 2);
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
            QStringLiteral(
                "Warning: lighting library lacks 2 \u6e2c\u8a66 File:\\(\\) Line:\\(0\\)$"));
        QVERIFY2(warningLine.match(lines.at(1)).hasMatch(), qPrintable(lines.at(1)));

        // Without the data directory the lines are lost, quietly.
        QDir(Startup::dataDirectory()).removeRecursively();
        Log::messageHandler(QtDebugMsg, QMessageLogContext(), QStringLiteral("lost"));
        QVERIFY(!QFileInfo::exists(Log::filePath()));
    }
};

QTEST_MAIN(tst_Log)
#include "tst_log.moc"
