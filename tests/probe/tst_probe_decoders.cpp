// SMBIOS, SPD and meminfo decoding against images built from the public layouts.

#include "DmiCache.h"
#include "FixtureRoot.h"
#include "MemInfo.h"
#include "SmbiosMemory.h"
#include "SpdDecoder.h"

#include <QtTest>

using fixture::Device;

class TestProbeDecoders : public QObject
{
    Q_OBJECT

private slots:
    void meminfo_data();
    void meminfo();
    void smbiosDevices();
    void smbiosDamagedTables();
    void dmiCache();
    void spdTimings_data();
    void spdTimings();
    void spdRejects();
};

void TestProbeDecoders::meminfo_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("load");
    QTest::addColumn<int>("usedMB");
    // 16 GiB with 12 GiB available: 25 %, 4096 MB used.
    QTest::newRow("typical") << QByteArray("MemTotal: 16777216 kB\nMemFree: 1 kB\n"
                                           "MemAvailable: 12582912 kB\n")
                             << 25.0 << 4096;
    // (1000 - 334) / 1000 = 66.6 % rounds to 67.
    QTest::newRow("rounded") << QByteArray("MemAvailable: 334 kB\nMemTotal: 1000 kB\n") << 67.0
                             << 0;
    QTest::newRow("no MemAvailable")
        << QByteArray("MemTotal: 1000 kB\nMemFree: 10 kB\n") << -1.0 << -1;
    QTest::newRow("available above total")
        << QByteArray("MemTotal: 1000 kB\nMemAvailable: 2000 kB\n") << -1.0 << -1;
    QTest::newRow("garbage") << QByteArray("MemTotal: lots\nMemAvailable: 1 kB\n") << -1.0 << -1;
    QTest::newRow("empty") << QByteArray() << -1.0 << -1;
}

void TestProbeDecoders::meminfo()
{
    QFETCH(QByteArray, text);
    QFETCH(double, load);
    QFETCH(int, usedMB);
    const MemInfo info = MemInfo::parse(text);
    QCOMPARE(info.load, load);
    QCOMPARE(info.usedMB, usedMB);

    fixture::Root root;
    root.write(QStringLiteral("proc/meminfo"), text);
    QCOMPARE(MemInfo::read(root.path()).load, load);
    fixture::Root missing;
    QCOMPARE(MemInfo::read(missing.path()).usedMB, -1);
}

void TestProbeDecoders::smbiosDevices()
{
    Device ddr4;
    ddr4.size = 8192;
    ddr4.type = 0x1A;
    ddr4.speed = 3200;
    ddr4.configured = 2933;
    ddr4.locator = QStringLiteral("ChannelA-DIMM0");
    ddr4.bank = QStringLiteral("BANK 0");
    ddr4.part = QStringLiteral("  F4-3200C16-8GVKB  ");
    Device empty;
    empty.size = 0;
    empty.locator = QStringLiteral("ChannelA-DIMM1");
    Device big; // 48 GiB does not fit the 16-bit field
    big.size = 0x7FFF;
    big.extendedSize = 49152;
    big.type = 0x22;
    big.speed = 0xFFFF;
    big.configured = 0xFFFF;
    big.extendedConfigured = 8000;
    big.locator = QStringLiteral("DIMM_B1");
    Device kilo; // size in kB: 0x8000 | 524288 / ... granularity
    kilo.size = 0x8000 | 0x4000;
    kilo.type = 0x23;
    kilo.speed = 6400;
    Device unknown;
    unknown.size = 0xFFFF;
    unknown.type = 0x02;

    const QByteArray table = fixture::memoryArray(4) + fixture::memoryDevice(ddr4, 0x11) +
                             fixture::memoryDevice(empty, 0x12) + fixture::memoryDevice(big, 0x13) +
                             fixture::memoryDevice(kilo, 0x14) +
                             fixture::memoryDevice(unknown, 0x15) + fixture::endOfTable() +
                             fixture::memoryDevice(ddr4, 0x16);
    const SmbiosMemory memory = SmbiosMemory::decode(table);
    QCOMPARE(memory.slotCount, 4);
    QCOMPARE(int(memory.devices.size()), 5); // nothing after the end-of-table structure

    const MemoryDevice& a = memory.devices.at(0);
    QVERIFY(a.present);
    QCOMPARE(a.sizeMB, 8192);
    QCOMPARE(a.type, QStringLiteral("DDR4"));
    QCOMPARE(a.speedMTs, 2933); // the configured speed wins over the rated one
    QCOMPARE(a.partNumber, QStringLiteral("F4-3200C16-8GVKB"));
    QCOMPARE(a.locator, QStringLiteral("ChannelA-DIMM0"));
    QCOMPARE(a.bankLocator, QStringLiteral("BANK 0"));

    const MemoryDevice& b = memory.devices.at(1);
    QVERIFY(!b.present);
    QCOMPARE(b.sizeMB, -1);
    QCOMPARE(b.locator, QStringLiteral("ChannelA-DIMM1"));

    const MemoryDevice& c = memory.devices.at(2);
    QCOMPARE(c.sizeMB, 49152);
    QCOMPARE(c.type, QStringLiteral("DDR5"));
    QCOMPARE(c.speedMTs, 8000);
    QVERIFY(c.partNumber.isEmpty());

    const MemoryDevice& d = memory.devices.at(3);
    QCOMPARE(d.sizeMB, 16); // 0x4000 kB
    QCOMPARE(d.type, QStringLiteral("LPDDR5"));
    QCOMPARE(d.speedMTs, 6400); // no configured speed: the rated one

    const MemoryDevice& e = memory.devices.at(4);
    QVERIFY(e.present);
    QCOMPARE(e.sizeMB, -1);
    QVERIFY(e.type.isEmpty());
    QCOMPARE(e.speedMTs, -1);

    QCOMPARE(SmbiosMemory::memoryTypeName(0x1E), QStringLiteral("LPDDR4"));
    QVERIFY(SmbiosMemory::memoryTypeName(0x17).isEmpty());
    QVERIFY(SmbiosMemory::memoryTypeName(200).isEmpty());
}

void TestProbeDecoders::smbiosDamagedTables()
{
    Device ddr5;
    ddr5.size = 16384;
    ddr5.type = 0x22;
    ddr5.configured = 4800;
    const QByteArray one = fixture::memoryDevice(ddr5, 0x11);

    // A truncated second structure ends the walk; the first is kept.
    SmbiosMemory memory = SmbiosMemory::decode(one + one.left(30));
    QCOMPARE(int(memory.devices.size()), 1);
    // No type 16: the slots are counted from the devices.
    QCOMPARE(memory.slotCount, 1);
    // Strings without their closing double NUL.
    memory = SmbiosMemory::decode(one + one.left(one.size() - 1));
    QCOMPARE(int(memory.devices.size()), 1);
    // A length below the header size.
    QByteArray bad = one;
    bad[1] = 2;
    QVERIFY(SmbiosMemory::decode(bad).devices.empty());
    QCOMPARE(SmbiosMemory::decode(bad).slotCount, -1);
    // A short SMBIOS 2.3 structure (0x1B bytes) has no extended size nor configured speed.
    QByteArray old = fixture::memoryDevice(ddr5, 0x11);
    old[1] = 0x1B;
    old.remove(0x1B, 0x5C - 0x1B);
    memory = SmbiosMemory::decode(old);
    QCOMPARE(memory.devices.at(0).sizeMB, 16384);
    QCOMPARE(memory.devices.at(0).speedMTs, -1);
}

void TestProbeDecoders::dmiCache()
{
    SmbiosMemory memory;
    memory.slotCount = 2;
    MemoryDevice d;
    d.present = true;
    d.sizeMB = 32768;
    d.type = QStringLiteral("DDR5");
    d.speedMTs = 6000;
    d.locator = QStringLiteral("DIMM 1");
    d.bankLocator = QStringLiteral("P0 CHANNEL A");
    d.partNumber = QStringLiteral("CMK32GX5M2B6000C36");
    memory.devices = {d, MemoryDevice()};

    fixture::Root root;
    QString error;
    QVERIFY(DmiCache::write(DmiCache::cachePath(root.path()), memory, &error));
    QVERIFY(QFileInfo(DmiCache::cachePath(root.path())).permissions() & QFileDevice::ReadOther);
    SmbiosMemory loaded;
    QString source;
    QVERIFY(DmiCache::load(root.path(), &loaded, &source));
    QVERIFY(loaded == memory);
    QCOMPARE(source, QStringLiteral("SMBIOS cache"));

    // The table, when readable, is preferred over the cache.
    Device ddr4;
    ddr4.size = 4096;
    root.dmiTable(fixture::memoryArray(1) + fixture::memoryDevice(ddr4, 0x11));
    QVERIFY(DmiCache::load(root.path(), &loaded, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS table"));
    QCOMPARE(loaded.devices.at(0).sizeMB, 4096);

    // Not ours, or nothing there at all.
    QVERIFY(!DmiCache::fromJson("{\"format\":2,\"devices\":[]}", &loaded));
    QVERIFY(!DmiCache::fromJson("[1,2]", &loaded));
    QVERIFY(!DmiCache::fromJson("{\"format\":1,\"devices\":[3]}", &loaded));
    fixture::Root empty;
    QVERIFY(!DmiCache::load(empty.path(), &loaded, &source));
    // An unreadable table (a folder in its place) falls back to the cache.
    empty.mkdir(QStringLiteral("sys/firmware/dmi/tables/DMI"));
    empty.write(QStringLiteral("run/norvalex/memory-dmi.json"), DmiCache::toJson(memory));
    QVERIFY(DmiCache::load(empty.path(), &loaded, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS cache"));
}

void TestProbeDecoders::spdTimings_data()
{
    QTest::addColumn<QByteArray>("image");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("cl");
    QTest::addColumn<int>("trcd");

    // CL 10 to 24 supported (bits 3..17 of the low range starting at CL 7).
    const uint32_t ddr4Cl10to24 = ((1u << 15) - 1) << 3;
    const QByteArray ddr4_3200 = fixture::ddr4Spd(625, 13750, 13750, ddr4Cl10to24);
    // 13.75 ns / 0.625 ns = 22 exactly.
    QTest::newRow("DDR4-3200 at 3200") << ddr4_3200 << 3200 << 22 << 22;
    // tCK = 2000000 / 2666 = 750 ps; 13750 / 750 = 18.33 -> 19.
    QTest::newRow("DDR4-3200 at 2666") << ddr4_3200 << 2666 << 19 << 19;
    // Unknown speed: the rated one (tCKmin 625 ps).
    QTest::newRow("DDR4 at rated speed") << ddr4_3200 << -1 << 22 << 22;
    // tAA 14.16 ns (114 x 125 ps - 90 ps) at 833 ps: 16.998 is within the 2.5 % guard -> 17.
    QTest::newRow("DDR4-2400 guard band")
        << fixture::ddr4Spd(833, 14160, 14160, ddr4Cl10to24) << 2400 << 17 << 17;
    // 12.5 ns / 0.833 ns = 15.006: 15, but only CL 16 and up are supported.
    QTest::newRow("DDR4 next supported CL")
        << fixture::ddr4Spd(833, 12500, 12500, 0xFFFFu << 9) << 2400 << 16 << 15;
    // High range: bit 17 stands for CL 23 + 17 = 40.
    QTest::newRow("DDR4 high CL range")
        << fixture::ddr4Spd(625, 18750, 18750, 0x80000000u | (1u << 17)) << 3200 << 40 << 30;

    QList<int> even22to50;
    for (int cl = 22; cl <= 50; cl += 2)
        even22to50 << cl;
    const QByteArray ddr5_4800 = fixture::ddr5Spd(416, 16000, 16000, even22to50);
    // 16 ns / 0.416 ns = 38.46 -> 39 cycles; CAS latencies are even -> 40.
    QTest::newRow("DDR5-4800 at 4800") << ddr5_4800 << 4800 << 40 << 39;
    // tCK = 2000000 / 5600 = 357 ps; 16000 x 0.997 / 357 = 44.68 -> 45; CL 46.
    QTest::newRow("DDR5 at 5600") << ddr5_4800 << 5600 << 46 << 45;
    // 13.6 ns at 6000 (333 ps): 40.84 x 0.997 = 40.72 -> 41 -> CL 42; tRCD 13.9 ns -> 42.
    QTest::newRow("DDR5-6000") << fixture::ddr5Spd(333, 13600, 13900, even22to50) << 6000 << 42
                               << 42;
    // 16.64 ns at 416 ps = 40.0: within the 0.3 % guard, 40.
    QTest::newRow("DDR5 guard band")
        << fixture::ddr5Spd(416, 16640, 16640, even22to50) << 4800 << 40 << 40;
}

void TestProbeDecoders::spdTimings()
{
    QFETCH(QByteArray, image);
    QFETCH(int, speed);
    QFETCH(int, cl);
    QFETCH(int, trcd);
    const SpdInfo spd = SpdInfo::decode(image);
    QVERIFY(spd.valid());
    QCOMPARE(spd.casLatency(speed), cl);
    QCOMPARE(spd.rasToCas(speed), trcd);
}

void TestProbeDecoders::spdRejects()
{
    const QByteArray ddr4 = fixture::ddr4Spd(625, 13750, 13750, 1u << 15, "  CT8G4DFRA32A  ");
    QCOMPARE(SpdInfo::decode(ddr4).partNumber, QStringLiteral("CT8G4DFRA32A"));
    QCOMPARE(SpdInfo::decode(ddr4).generation, SpdInfo::Ddr4);
    QCOMPARE(SpdInfo::decode(fixture::ddr5Spd(416, 16000, 16000, {40})).generation, SpdInfo::Ddr5);

    // Truncated images, other DRAM types, an undefined time base: nothing decoded.
    QCOMPARE(SpdInfo::decode(ddr4.left(256)).casLatency(3200), -1);
    QCOMPARE(SpdInfo::decode(fixture::ddr5Spd(416, 16000, 16000, {40}).left(512)).rasToCas(4800),
             -1);
    QByteArray ddr3 = ddr4;
    ddr3[2] = 0x0B;
    QVERIFY(!SpdInfo::decode(ddr3).valid());
    QByteArray otherBase = ddr4;
    otherBase[17] = 0x05;
    QVERIFY(!SpdInfo::decode(otherBase).valid());
    QVERIFY(!SpdInfo::decode(QByteArray()).valid());
    // A blank EEPROM decodes to a DDR5 header without times: not valid.
    QByteArray blank(1024, '\0');
    blank[2] = 0x12;
    QCOMPARE(SpdInfo::decode(blank).casLatency(4800), -1);
}

QTEST_GUILESS_MAIN(TestProbeDecoders)
#include "tst_probe_decoders.moc"
