// The service and the library among other processes: where they meet, and clients that never
// read.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace nxproto;

namespace {

int modeOf(const QString& path)
{
    struct stat info {
    };
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777)
                                                                    : -1;
}

// Resident memory of a process, in kilobytes.
long residentKb(qint64 pid)
{
    QFile statm(QStringLiteral("/proc/%1/statm").arg(pid));
    if (!statm.open(QIODevice::ReadOnly))
        return -1;
    return statm.readAll().split(' ').value(1).toLong() * (::sysconf(_SC_PAGESIZE) / 1024);
}

} // namespace

class TestServicePeers : public QObject
{
    Q_OBJECT

    // A private folder, 0700 as the session makes the runtime folder.
    std::unique_ptr<QTemporaryDir> dir_;

    QString path(const QString& name) const { return dir_->filePath(name); }
    // Where both sides go when XDG_RUNTIME_DIR is not private.
    QString fallbackDir() const
    {
        return path(QStringLiteral("tmp/runtime-")) +
               QString::fromStdString(runtimeDirectory()).section('-', -1);
    }

    QProcessEnvironment environment(const QString& runtimeDir) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        if (runtimeDir.isEmpty())
            env.remove(QStringLiteral("XDG_RUNTIME_DIR"));
        else
            env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir);
        env.insert(QStringLiteral("TMPDIR"), path(QStringLiteral("tmp")));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
        return env;
    }

    // The library, in a process of its own, waits up to `waitMs` for the service's hardware
    // data and reports what it got.
    QByteArray runLibrary(const QProcessEnvironment& env, int waitMs)
    {
        QProcess probe;
        probe.setProcessEnvironment(env);
        probe.start(QStringLiteral(NX_DLOPEN_PROBE),
                    {QStringLiteral(NX_LIGHTING_LIBRARY), QString::number(waitMs)});
        if (!probe.waitForFinished(waitMs + 10000))
            probe.kill();
        return probe.readAllStandardOutput();
    }

    std::unique_ptr<ServiceProcess> startService(const QString& runtimeDir,
                                                 const QString& socketDir)
    {
        auto service = std::make_unique<ServiceProcess>(runtimeDir, path(QStringLiteral("config")));
        service->setEnvironment(QStringLiteral("TMPDIR"), path(QStringLiteral("tmp")));
        service->setSocketPath(socketDir + QLatin1Char('/') + QLatin1String(kSocketFileName));
        return service;
    }

private slots:
    void init()
    {
        std::signal(SIGPIPE, SIG_IGN);
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
        QVERIFY(QDir().mkpath(path(QStringLiteral("tmp"))));
        QVERIFY(QDir().mkpath(path(QStringLiteral("config"))));
    }

    // The service and the library settle on the same private folder, whatever XDG_RUNTIME_DIR
    // is; the socket in it is the user's alone.
    void runtimeFolderIsAgreed_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("foreign");
        QTest::newRow("private") << 0700 << false;
        QTest::newRow("open to others") << 0755 << false;
        QTest::newRow("another user's") << 0700 << true;
    }
    void runtimeFolderIsAgreed()
    {
        QFETCH(int, mode);
        QFETCH(bool, foreign);
        if (foreign && ::geteuid() != 0)
            QSKIP("needs to create a folder owned by another user");
        const QString runtimeDir = path(QStringLiteral("xdg"));
        QVERIFY(QDir().mkpath(runtimeDir));
        QVERIFY(::chmod(QFile::encodeName(runtimeDir).constData(), mode_t(mode)) == 0);
        if (foreign && ::chown(QFile::encodeName(runtimeDir).constData(), 4242, 4242) != 0)
            QSKIP("this system does not let root give a folder away");
        const QString expected = mode == 0700 && !foreign ? runtimeDir : fallbackDir();
        auto service = startService(runtimeDir, expected);
        QVERIFY2(service->start(), qPrintable(expected));
        QCOMPARE(modeOf(expected), 0700);
        QCOMPARE(modeOf(service->socketPath()), 0600);
        // A plain C client: every function resolves, the hardware record arrives, and the
        // library unloads cleanly.
        const QByteArray output = runLibrary(environment(runtimeDir), 5000);
        for (const char* line :
             {"resolved=23\n", "memoryCount=4\n", "modelCode0=KX44\n", "unloaded=1\n"})
            QVERIFY2(output.contains(line), output.constData());
    }

    // A fallback folder that someone else made first is not used: the service refuses to
    // start with the reason, and the library does not connect to what is there.
    void foreignFallbackIsRefused()
    {
        if (::geteuid() != 0)
            QSKIP("needs to create a folder owned by another user");
        const QString squatted = fallbackDir();
        QVERIFY(QDir().mkpath(squatted));
        if (::chown(QFile::encodeName(squatted).constData(), 4242, 4242) != 0)
            QSKIP("this system does not let root give a folder away");
        QVERIFY(::chmod(QFile::encodeName(squatted).constData(), 0700) == 0);
        QLocalServer trap;
        QVERIFY(trap.listen(squatted + QLatin1Char('/') + QLatin1String(kSocketFileName)));

        QProcess service;
        service.setProcessEnvironment(environment(QString()));
        service.start(QStringLiteral(NX_CONTROL_EXECUTABLE), QStringList());
        QVERIFY(service.waitForFinished(10000));
        QCOMPARE(service.exitCode(), 1);
        QVERIFY(service.readAllStandardError().contains("owned by uid 4242"));
        const QByteArray output = runLibrary(environment(QString()), 1000);
        QVERIFY2(output.contains("memoryCount=-1\n"), output.constData());
        QVERIFY(!trap.hasPendingConnections());
    }

    // Clients that never read are dropped before the service grows, and it serves the next one.
    void nonReadingClientsAreDropped()
    {
        const QString runtimeDir = dir_->path();
        auto service = startService(runtimeDir, runtimeDir);
        QVERIFY(service->start());

        // Subscribed to the preview and never reading (a tiny read buffer keeps this process
        // from reading for them), while another client changes colours.
        Request hello;
        hello.type = MessageType::Hello;
        Request preview;
        preview.type = MessageType::SetPreview;
        preview.seq = 1;
        preview.preview = true;
        std::vector<std::unique_ptr<QLocalSocket>> stuck;
        for (int i = 0; i < 60; ++i) {
            stuck.push_back(std::make_unique<QLocalSocket>());
            stuck.back()->setReadBufferSize(256);
            stuck.back()->connectToServer(service->socketPath());
            QVERIFY(stuck.back()->waitForConnected(2000));
            hello.clientId = 1000 + uint64_t(i);
            stuck.back()->write(bytesOf(encodeRequest(hello)) + bytesOf(encodeRequest(preview)));
            stuck.back()->flush();
        }
        RawClient editor;
        StateMessage state;
        QVERIFY(editor.connectTo(service->socketPath()) && editor.waitForState(&state));
        long peakKb = 0;
        Request colors;
        colors.type = MessageType::SetColors;
        colors.count = kLedCount;
        for (int round = 0; round < 300; ++round) {
            colors.slot = round % kSlotCount;
            colors.rgb[0] = COLORREF(round);
            QVERIFY(editor.waitForState(&state, editor.send(colors), 5000));
            peakKb = qMax(peakKb, residentKb(service->pid()));
        }
        QVERIFY2(peakKb > 0 && peakKb < 64 * 1024, qPrintable(QString::number(peakKb)));
        stuck.clear();
        RawClient next;
        QVERIFY(next.connectTo(service->socketPath()) && next.waitForState(&state));
        QCOMPARE(state.state.module(299 % kSlotCount).rgb[0], COLORREF(299));
    }
};

QTEST_GUILESS_MAIN(TestServicePeers)
#include "tst_servicepeers.moc"
