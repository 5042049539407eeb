// The probe against a fake root built from the public layouts: SMBIOS and channel mode, SPD
// timings, the DMI cache, meminfo and sensors, and the whole machine.

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

namespace {

// DDR5 CAS latencies 22 to 50, the even ones.
QList<int> evenLatencies()
{
    QList<int> latencies;
    for (int cl = 22; cl <= 50; cl += 2)
        latencies << cl;
    return latencies;
}

} // namespace

class TestMemoryProbe : public QObject
{
    Q_OBJECT

private slots:
    void smbiosTables();
    void dmiCache();
    void spdTimings();
    void readings();
    void wholeMachine();
};

void TestMemoryProbe::smbiosTables()
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

    Device plain;
    plain.configured = 4800;
    // A short SMBIOS 2.3 structure (0x1B bytes) has no extended size nor configured speed.
    QByteArray old = fixture::memoryDevice(plain, 0x11);
    old[1] = 0x1B;
    old.remove(0x1B, 0x5C - 0x1B);
    QCOMPARE(SmbiosMemory::decode(old).devices.at(0).speedMTs, -1);

    // Locators as "locator|bank", empty for an empty slot; board names: wholeMachine.
    const std::pair<QStringList, int> cases[] = {
        {{"ChannelA-DIMM0|BANK 0", "", "ChannelB-DIMM0|BANK 2", ""}, 2},
        {{"ChannelA-DIMM0|BANK 0", "ChannelA-DIMM1|BANK 1"}, 1},
        {{"DIMM 1|P0 CHANNEL A", "DIMM 1|P0 CHANNEL B"}, 2},
        {{"DIMM 0|BANK 0", "DIMM 1|BANK 1"}, -1}};
    for (const auto& [locators, channels] : cases) {
        SmbiosMemory layout;
        for (const QString& entry : locators) {
            MemoryDevice device;
            device.present = !entry.isEmpty();
            device.locator = entry.section(QLatin1Char('|'), 0, 0);
            device.bankLocator = entry.section(QLatin1Char('|'), 1, 1);
            layout.devices.push_back(device);
        }
        QCOMPARE(ChannelMode::populatedChannels(layout), channels);
    }
}

void TestMemoryProbe::spdTimings()
{
    // CL 10 to 24 supported (bits 3..17 of the low range starting at CL 7).
    const uint32_t cl10to24 = ((1u << 15) - 1) << 3;
    const QByteArray ddr4 = fixture::ddr4Spd(625, 13750, 13750, cl10to24, "  CT8G4DFRA32A  ");
    QCOMPARE(SpdInfo::decode(ddr4).partNumber, QStringLiteral("CT8G4DFRA32A"));
    // {image, speed, CL, tRCD}
    const std::tuple<QByteArray, int, int, int> cases[] = {
        // tCK = 2000000 / 2666 = 750 ps; 13750 / 750 = 18.33 -> 19.
        {ddr4, 2666, 19, 19},
        // Unknown speed: the rated one (tCKmin 625 ps), 13.75 ns / 0.625 ns = 22.
        {ddr4, -1, 22, 22},
        // tAA 14.16 ns (114 x 125 ps - 90 ps) at 833 ps: 16.998 is within the 2.5 % guard.
        {fixture::ddr4Spd(833, 14160, 14160, cl10to24), 2400, 17, 17},
        // 12.5 ns / 0.833 ns = 15.006: 15, but only CL 16 and up are supported.
        {fixture::ddr4Spd(833, 12500, 12500, 0xFFFFu << 9), 2400, 16, 15},
        // High range: bit 17 stands for CL 23 + 17 = 40.
        {fixture::ddr4Spd(625, 18750, 18750, 0x80000000u | (1u << 17)), 3200, 40, 30},
        // tCK = 2000000 / 5600 = 357 ps; 16000 x 0.997 / 357 = 44.68 -> 45; even CL 46.
        {fixture::ddr5Spd(416, 16000, 16000, evenLatencies()), 5600, 46, 45}};
    for (const auto& [image, speed, cl, trcd] : cases) {
        const SpdInfo spd = SpdInfo::decode(image);
        QCOMPARE(spd.casLatency(speed), cl);
        QCOMPARE(spd.rasToCas(speed), trcd);
    }

    // Other DRAM types, an undefined time base, truncated or blank images: nothing decoded.
    QByteArray ddr3 = ddr4;
    ddr3[2] = 0x0B;
    QVERIFY(!SpdInfo::decode(ddr3).valid());
    QByteArray otherBase = ddr4;
    otherBase[17] = 0x05;
    QVERIFY(!SpdInfo::decode(otherBase).valid());
    QVERIFY(!SpdInfo::decode(ddr4.left(256)).valid());
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
    const QByteArray table = fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11) +
                             fixture::memoryDevice(Device(), 0x12) + fixture::endOfTable();
    root.dmiTable(table);
    // The one-shot tool (run as root) writes a cache every user can read.
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 0);
    const QString cache = DmiCache::cachePath(root.path());
    QVERIFY(QFileInfo(cache).permissions() & QFileDevice::ReadOther);

    // A user who cannot read the table (a folder in its place) gets the same from the cache.
    SmbiosMemory loaded;
    QString source;
    QFile::remove(DmiCache::tablePath(root.path()));
    root.mkdir(QStringLiteral("sys/firmware/dmi/tables/DMI"));
    QVERIFY(DmiCache::load(root.path(), &loaded, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS cache"));
    QVERIFY(loaded == SmbiosMemory::decode(table));

    // No table: an error, and the cache is left as it was. A cache of another format is not
    // read.
    QDir(DmiCache::tablePath(root.path())).removeRecursively();
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 1);
    QVERIFY(QFileInfo::exists(cache));
    QVERIFY(!DmiCache::fromJson("{\"format\":2,\"devices\":[]}", &loaded));
}

void TestMemoryProbe::readings()
{
    // (1000 - 334) / 1000 = 66.6 % rounds to 67; the others are not read.
    const std::tuple<const char*, double, int> meminfo[] = {
        {"MemAvailable: 334 kB\nMemTotal: 1000 kB\n", 67.0, 0},
        {"MemTotal: 1000 kB\nMemAvailable: 2000 kB\n", -1.0, -1},
        {"MemTotal: lots\nMemAvailable: 1 kB\n", -1.0, -1}};
    for (const auto& [text, load, usedMB] : meminfo) {
        QCOMPARE(MemInfo::parse(text).load, load);
        QCOMPARE(MemInfo::parse(text).usedMB, usedMB);
    }
    fixture::Root missing;
    QCOMPARE(MemInfo::read(missing.path()).usedMB, -1);

    fixture::Root root;
    root.hwmon(0, "acpitz", {}, {{"temp1", "27800"}});
    root.hwmon(1, "jc42", QStringLiteral("0-0019"), {{"temp1", "41250"}});
    root.hwmon(2, "jc42", QStringLiteral("0-0018"), {{"temp1", "39500"}});
    root.hwmon(3, "spd5118", QStringLiteral("1-0052"), {{"temp1", "-"}});    // no input file
    root.hwmon(4, "spd5118", QStringLiteral("1-0051"), {{"temp1", "hot"}});  // not a number
    root.hwmon(5, "jc42", QStringLiteral("platform"), {{"temp1", "50000"}}); // not I2C
    root.mkdir(QStringLiteral("sys/class/hwmon/hwmon6"));                    // no name

    // In bus and slot order, rounded to whole degrees.
    QStringList read;
    for (const Hwmon::ModuleSensor& s : Hwmon::moduleSensors(root.path()))
        read << QStringLiteral("%1-%2 %3").arg(s.bus).arg(s.address, 0, 16).arg(s.celsius);
    QCOMPARE(read, (QStringList{"0-18 40", "0-19 41", "1-51 -1", "1-52 -1"}));

    // The package sensor, whatever its number; the die rather than the control value; an
    // unlabelled sensor's temp1; an unreadable one gives no reading at all.
    const QList<std::pair<QList<QStringList>, double>> cases = {
        {{{"temp1", "66000", "Core 1"}, {"temp2", "61000", "Package id 0"}}, 61.0},
        {{{"temp1", "72500", "Tctl"}, {"temp2", "62500", "Tdie"}}, 62.5},
        {{{"temp1", "48312"}}, 48.312},
        {{{"temp1", "-", "Package id 0"}}, -99}};
    const QByteArray names[] = {"coretemp", "k10temp", "cpu_thermal", "coretemp"};
    for (int i = 0; i < cases.size(); ++i) {
        fixture::Root root;
        root.hwmon(0, "nvme", {}, {{"temp1", "35000", "Composite"}});
        root.hwmon(1, names[i], {}, cases[i].first);
        root.hwmon(2, "jc42", QStringLiteral("0-0018"), {{"temp1", "40000"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), cases[i].second);
    }
}

void TestMemoryProbe::wholeMachine()
{
    // Four slots, DDR5 modules in the second and fourth, the board's dual-channel layout; the
    // second module has no part number.
    fixture::Root root;
    Device module;
    module.size = 16384;
    module.type = 0x22;
    module.configured = 4800;
    QByteArray table = fixture::memoryArray(4);
    const char* const locators[] = {"DIMM_A1", "DIMM_A2", "DIMM_B1", "DIMM_B2"};
    for (int i = 0; i < 4; ++i) {
        Device d = i % 2 ? module : Device();
        d.locator = QLatin1String(locators[i]);
        d.part = i == 1 ? QStringLiteral("KF560C36-32") : QString();
        table += fixture::memoryDevice(d, uint16_t(0x11 + i));
    }
    root.dmiTable(table + fixture::endOfTable());
    // One EEPROM for two modules is matched to neither: no timings.
    root.eeprom("spd5118", 1, 0x51, fixture::ddr5Spd(333, 16000, 16000, evenLatencies()));
    MemoryProbe probe(root.path());
    nxproto::HardwareInfo info;
    QVERIFY(probe.probe());
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.channel, 2);
    QCOMPARE(info.frequency, 4800.0);
    QCOMPARE(info.casLatency, -1.0);
    QCOMPARE(info.modules[1].temperature, -1);
    QCOMPARE(info.modules[3].modelCode, std::string("N/A"));

    // Both EEPROMs: the slower module's timings set the memory's, and the module without a part
    // number takes its SPD's. At 4800 (416 ps): 16.64 ns -> 40 cycles within the guard band,
    // CL 40; 16 ns -> 39.
    root.eeprom("spd5118", 1, 0x53, fixture::ddr5Spd(333, 16640, 16000, evenLatencies(), "SPD"));
    root.hwmon(0, "spd5118", QStringLiteral("1-0053"), {{"temp1", "44750"}});
    root.hwmon(1, "spd5118", QStringLiteral("1-0051"), {{"temp1", "38000"}});
    QVERIFY(probe.probe());
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.casLatency, 40.0);
    QCOMPARE(info.tRCD, 39);
    QVERIFY(!info.modules[2].present);
    QCOMPARE(info.modules[1].modelCode, std::string("KF560C36-32"));
    QCOMPARE(info.modules[3].modelCode, std::string("SPD"));
    QCOMPARE(info.modules[3].ledNum, -1); // nothing lights it
    QCOMPARE(info.modules[1].temperature, 38);
    QCOMPARE(info.modules[3].temperature, 45);

    // A sensor that stops answering reads -1; the others stay matched to their slots.
    QFile::remove(root.path() + QStringLiteral("/sys/class/hwmon/hwmon1/temp1_input"));
    probe.readTemperatures(info);
    QCOMPARE(info.modules[1].temperature, -1);
    QCOMPARE(info.modules[3].temperature, 45);
}

QTEST_GUILESS_MAIN(TestMemoryProbe)
#include "tst_memory_probe.moc"
