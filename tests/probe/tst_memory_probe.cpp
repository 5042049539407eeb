// The probe against a fake root built from the public layouts: meminfo, SMBIOS, the DMI cache,
// SPD timings, sensors, channel mode and the whole machine.

#include "ChannelMode.h"
#include "DmiCache.h"
#include "FixtureRoot.h"
#include "Hwmon.h"
#include "MemInfo.h"
#include "MemoryProbe.h"
#include "SmbiosMemory.h"
#include "SpdDecoder.h"

#include <QProcess>
#include <QtTest>

using fixture::Device;

class TestMemoryProbe : public QObject
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
    void moduleSensors();
    void cpuTemperature();
    void channelMode_data();
    void channelMode();
    void wholeMachine();
    void withoutSources();
};

void TestMemoryProbe::meminfo_data()
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

void TestMemoryProbe::meminfo()
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

void TestMemoryProbe::smbiosDevices()
{
    // {size, extended size, type, rated, configured, extended configured, locator, bank, part}
    const Device devices[] = {
        {8192, 0, 0x1A, 3200, 2933, 0, "ChannelA-DIMM0", "BANK 0", "  F4-3200C16-8GVKB  "},
        {0, 0, 0x1A, 0, 0, 0, "ChannelA-DIMM1", {}, {}},                // empty
        {0x7FFF, 49152, 0x22, 0xFFFF, 0xFFFF, 8000, "DIMM_B1", {}, {}}, // 48 GiB, 8000 MT/s
        {0x8000 | 0x4000, 0, 0x23, 6400, 0, 0, {}, {}, {}},             // in kB; rated speed only
        {0xFFFF, 0, 0x02, 0, 0, 0, {}, {}, {}}};                        // all unknown
    QByteArray table = fixture::memoryArray(4);
    for (const Device& d : devices)
        table += fixture::memoryDevice(d, 0x11);
    const SmbiosMemory memory =
        SmbiosMemory::decode(table + fixture::endOfTable() + fixture::memoryDevice(devices[0], 1));
    QCOMPARE(memory.slotCount, 4);
    QStringList read; // nothing after the end-of-table structure
    for (const MemoryDevice& m : memory.devices)
        read << QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                    .arg(m.present)
                    .arg(m.sizeMB)
                    .arg(m.type, QString::number(m.speedMTs), m.partNumber, m.locator,
                         m.bankLocator);
    QCOMPARE(read, (QStringList{"1 8192 DDR4 2933 F4-3200C16-8GVKB ChannelA-DIMM0 BANK 0",
                                "0 -1  -1  ChannelA-DIMM1 ", "1 49152 DDR5 8000  DIMM_B1 ",
                                "1 16 LPDDR5 6400   ", "1 -1  -1   "}));
}

void TestMemoryProbe::smbiosDamagedTables()
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

void TestMemoryProbe::spdTimings_data()
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

void TestMemoryProbe::spdTimings()
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

void TestMemoryProbe::spdRejects()
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

void TestMemoryProbe::dmiCache()
{
    const auto run = [](const QStringList& arguments) {
        QProcess tool;
        tool.start(QStringLiteral(NX_DMI_CACHE_TOOL), arguments);
        return tool.waitForFinished(30000) ? tool.exitCode() : -1;
    };
    fixture::Root root;
    Device d;
    d.size = 16384;
    d.type = 0x22;
    d.configured = 5600;
    d.locator = QStringLiteral("DIMM_A1");
    d.bank = QStringLiteral("P0 CHANNEL A");
    d.part = QStringLiteral("PART-1");
    const QByteArray table = fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11) +
                             fixture::memoryDevice(Device(), 0x12) + fixture::endOfTable();
    root.dmiTable(table);
    // The one-shot tool (run as root) writes a cache every user can read.
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 0);
    const QString cache = DmiCache::cachePath(root.path());
    QVERIFY(QFileInfo(cache).permissions() & QFileDevice::ReadOther);

    // The table, when readable, is preferred over the cache.
    SmbiosMemory loaded;
    QString source;
    root.dmiTable(fixture::memoryArray(1) + fixture::memoryDevice(Device(), 0x11));
    QVERIFY(DmiCache::load(root.path(), &loaded, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS table"));
    QCOMPARE(int(loaded.devices.size()), 1);

    // A user who cannot read the table (a folder in its place) gets the same from the cache.
    QFile::remove(DmiCache::tablePath(root.path()));
    root.mkdir(QStringLiteral("sys/firmware/dmi/tables/DMI"));
    QVERIFY(DmiCache::load(root.path(), &loaded, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS cache"));
    QVERIFY(loaded == SmbiosMemory::decode(table));
    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());

    // No table: an error, and the cache is left as it was; wrong arguments: usage.
    QDir(DmiCache::tablePath(root.path())).removeRecursively();
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 1);
    QVERIFY(QFileInfo::exists(cache));
    QCOMPARE(run({QStringLiteral("--frobnicate")}), 2);

    // Not ours, or nothing there at all.
    QVERIFY(!DmiCache::fromJson("{\"format\":2,\"devices\":[]}", &loaded));
    QVERIFY(!DmiCache::fromJson("[1,2]", &loaded));
    QVERIFY(!DmiCache::fromJson("{\"format\":1,\"devices\":[3]}", &loaded));
    fixture::Root empty;
    QVERIFY(!DmiCache::load(empty.path(), &loaded, &source));
}

void TestMemoryProbe::moduleSensors()
{
    fixture::Root root;
    root.hwmon(0, "acpitz", {}, {{"temp1", "27800"}});
    root.hwmon(1, "jc42", QStringLiteral("0-0019"), {{"temp1", "41250"}});
    root.hwmon(2, "jc42", QStringLiteral("0-0018"), {{"temp1", "39500"}});
    root.hwmon(3, "spd5118", QStringLiteral("1-0052"), {{"temp1", "-"}});    // no input file
    root.hwmon(4, "spd5118", QStringLiteral("1-0051"), {{"temp1", "hot"}});  // not a number
    root.hwmon(5, "jc42", QStringLiteral("platform"), {{"temp1", "50000"}}); // not I2C
    root.mkdir(QStringLiteral("sys/class/hwmon/hwmon6"));                    // no name

    const std::vector<Hwmon::ModuleSensor> sensors = Hwmon::moduleSensors(root.path());
    QCOMPARE(int(sensors.size()), 4);
    // In bus and slot order, rounded to whole degrees.
    QCOMPARE(sensors.at(0).address, 0x18);
    QCOMPARE(sensors.at(0).celsius, 40);
    QCOMPARE(sensors.at(1).address, 0x19);
    QCOMPARE(sensors.at(1).celsius, 41);
    QCOMPARE(sensors.at(2).address, 0x51);
    QCOMPARE(sensors.at(2).celsius, -1);
    QCOMPARE(sensors.at(3).bus, 1);
    QCOMPARE(sensors.at(3).celsius, -1);

    int bus = 0, address = 0;
    QVERIFY(Hwmon::parseI2cName(QStringLiteral("12-001a"), &bus, &address));
    QCOMPARE(bus, 12);
    QCOMPARE(address, 0x1A);
    QVERIFY(!Hwmon::parseI2cName(QStringLiteral("i2c-12"), &bus, &address));
    QVERIFY(!Hwmon::parseI2cName(QStringLiteral("0-00zz"), &bus, &address));
    QVERIFY(Hwmon::moduleSensors(root.path() + QStringLiteral("/nowhere")).empty());
}

void TestMemoryProbe::cpuTemperature()
{
    {
        // coretemp: the package sensor, whatever its number.
        fixture::Root root;
        root.hwmon(0, "nvme", {}, {{"temp1", "35000", "Composite"}});
        root.hwmon(1, "coretemp", {},
                   {{"temp1", "61000", "Package id 0"},
                    {"temp2", "58000", "Core 0"},
                    {"temp3", "66000", "Core 1"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 61.0);
    }
    {
        // k10temp with Tctl and Tdie: the die.
        fixture::Root root;
        root.hwmon(0, "k10temp", {}, {{"temp1", "72500", "Tctl"}, {"temp2", "62500", "Tdie"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 62.5);
    }
    {
        // Only Tctl, and an unlabelled cpu_thermal: temp1.
        fixture::Root root;
        root.hwmon(0, "zenpower", {}, {{"temp1", "55125", "Tctl"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 55.125);
        fixture::Root pi;
        pi.hwmon(0, "cpu_thermal", {}, {{"temp1", "48312"}});
        QCOMPARE(Hwmon::cpuTemperature(pi.path()).value_or(-99), 48.312);
    }
    {
        // An unreadable CPU sensor, or none: no reading at all.
        fixture::Root root;
        root.hwmon(0, "coretemp", {}, {{"temp1", "-", "Package id 0"}});
        root.hwmon(1, "jc42", QStringLiteral("0-0018"), {{"temp1", "40000"}});
        QVERIFY(!Hwmon::cpuTemperature(root.path()));
    }
}

void TestMemoryProbe::channelMode_data()
{
    QTest::addColumn<QStringList>("locators"); // "locator|bank", empty for an empty slot
    QTest::addColumn<int>("channels");
    QTest::newRow("Intel dual") << QStringList{"ChannelA-DIMM0|BANK 0", "", "ChannelB-DIMM0|BANK 2",
                                               ""}
                                << 2;
    QTest::newRow("Intel single, two modules")
        << QStringList{"ChannelA-DIMM0|BANK 0", "ChannelA-DIMM1|BANK 1"} << 1;
    QTest::newRow("AMD banks") << QStringList{"DIMM 1|P0 CHANNEL A", "DIMM 1|P0 CHANNEL B"} << 2;
    QTest::newRow("board names quad")
        << QStringList{"DIMM_A1|", "DIMM_B1|", "DIMM_C1|", "DIMM_D1|"} << 4;
    QTest::newRow("short names") << QStringList{"A2|", "B2|"} << 2;
    QTest::newRow("unknown names") << QStringList{"DIMM 0|BANK 0", "DIMM 1|BANK 1"} << -1;
    QTest::newRow("nothing populated") << QStringList{"", ""} << -1;
}

void TestMemoryProbe::channelMode()
{
    QFETCH(QStringList, locators);
    QFETCH(int, channels);
    SmbiosMemory memory;
    for (const QString& entry : locators) {
        MemoryDevice device;
        device.present = !entry.isEmpty();
        device.locator = entry.section(QLatin1Char('|'), 0, 0);
        device.bankLocator = entry.section(QLatin1Char('|'), 1, 1);
        memory.devices.push_back(device);
    }
    QCOMPARE(ChannelMode::populatedChannels(memory), channels);
}

void TestMemoryProbe::wholeMachine()
{
    // Four slots, DDR5 modules in the second and fourth, the board's dual-channel layout.
    fixture::Root root;
    Device empty;
    Device module;
    module.size = 0x7FFF;
    module.extendedSize = 32768;
    module.type = 0x22;
    module.speed = 6000;
    module.configured = 4800;
    module.part = QStringLiteral("KF560C36-32");
    QByteArray table = fixture::memoryArray(4);
    const char* const locators[] = {"DIMM_A1", "DIMM_A2", "DIMM_B1", "DIMM_B2"};
    for (int i = 0; i < 4; ++i) {
        Device d = i % 2 ? module : empty;
        d.locator = QLatin1String(locators[i]);
        table += fixture::memoryDevice(d, uint16_t(0x11 + i));
    }
    root.dmiTable(table + fixture::endOfTable());
    QList<int> latencies;
    for (int cl = 22; cl <= 50; cl += 2)
        latencies << cl;
    root.eeprom("spd5118", 1, 0x51, fixture::ddr5Spd(333, 16000, 16000, latencies));
    // The second module is slower: its timings set the memory's.
    root.eeprom("spd5118", 1, 0x53, fixture::ddr5Spd(333, 16640, 16000, latencies));
    root.hwmon(0, "spd5118", QStringLiteral("1-0053"), {{"temp1", "44750"}});
    root.hwmon(1, "spd5118", QStringLiteral("1-0051"), {{"temp1", "38000"}});

    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());
    QCOMPARE(probe.source(), QStringLiteral("SMBIOS table"));
    nxproto::HardwareInfo info;
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.slotCount, 4);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(info.channel, 2);
    QCOMPARE(info.frequency, 4800.0);
    // At 4800 (416 ps): 16.64 ns -> 40 cycles, CL 40; 16 ns -> 39.
    QCOMPARE(info.casLatency, 40.0);
    QCOMPARE(info.tRCD, 39);
    QVERIFY(!info.modules[0].present);
    QVERIFY(!info.modules[2].present);
    for (int slot : {1, 3}) {
        const nxproto::ModuleInfo& m = info.modules[slot];
        QVERIFY(m.present);
        QCOMPARE(m.sizeMB, 32768);
        QCOMPARE(m.type, std::string("DDR5"));
        QCOMPARE(m.frequency, 4800.0);
        QCOMPARE(m.modelCode, std::string("KF560C36-32")); // nothing lights it
        QCOMPARE(m.ledNum, -1);
    }
    QCOMPARE(info.modules[1].temperature, 38);
    QCOMPARE(info.modules[3].temperature, 45);

    // A sensor that stops answering reads -1; the others stay matched to their slots.
    QFile::remove(root.path() + QStringLiteral("/sys/class/hwmon/hwmon1/temp1_input"));
    probe.readTemperatures(info);
    QCOMPARE(info.modules[1].temperature, -1);
    QCOMPARE(info.modules[3].temperature, 45);
}

void TestMemoryProbe::withoutSources()
{
    // No SMBIOS: nothing is probed.
    fixture::Root bare;
    bare.meminfo(1000, 500);
    MemoryProbe none(bare.path());
    QVERIFY(!none.probe());

    // SMBIOS only: sizes and speed, but no timings nor temperatures, and one EEPROM for two
    // modules is not matched to either.
    fixture::Root root;
    Device d;
    d.size = 8192;
    d.configured = 3200;
    d.locator = QStringLiteral("ChannelA-DIMM0");
    Device e = d;
    e.locator = QStringLiteral("ChannelB-DIMM0");
    e.part = QString();
    root.dmiTable(fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11) +
                  fixture::memoryDevice(e, 0x12));
    root.eeprom("ee1004", 0, 0x50, fixture::ddr4Spd(625, 13750, 13750, 1u << 15, "FROM-SPD"));
    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());
    nxproto::HardwareInfo info;
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(info.frequency, 3200.0);
    QCOMPARE(info.casLatency, -1.0);
    QCOMPARE(info.tRCD, -1);
    QCOMPARE(info.modules[0].temperature, -1);
    QCOMPARE(info.modules[1].modelCode, std::string("N/A"));
    // With the second EEPROM both match, and a module without a part number takes the SPD's.
    root.eeprom("ee1004", 0, 0x51, fixture::ddr4Spd(625, 13750, 13750, 1u << 15, "FROM-SPD"));
    QVERIFY(probe.probe());
    probe.fill(info);
    QCOMPARE(info.casLatency, 22.0);
    QCOMPARE(info.modules[1].modelCode, std::string("FROM-SPD"));
}

QTEST_GUILESS_MAIN(TestMemoryProbe)
#include "tst_memory_probe.moc"
