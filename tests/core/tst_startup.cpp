// Start-up: the command line with the real program's exit codes and messages, the data directory,
// debug switch and log, the single-instance rule with a real second process, and the control
// service's launch.

// Debug builds pass file and line with every message; this test is built that way in any build.
#define QT_MESSAGELOGCONTEXT

#include "Log.h"
#include "Platform.h"
#include "Startup.h"
#include "TestEnvironment.h"

#include <QtTest>

#include <csignal>

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

// The messages the listener received: message, wParam, lParam.
void recordMessage(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    static_cast<QList<QList<qint64>>*>(context)->append({message, qint64(wParam), lParam});
}

QString panelPath()
{
    return QStringLiteral(NX_BIN_DIR "/norvalex-rgb");
}

// The private home of this test, offscreen.
QProcessEnvironment childEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return env;
}

struct Run {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

Run runPanel(const QStringList& arguments, const QProcessEnvironment& env)
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(panelPath(), arguments);
    if (!process.waitForFinished(20000))
        process.kill();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

// No window system at all: none set, none forced.
QProcessEnvironment headless()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    return env;
}

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void programAnswers()
    {
        const QProcessEnvironment env = headless();
        // Help needs no display.
        Run run = runPanel({QStringLiteral("--help")}, env);
        QVERIFY(run.exitCode == 0 && run.out.contains("Usage: ") &&
                run.out.contains("--background"));

        // A wrong option ends at once with status 2, before any window or service.
        run = runPanel({QStringLiteral("--bogus")}, env);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("norvalex-rgb: ") && run.err.contains("'bogus'"),
                 run.err.constData());
        // "open" counts as the first argument only; Qt's own options stay QApplication's.
        QCOMPARE(runPanel({QStringLiteral("--background"), QStringLiteral("open")}, env).exitCode,
                 2);
        QCOMPARE(runPanel({"-platform", "offscreen", "--help"}, env).exitCode, 0);

        // Without a graphical session, or with a display that cannot be opened: one plain
        // sentence, no platform-plugin abort.
        run = runPanel({}, env);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("needs a graphical session"), run.err.constData());
        QProcessEnvironment unreachable = env;
        unreachable.insert(QStringLiteral("DISPLAY"), QStringLiteral(":64999"));
        run = runPanel({}, unreachable);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("needs a graphical session") && run.err.contains(":64999"),
                 run.err.constData());
    }

    void debugModeAndLog();
    void secondInstance();
    void runningPanelQuitsOnMessage();
    void controlLaunch();
};

void tst_Startup::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(QFileInfo(panelPath()).isExecutable());
    // The data directory lives in the private config directory of this test.
    QVERIFY(Startup::dataDirectory().startsWith(TestEnvironment::root().path()));
}

// Debug mode is read from its section of the data directory's file. Diagnostic lines are off
// unless asked for; in debug mode every line goes to the log file, with no source location
// although this test is built to pass one.
void tst_Startup::debugModeAndLog()
{
    QVERIFY(rulesCleared);
    QDir(Startup::dataDirectory()).removeRecursively();
    QVERIFY(!Startup::isDebugMode());
    QVERIFY(QDir().mkpath(Startup::dataDirectory()));
    QFile ini(Startup::dataDirectory() + "/ModuleDevice.ini");
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("[Debug]\nisDebugMode=true\n");
    ini.flush();
    QVERIFY(!Startup::isDebugMode());
    ini.write("[DebugMode]\nisDebugMode=true\n");
    ini.close();
    QVERIFY(Startup::isDebugMode());

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
        QStringLiteral("Warning: lighting library lacks 2 \u6e2c\u8a66 File:\\(\\) Line:\\(0\\)$"));
    QVERIFY2(warningLine.match(lines.at(1)).hasMatch(), qPrintable(lines.at(1)));

    // Without the data directory the lines are lost, quietly.
    QDir(Startup::dataDirectory()).removeRecursively();
    Log::messageHandler(QtDebugMsg, QMessageLogContext(), QStringLiteral("lost"));
    QVERIFY(!QFileInfo::exists(Log::filePath()));
}

void tst_Startup::secondInstance()
{
    // This test plays the running first instance: it holds the lock and answers as "NORVALEX".
    bool exists = true;
    Platform::MutexHandle first = Platform::createMutex(L"NORVALEX RGB.exe", &exists);
    QVERIFY(!exists);
    QList<QList<qint64>> received;
    void* listener = Platform::listenForMessages(L"NORVALEX", recordMessage, &received);
    // Stopped on every way out: a failed check must not leave it writing to `received`.
    const auto stop = qScopeGuard([&] {
        Platform::stopListening(listener);
        Platform::closeHandle(first);
    });

    QProcess second;
    second.setProcessEnvironment(childEnvironment());
    second.start(panelPath(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 10000);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(received, (QList<QList<qint64>>{{0x8101, 1, 1}}));

    // A busy first instance (this thread blocks and never serves its listener) does not make
    // the second one hang.
    second.start(panelPath(), QStringList());
    QVERIFY(second.waitForFinished(15000));
    QCOMPARE(second.exitCode(), 0);
}

void tst_Startup::runningPanelQuitsOnMessage()
{
    QProcess panel;
    panel.setProcessEnvironment(childEnvironment());
    panel.start(panelPath(), QStringList());
    QVERIFY(panel.waitForStarted(5000));
    // The panel holds its instance lock and answers under its controller's title.
    QTRY_VERIFY_WITH_TIMEOUT(Platform::findWindow(L"NORVALEX") != 0, 10000);
    QVERIFY(Platform::mutexExists(L"NORVALEX RGB.exe"));
    // It starts the control service beside it once its event loop runs; waiting until the
    // service listens keeps a service still starting from missing the quit message below.
    QTRY_VERIFY_WITH_TIMEOUT(Platform::findWindow(L"NORVALEX RGB Control") != 0, 20000);
    Platform::sendMessage(Platform::findWindow(L"NORVALEX"), 0x8301, 1, 1);
    QVERIFY(panel.waitForFinished(10000));
    QCOMPARE(panel.exitCode(), 0);
    QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));

    // The service outlives the panel until told to quit.
    QVERIFY(Platform::mutexExists(L"NORVALEX Control.exe"));
    Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"), 0x8301, 1, 1);
    QTRY_VERIFY_WITH_TIMEOUT(!Platform::mutexExists(L"NORVALEX Control.exe"), 10000);
}

// The control service starts from the given directory, in a session of its own, and is reaped
// once it ends, so that a dead service never looks alive through its lock file.
void tst_Startup::controlLaunch()
{
    QTemporaryDir dir;
    const std::wstring directory = dir.path().toStdWString();
    QVERIFY(!Platform::launchElevated(L"missing-service", directory));

    // A stand-in that reports where and how it runs, then waits for a file before it ends.
    QFile script(dir.filePath(QStringLiteral("stand-in")));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n"
                 "cut -d' ' -f6 /proc/$$/stat > session.tmp\n"
                 "echo $$ > pid.tmp\n"
                 "mv session.tmp session; mv pid.tmp pid\n"
                 "while [ ! -e end ]; do sleep 0.05; done\n");
    script.close();
    QVERIFY(!Platform::launchElevated(L"stand-in", directory)); // not executable yet
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);

    QDir::setCurrent(QDir::tempPath());
    QVERIFY(Platform::launchElevated(L"stand-in", directory));
    const QString pidFile = dir.filePath(QStringLiteral("pid"));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pidFile), 20000);
    auto read = [&dir](const char* name) {
        QFile file(dir.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : -1;
    };
    const qint64 pid = read("pid");
    QVERIFY(pid > 0);
    QCOMPARE(read("session"), pid); // started in the given directory, leading its own session

    QFile end(dir.filePath(QStringLiteral("end")));
    QVERIFY(end.open(QIODevice::WriteOnly));
    end.close();
    // Reaped: no zombie is left under this process.
    QTRY_VERIFY_WITH_TIMEOUT(::kill(static_cast<pid_t>(pid), 0) != 0, 20000);
}

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
