// The service's time of day for clock effects: arithmetic at zone offsets and day edges, and
// agreement with the C library's local time.
#include "LocalClock.h"

#include <QDateTime>
#include <QTest>

class tst_LocalClock : public QObject
{
    Q_OBJECT

private slots:
    void timeOfDay_data()
    {
        QTest::addColumn<qint64>("utcMs");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("hour");
        QTest::addColumn<int>("minute");
        QTest::addColumn<double>("second");
        // 2026-11-24 18:30:15.250 UTC
        const qint64 t = 1795545015250;
        QTest::newRow("east, past midnight") << t << 9 * 3600 << 3 << 30 << 15.25;
        QTest::newRow("half-hour zone") << t << 5 * 3600 + 1800 << 0 << 0 << 15.25;
        QTest::newRow("before the epoch") << qint64(-1500) << 0 << 23 << 59 << 58.5;
    }

    void timeOfDay()
    {
        QFETCH(qint64, utcMs);
        QFETCH(int, offset);
        QFETCH(int, hour);
        QFETCH(int, minute);
        QFETCH(double, second);
        const LocalClock::TimeOfDay time = LocalClock::at(utcMs, offset);
        QCOMPARE(time.hour, hour);
        QCOMPARE(time.minute, minute);
        QCOMPARE(time.second, second);
    }

    // Read three times within a minute (the cached offset), in a zone set for the test.
    void agreesWithLocalTime()
    {
        const QByteArray saved = qgetenv("TZ");
        qputenv("TZ", "Asia/Kolkata");
        tzset();
        LocalClock clock;
        for (int repeat = 0; repeat < 3; ++repeat) {
            const QTime before = QTime::currentTime();
            const LocalClock::TimeOfDay time = clock.now();
            const QTime after = QTime::currentTime();
            // Whole milliseconds, rounded: 12.345 s times 1000 may come out as 12344.999...
            const QTime ours = QTime(time.hour, time.minute).addMSecs(qRound(time.second * 1000));
            const bool between = before.msecsTo(ours) >= 0 && ours.msecsTo(after) >= 0;
            QVERIFY2(between || before > after, // or midnight passed in between
                     qPrintable(ours.toString(Qt::ISODateWithMs)));
        }
        if (saved.isEmpty())
            qunsetenv("TZ");
        else
            qputenv("TZ", saved);
        tzset();
    }
};

QTEST_APPLESS_MAIN(tst_LocalClock)
#include "tst_localclock.moc"
