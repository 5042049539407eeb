// Start-up: the data directory and debug switch, the language table and the single-instance rule
// with a real second process.
#include "Languages.h"
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
    void languageTable();
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
    QTest::newRow("wrong section") << QByteArray("[Debug]\nisDebugMode=true\n") << false;
    QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe[[[=\n\x01", 10) << false;
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
