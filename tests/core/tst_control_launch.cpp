// The control service's launch: from the given directory, in a session of its own, and reaped
// once it ends, so that a dead service never looks alive through its lock file.
#include "Platform.h"
#include "TestEnvironment.h"

#include <QtTest>

#include <csignal>

class tst_ControlLaunch : public QObject
{
    Q_OBJECT

private slots:
    void launch();
};

void tst_ControlLaunch::launch()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
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

QTEST_GUILESS_MAIN(tst_ControlLaunch)

#include "tst_control_launch.moc"
