// norvalexctl as a user runs it, against the real service: every command reaches the service
// state, wrong input exits 2 and changes nothing, stop saves and ends the service.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QJsonArray>
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

    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<ServiceProcess> service_;

    QString runtimeDir() const { return dir_->path() + QStringLiteral("/runtime"); }
    QString configDir() const { return dir_->path() + QStringLiteral("/config"); }

    bool startService(const QStringList& arguments)
    {
        service_ = std::make_unique<ServiceProcess>(runtimeDir(), configDir());
        return service_->start(arguments);
    }

    Run ctl(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), configDir());
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(NX_CTL_EXECUTABLE), arguments);
        Run run;
        if (!process.waitForFinished(30000)) {
            process.kill();
            process.waitForFinished();
            return run;
        }
        run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.out = QString::fromUtf8(process.readAllStandardOutput());
        run.err = QString::fromUtf8(process.readAllStandardError());
        return run;
    }

    // The service's state as a new client sees it.
    ControlState state() const
    {
        RawClient client;
        StateMessage message;
        if (!client.connectTo(service_->socketPath()) || !client.waitForState(&message, 0, 5000))
            qWarning("no state from the service");
        return message.state;
    }

    static const ModuleLighting& module(const ControlState& s, int slot)
    {
        return s.profiles[s.profile][slot];
    }

private slots:
    void init()
    {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
        QVERIFY(QDir().mkpath(runtimeDir()));
        QVERIFY(QFile::setPermissions(runtimeDir(), QFileDevice::ReadOwner |
                                                        QFileDevice::WriteOwner |
                                                        QFileDevice::ExeOwner));
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
        ControlState s = state();
        QCOMPARE(s.profile, 2);

        QCOMPARE(ctl({"mode", "Static", "--slot", "2"}).exitCode, 0);
        s = state();
        QCOMPARE(module(s, 1).lightMode, 6);
        QCOMPARE(module(s, 0).lightMode, module(before, 0).lightMode);
        QCOMPARE(module(s, 2).lightMode, module(before, 2).lightMode);

        // By value, on every module; a mode with a fixed speed runs at Normal and a colour mode
        // the new mode does not offer is replaced by the one it does.
        QCOMPARE(ctl({"mode", "2"}).exitCode, 0); // Ripple: single colour only
        s = state();
        for (int slot = 0; slot < 3; ++slot) {
            QCOMPARE(module(s, slot).lightMode, 2);
            QCOMPARE(module(s, slot).colorMode, 1);
        }
        QCOMPARE(ctl({"mode", "rgb-spectrum", "--slot=1"}).exitCode, 0);
        QCOMPARE(module(state(), 0).lightMode, 1);
        QCOMPARE(module(state(), 0).colorMode, 2);
        // The newer generation's modes need a KX44 module, which slot 1 holds.
        QCOMPARE(ctl({"mode", "aim", "--slot", "3"}).exitCode, 0);
        QCOMPARE(module(state(), 2).lightMode, 37);

        QCOMPARE(ctl({"color", "#00a0ff", "--slot", "1", "--led", "2"}).exitCode, 0);
        s = state();
        QCOMPARE(module(s, 0).rgb[1], COLORREF(0xFFA000));
        QCOMPARE(module(s, 0).rgb[0], module(before, 0).rgb[0]);
        QCOMPARE(module(s, 1).rgb[1], module(before, 1).rgb[1]);

        QCOMPARE(ctl({"color", "FF0010"}).exitCode, 0);
        s = state();
        for (int slot = 0; slot < 3; ++slot) {
            QCOMPARE(module(s, slot).singleRGB, COLORREF(0x1000FF));
            for (int led = 0; led < 8; ++led)
                QCOMPARE(module(s, slot).rgb[led], COLORREF(0x1000FF));
        }

        QCOMPARE(ctl({"brightness", "40", "--slot", "3"}).exitCode, 0);
        s = state();
        QCOMPARE(module(s, 2).singleBright, 0.4f);
        QCOMPARE(module(s, 2).bright[7], 0.4f);
        QCOMPARE(module(s, 1).singleBright, module(before, 1).singleBright);
        QCOMPARE(module(s, 2).rgb[0], COLORREF(0x1000FF));

        QCOMPARE(ctl({"off"}).exitCode, 0);
        s = state();
        for (int slot = 0; slot < 3; ++slot)
            QVERIFY(module(s, slot).turnOff);
        QCOMPARE(module(s, 2).lightMode, 37);
        QCOMPARE(ctl({"on", "--slot", "2"}).exitCode, 0);
        s = state();
        QVERIFY(module(s, 0).turnOff);
        QVERIFY(!module(s, 1).turnOff);

        // Status, as text and as JSON, shows what was set.
        const Run text = ctl({"status"});
        QCOMPARE(text.exitCode, 0);
        QVERIFY2(text.out.startsWith(QLatin1String("Profile 3\n")), qPrintable(text.out));
        QVERIFY(text.out.contains(QRegularExpression(QStringLiteral("\n3 +KX44 .* Aim .* off"))));
        const Run json = ctl({"status", "--json"});
        QCOMPARE(json.exitCode, 0);
        const QJsonObject root = QJsonDocument::fromJson(json.out.toUtf8()).object();
        QCOMPARE(root.value("profile").toInt(), 3);
        const QJsonArray modules = root.value("modules").toArray();
        QCOMPARE(modules.size(), 3);
        const QJsonObject third = modules.at(2).toObject();
        QCOMPARE(third.value("slot").toInt(), 3);
        QCOMPARE(third.value("lightModeName").toString(), QStringLiteral("Aim"));
        QCOMPARE(third.value("brightness").toInt(), 40);
        QCOMPARE(third.value("color").toString(), QStringLiteral("FF0010"));
        QCOMPARE(third.value("on").toBool(), false);
        QVERIFY(root.value("memory").toObject().value("load").isDouble());

        // After a change, --json prints the status that includes it.
        const Run changed = ctl({"--json", "profile", "1"});
        QCOMPARE(changed.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(changed.out.toUtf8()).object().value("profile").toInt(),
                 1);
    }

    void wrongInputChangesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no command") << QStringList{};
        QTest::newRow("unknown command") << QStringList{"blink"};
        QTest::newRow("unknown option") << QStringList{"status", "--all"};
        QTest::newRow("profile 0") << QStringList{"profile", "0"};
        QTest::newRow("profile 6") << QStringList{"profile", "6"};
        QTest::newRow("profile missing") << QStringList{"profile"};
        QTest::newRow("profile twice") << QStringList{"profile", "1", "2"};
        QTest::newRow("unknown mode") << QStringList{"mode", "disco"};
        QTest::newRow("mode 38") << QStringList{"mode", "38"};
        QTest::newRow("reported-only mode") << QStringList{"mode", "mb-sync"};
        QTest::newRow("newer mode, older modules") << QStringList{"mode", "radiation"};
        QTest::newRow("clock without consent") << QStringList{"mode", "clock"};
        QTest::newRow("five digits") << QStringList{"color", "12345"};
        QTest::newRow("not hex") << QStringList{"color", "gg0000"};
        QTest::newRow("slot 0") << QStringList{"color", "ff0000", "--slot", "0"};
        QTest::newRow("slot 9") << QStringList{"color", "ff0000", "--slot", "9"};
        QTest::newRow("empty slot") << QStringList{"color", "ff0000", "--slot", "3"};
        QTest::newRow("slot without value") << QStringList{"off", "--slot"};
        QTest::newRow("led past the module") << QStringList{"color", "ff0000", "--led", "6"};
        QTest::newRow("led on brightness") << QStringList{"brightness", "50", "--led", "1"};
        QTest::newRow("brightness 101") << QStringList{"brightness", "101"};
        QTest::newRow("brightness -1") << QStringList{"brightness", "-1"};
        QTest::newRow("brightness 5O") << QStringList{"brightness", "5O"};
        QTest::newRow("slot on profile") << QStringList{"profile", "2", "--slot", "1"};
    }

    // Exit 2 with a message, and the service's state is as before.
    void wrongInputChangesNothing()
    {
        QFETCH(QStringList, arguments);
        QVERIFY(startService({QStringLiteral("--modules"), QStringLiteral("2"),
                              QStringLiteral("--leds"), QStringLiteral("5"),
                              QStringLiteral("--model"), QStringLiteral("KX31")}));
        const ControlState before = state();
        const Run run = ctl(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.startsWith(QLatin1String("norvalexctl: ")));
        QVERIFY(run.out.isEmpty());
        QVERIFY(state() == before);
    }

    // stop ends the service cleanly after it saved the last change; without a service, stop
    // has nothing to do and the other commands say it is not running.
    void stopSavesAndEndsTheService()
    {
        QVERIFY(startService({QStringLiteral("--modules"), QStringLiteral("2")}));
        QCOMPARE(ctl({"profile", "4"}).exitCode, 0);
        QCOMPARE(ctl({"stop"}).exitCode, 0);
        QTRY_VERIFY_WITH_TIMEOUT(!service_->isRunning(), 10000);
        QCOMPARE(service_->exitCode(), 0);

        QCOMPARE(ctl({"stop"}).exitCode, 0);
        const Run status = ctl({"status"});
        QCOMPARE(status.exitCode, 3);
        QVERIFY(status.err.contains(QLatin1String("not running")));
        QCOMPARE(ctl({"brightness", "10"}).exitCode, 3);

        QVERIFY(startService({}));
        QCOMPARE(state().profile, 3);
    }
};

QTEST_GUILESS_MAIN(TestNorvalexctl)
#include "tst_norvalexctl.moc"
