// Start-up: the data directory and debug switch, the log line, the language table, the "open"
// argument and the single-instance rule with a real second process.
#include "Languages.h"
#include "Log.h"
#include "Platform.h"
#include "Startup.h"
#include "TestEnvironment.h"

#include <QtTest>

#include <atomic>

namespace {

struct Received {
    unsigned message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
    int count = 0;
};

void recordMessage(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    auto* r = static_cast<Received*>(context);
    r->message = message;
    r->wParam = wParam;
    r->lParam = lParam;
    ++r->count;
}

QString panelPath()
{
    return QStringLiteral(NX_BIN_DIR "/norvalex-rgb");
}

QProcessEnvironment childEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), TestEnvironment::runtimeDir());
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), TestEnvironment::configDir());
    return env;
}

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void debugSwitch_data();
    void debugSwitch();
    void logLineFormat();
    void logWritesLinesInOrderAndSurvivesMissingDirectory();
    void languageTable();
    void openArgument_data();
    void openArgument();
    void terminalAnswers();
    void secondInstance();
    void runningPanelQuitsOnMessage();

private:
    QString iniPath() const { return Startup::dataDirectory() + "/ModuleDevice.ini"; }
};

void tst_Startup::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(QFileInfo(panelPath()).isExecutable());
    // The data directory lives in the private config directory of this test.
    QVERIFY(Startup::dataDirectory().startsWith(TestEnvironment::root().path()));
    QVERIFY(Startup::dataDirectory().endsWith(QStringLiteral("/Qx/NORVALEXRGB")));
}

void tst_Startup::debugSwitch_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("debug");
    QTest::newRow("no file") << QByteArray() << false;
    QTest::newRow("on") << QByteArray("[DebugMode]\nisDebugMode=true\n") << true;
    QTest::newRow("one") << QByteArray("[DebugMode]\nisDebugMode=1\n") << true;
    QTest::newRow("off") << QByteArray("[DebugMode]\nisDebugMode=false\n") << false;
    QTest::newRow("key missing") << QByteArray("[DebugMode]\nother=true\n") << false;
    QTest::newRow("wrong section") << QByteArray("[Debug]\nisDebugMode=true\n") << false;
    QTest::newRow("partial line") << QByteArray("[DebugMode]\nisDebugMo") << false;
    QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe[[[=\n\x01", 10) << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void tst_Startup::debugSwitch()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, debug);
    QFile::remove(iniPath());
    if (!content.isNull()) {
        QDir().mkpath(Startup::dataDirectory());
        QFile file(iniPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QCOMPARE(Startup::isDebugMode(), debug);
    QFile::remove(iniPath());
}

void tst_Startup::logLineFormat()
{
    const QMessageLogContext noContext;
    const QString line = Log::formatLine(QtDebugMsg, noContext, QStringLiteral("hello %1 world"));
    const QRegularExpression pattern(
        QStringLiteral("^\u3010\\d{4}-\\d{2}-\\d{2} \\d{2}:\\d{2}:\\d{2}\u3011Debug: hello %1 "
                       "world File:\\(\\) Line:\\(0\\)$"));
    QVERIFY2(pattern.match(line).hasMatch(), qPrintable(line));

    const QMessageLogContext withFile("main.cpp", 42, "f", "default");
    QVERIFY(Log::formatLine(QtWarningMsg, withFile, "x")
                .endsWith("Warning: x File:(main.cpp) Line:(42)"));
    QVERIFY(Log::formatLine(QtCriticalMsg, noContext, "x").contains("\u3011Critical: x"));
    QVERIFY(Log::formatLine(QtFatalMsg, noContext, "x").contains("\u3011Fatal: x"));
    QVERIFY(Log::formatLine(QtInfoMsg, noContext, "x").contains("\u3011Info: x"));
    QVERIFY(Log::formatLine(QtMsgType(77), noContext, "x").contains("\u3011 x"));
}

void tst_Startup::logWritesLinesInOrderAndSurvivesMissingDirectory()
{
    const QMessageLogContext context;
    QDir(Startup::dataDirectory()).removeRecursively();
    // Without the directory the line is lost, silently.
    Log::messageHandler(QtDebugMsg, context, QStringLiteral("lost"));
    QVERIFY(!QFileInfo::exists(Log::filePath()));

    QDir().mkpath(Startup::dataDirectory());
    Log::messageHandler(QtDebugMsg, context, QStringLiteral("first"));
    Log::messageHandler(QtWarningMsg, context, QStringLiteral("second \u6e2c\u8a66"));
    QFile file(Log::filePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).contains("Debug: first File:() Line:(0)"));
    QVERIFY(lines.at(1).contains("Warning: second \u6e2c\u8a66"));
    QCOMPARE(lines.at(2), QString());
}

void tst_Startup::languageTable()
{
    const QStringList codes = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int i = 0; i < codes.size(); ++i) {
        const QString file = Languages::fileForIndex(i);
        QCOMPARE(file, ":/QXRGBMemory/NORVALEX_" + codes.at(i) + ".qm");
        QTranslator translator;
        QVERIFY2(translator.load(file), qPrintable(file));
    }
    for (int index : {-1, 10, 11, 1000})
        QVERIFY(Languages::fileForIndex(index).isEmpty());
}

void tst_Startup::openArgument_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<bool>("open");
    QTest::newRow("open") << QByteArray("open") << true;
    QTest::newRow("opened") << QByteArray("opened") << false;
    QTest::newRow("ope") << QByteArray("ope") << false;
    QTest::newRow("Open") << QByteArray("Open") << false;
    QTest::newRow("OPEN") << QByteArray("OPEN") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void tst_Startup::openArgument()
{
    QFETCH(QByteArray, argument);
    QFETCH(bool, open);
    char program[] = "norvalex-rgb";
    char* argv[] = {program, argument.data(), nullptr};
    QCOMPARE(Startup::isOpenArgument(2, argv), open);
    QCOMPARE(Startup::isOpenArgument(1, argv), false);
}

void tst_Startup::terminalAnswers()
{
    QProcess help;
    help.start(panelPath(), {QStringLiteral("--help")});
    QVERIFY(help.waitForFinished(5000));
    QCOMPARE(help.exitCode(), 0);
    QVERIFY(help.readAllStandardOutput().startsWith("Usage: norvalex-rgb"));

    QProcess version;
    version.start(panelPath(), {QStringLiteral("--version")});
    QVERIFY(version.waitForFinished(5000));
    QCOMPARE(version.exitCode(), 0);
    QCOMPARE(version.readAllStandardOutput(), QByteArray("NORVALEX RGB 1.0.8\n"));
}

void tst_Startup::secondInstance()
{
    // This test plays the running first instance: it holds the lock and answers as "NORVALEX".
    bool exists = true;
    Platform::MutexHandle first = Platform::createMutex(L"NORVALEX RGB.exe", &exists);
    QVERIFY(!exists);
    Received received;
    void* listener = Platform::listenForMessages(L"NORVALEX", recordMessage, &received);

    QProcess second;
    second.setProcessEnvironment(childEnvironment());
    second.start(panelPath(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 10000);
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(received.count, 1);
    QCOMPARE(received.message, 0x8101u);
    QCOMPARE(received.wParam, std::uintptr_t(1));
    QCOMPARE(received.lParam, std::intptr_t(1));

    // A busy first instance (this thread blocks and never serves its listener) does not make
    // the second one hang.
    QElapsedTimer timer;
    timer.start();
    second.start(panelPath(), QStringList());
    QVERIFY(second.waitForFinished(15000));
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(timer.elapsed() < 10000);

    Platform::stopListening(listener);
    Platform::closeHandle(first);
    QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
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
    Platform::sendMessage(Platform::findWindow(L"NORVALEX"), 0x8301, 1, 1);
    QVERIFY(panel.waitForFinished(10000));
    QCOMPARE(panel.exitStatus(), QProcess::NormalExit);
    QCOMPARE(panel.exitCode(), 0);
    QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));

    // The panel started the control service beside it; it keeps running until told to quit.
    if (Platform::mutexExists(L"NORVALEX Control.exe")) {
        Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"), 0x8301, 1, 1);
        QTRY_VERIFY_WITH_TIMEOUT(!Platform::mutexExists(L"NORVALEX Control.exe"), 10000);
    }
}

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
