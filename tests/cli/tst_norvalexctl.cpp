// norvalexctl as a user runs it, against the real service: every command reaches the service
// state, wrong input exits 2 and changes nothing, stop saves and ends the service.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace nxproto;

namespace {

struct Run {
    int exitCode = -1;
    QString out;
    QString err;
};

} // namespace

class TestNorvalexctl : public QObject
{
    Q_OBJECT

    // The runtime and config directory of the service and of norvalexctl (0700).
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<ServiceProcess> service_;

    bool startService(const QStringList& arguments)
    {
        service_ = std::make_unique<ServiceProcess>(dir_->path(), dir_->path());
        return service_->start(arguments);
    }

    Run ctl(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_->path());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_->path());
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(NX_CTL_EXECUTABLE), arguments);
        const bool ended =
            process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit;
        if (!ended)
            process.kill();
        return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    ControlState state() const { return RawClient().connectForState(service_->socketPath()).state; }

private slots:
    void init()
    {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
    }

    void cleanup() { service_.reset(); }

    // Every state-changing command lands in the service, on the slots and LEDs it names only,
    // counted from 1 as the panel counts them.
    void everyCommandReachesTheService()
    {
        QVERIFY(startService({QStringLiteral("--modules"), QStringLiteral("3"),
                              QStringLiteral("--model"), QStringLiteral("KX44,KX31")}));
        const ControlState before = state();

        QCOMPARE(ctl({"profile", "3"}).exitCode, 0);
        QCOMPARE(ctl({"mode", "Static", "--slot", "2"}).exitCode, 0);
        ControlState s = state();
        QCOMPARE(s.profile, 2);
        QCOMPARE(s.module(1).lightMode, 6);
        QCOMPARE(s.module(0).lightMode, before.module(0).lightMode);

        // By value, on every module; a colour mode the new mode does not offer is replaced by
        // the one it does. The newer generation's modes need a KX44 module, which slot 1 holds.
        QCOMPARE(ctl({"mode", "2"}).exitCode, 0); // Ripple: single colour only
        QCOMPARE(ctl({"mode", "aim", "--slot", "3"}).exitCode, 0);
        QCOMPARE(ctl({"color", "#00a0ff", "--slot", "1", "--led", "2"}).exitCode, 0);
        s = state();
        QCOMPARE(s.module(0).lightMode, 2);
        QCOMPARE(s.module(0).colorMode, 1);
        QCOMPARE(s.module(2).lightMode, 37);
        QCOMPARE(s.module(0).rgb[1], COLORREF(0xFFA000));
        QCOMPARE(s.module(0).rgb[0], before.module(0).rgb[0]);

        QCOMPARE(ctl({"color", "FF0010"}).exitCode, 0);
        QCOMPARE(ctl({"brightness", "40", "--slot", "3"}).exitCode, 0);
        QCOMPARE(ctl({"off"}).exitCode, 0);
        QCOMPARE(ctl({"on", "--slot", "2"}).exitCode, 0);
        s = state();
        QCOMPARE(s.module(1).rgb[7], COLORREF(0x1000FF));
        QCOMPARE(s.module(2).bright[7], 0.4f);
        QCOMPARE(s.module(1).singleBright, before.module(1).singleBright);
        QVERIFY(s.module(0).turnOff && !s.module(1).turnOff);

        // Status shows what was set.
        const Run status = ctl({"status", "--json"});
        QCOMPARE(status.exitCode, 0);
        const QJsonObject root = QJsonDocument::fromJson(status.out.toUtf8()).object();
        const QJsonObject third = root["modules"][2].toObject();
        QCOMPARE(third.value("lightModeName").toString(), QStringLiteral("Aim"));
        QCOMPARE(third.value("brightness").toInt(), 40);
        QCOMPARE(third.value("on").toBool(), false);
    }

    // Exit 2 with a message, and the service's state is as before.
    void wrongInputChangesNothing()
    {
        QVERIFY(startService({QStringLiteral("--modules"), QStringLiteral("2"),
                              QStringLiteral("--leds"), QStringLiteral("5"),
                              QStringLiteral("--model"), QStringLiteral("KX31")}));
        const ControlState before = state();
        const QStringList cases[] = {
            {},
            {"blink"},
            {"mode", "radiation"}, // a newer mode, on older modules only
            {"mode", "clock"},     // the clock without consent to read the time
            {"color", "gg0000"},
            {"color", "ff0000", "--slot", "3"}, // an empty slot
            {"color", "ff0000", "--led", "6"},  // past the module's five
        };
        for (const QStringList& arguments : cases) {
            const Run run = ctl(arguments);
            const QByteArray what = arguments.join(' ').toUtf8();
            QVERIFY2(run.exitCode == 2, what.constData());
            QVERIFY2(run.err.startsWith(QLatin1String("norvalexctl: ")) && run.out.isEmpty(),
                     what.constData());
            QVERIFY2(state() == before, what.constData());
        }
    }

    // stop ends the service cleanly after it saved the last change; without a service, stop
    // has nothing to do and the other commands exit 3.
    void stopSavesAndEndsTheService()
    {
        QVERIFY(startService({QStringLiteral("--modules"), QStringLiteral("2")}));
        QCOMPARE(ctl({"profile", "4"}).exitCode, 0);
        QCOMPARE(ctl({"stop"}).exitCode, 0);
        QTRY_VERIFY_WITH_TIMEOUT(!service_->isRunning(), 10000);
        QCOMPARE(service_->exitCode(), 0);

        QCOMPARE(ctl({"stop"}).exitCode, 0);
        QCOMPARE(ctl({"brightness", "10"}).exitCode, 3);

        QVERIFY(startService({}));
        QCOMPARE(state().profile, 3);
    }
};

QTEST_GUILESS_MAIN(TestNorvalexctl)
#include "tst_norvalexctl.moc"
