// Parts of the service on their own: its help, the time of day for clock effects, the resume
// watch and the preview encoding.
#include "LocalClock.h"
#include "Messages.h"
#include "ResumeWatch.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestServiceParts : public QObject
{
    Q_OBJECT

private slots:
    // --help-all once started the service; neither help may.
    void helpNeverStartsTheService()
    {
        QTemporaryDir dir;
        for (const char* option : {"--help", "--help-all"}) {
            QProcess service;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir.path());
            env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.path());
            service.setProcessEnvironment(env);
            service.start(QStringLiteral(NX_CONTROL_EXECUTABLE), {QString::fromLatin1(option)});
            QVERIFY2(service.waitForFinished(10000) && service.exitCode() == 0, option);
            QVERIFY(service.readAllStandardOutput().contains("--modules"));
            QVERIFY(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).isEmpty());
        }
    }

    // Arithmetic at zone offsets and day edges, and agreement with the C library's local time.
    void localClock()
    {
        const qint64 t = 1795545015250; // 2026-11-24 18:30:15.250 UTC
        const struct {
            qint64 utcMs;
            int offset, hour, minute;
            double second;
        } cases[] = {{t, 9 * 3600, 3, 30, 15.25}, // east, past midnight
                     {t, 5 * 3600 + 1800, 0, 0, 15.25},
                     {-1500, 0, 23, 59, 58.5}}; // before the epoch
        for (const auto& c : cases) {
            const LocalClock::TimeOfDay time = LocalClock::at(c.utcMs, c.offset);
            QCOMPARE(time.hour, c.hour);
            QCOMPARE(time.minute, c.minute);
            QCOMPARE(time.second, c.second);
        }

        // In a zone of its own (no test after this one reads local time).
        qputenv("TZ", "Asia/Kolkata");
        tzset();
        const QTime before = QTime::currentTime();
        const LocalClock::TimeOfDay now = LocalClock().now();
        // Whole milliseconds, rounded: 12.345 s times 1000 may come out as 12344.999...
        const QTime ours = QTime(now.hour, now.minute).addMSecs(qRound(now.second * 1000));
        const int ahead = before.msecsTo(ours);
        QVERIFY2((ahead >= 0 && ahead < 5000) || ahead < -86000000, // or midnight passed
                 qPrintable(ours.toString(Qt::ISODateWithMs)));
    }

    // A stopped watch forgets the clocks it saw, or restarting it would report a resume.
    void resumeWatchRestartsClean()
    {
        ResumeWatch watch;
        QSignalSpy resumed(&watch, &ResumeWatch::resumed);
        watch.check(0, 0);
        watch.setActive(false);
        watch.setActive(true);
        QCOMPARE(resumed.count(), 0);
        // Running, it still notices a jump of the wall clock.
        const qint64 wall = QDateTime::currentMSecsSinceEpoch();
        QVERIFY(!watch.check(wall, 1000));
        QVERIFY(watch.check(wall + 60000, 2000));
    }

    // Encoded into the longer buffer of the frames before, a preview is byte for byte the one
    // encoded afresh.
    void previewEncodedInPlace()
    {
        nxproto::PreviewMessage message;
        for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
            for (int led = 0; led < nxproto::kLedCount; ++led)
                message.colors[slot][led] = COLORREF(0xA0B0C0u + uint32_t(slot * 256 + led));
        }
        std::vector<uint8_t> bytes(2000, 0xEE);
        for (uint32_t frame : {0x01020304u, 7u}) {
            message.frame = frame;
            nxproto::encodePreview(message, bytes);
            QCOMPARE(bytes, nxproto::encodePreview(message));
        }
    }
};

QTEST_GUILESS_MAIN(TestServiceParts)
#include "tst_serviceparts.moc"
