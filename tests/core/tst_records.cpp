// The records shared with the lighting library: layout and the default record.
#include "DefaultRecords.h"
#include "norvalex_lighting.h"

#include <QtTest>

#include <cstddef>
#include <cstring>

class tst_Records : public QObject
{
    Q_OBJECT

private slots:
    void layout_data();
    void layout();
    void defaultHWData();
    void defaultModuleBrightnessIsDiagonal();
};

void tst_Records::layout_data()
{
    QTest::addColumn<size_t>("actual");
    QTest::addColumn<size_t>("expected");
    // Sizes and offsets worked out by hand from the 64-bit layout.
    QTest::newRow("sizeof HWData") << sizeof(HWData) << size_t(5992);
    QTest::newRow("sizeof MemoryModuleData") << sizeof(MemoryModuleData) << size_t(704);
    QTest::newRow("sizeof NotiEventData") << sizeof(NotiEventData) << size_t(60);
    QTest::newRow("sizeof SettingData") << sizeof(SettingData) << size_t(8);
    QTest::newRow("HWData.frequency") << offsetof(HWData, frequency) << size_t(48);
    QTest::newRow("HWData.memoryLoad") << offsetof(HWData, memoryLoad) << size_t(152);
    QTest::newRow("HWData.memoryData") << offsetof(HWData, memoryData) << size_t(224);
    QTest::newRow("HWData.memoryData[7]")
        << offsetof(HWData, memoryData) + 7 * sizeof(MemoryModuleData) << size_t(5152);
    QTest::newRow("HWData.updateTime") << offsetof(HWData, updateTime) << size_t(5908);
    QTest::newRow("Module.frequency") << offsetof(MemoryModuleData, frequency) << size_t(144);
    QTest::newRow("Module.lightingOff") << offsetof(MemoryModuleData, lightingOff) << size_t(284);
    QTest::newRow("Module.singleBright") << offsetof(MemoryModuleData, singleBright) << size_t(440);
    QTest::newRow("Module.turnOff") << offsetof(MemoryModuleData, turnOff) << size_t(460);
    QTest::newRow("Noti.shutdownCPUUnit") << offsetof(NotiEventData, shutdownCPUUnit) << size_t(56);
    QTest::newRow("Setting.currentLocation") << offsetof(SettingData, currentLocation) << size_t(6);
}

void tst_Records::layout()
{
    QFETCH(size_t, actual);
    QFETCH(size_t, expected);
    QCOMPARE(actual, expected);
}

void tst_Records::defaultHWData()
{
    const HWData hw = DefaultRecords::hwData();
    for (int i = 0; i < NX_MODULE_COUNT; ++i)
        QCOMPARE(hw.slotIndex[i], -1);
    QCOMPARE(hw.memoryCount, -1);
    QCOMPARE(hw.slotCount, 0);
    QCOMPARE(hw.frequency, -1.0);
    QCOMPARE(hw.casLatency, -1.0);
    QCOMPARE(hw.tRCD, -1);
    QCOMPARE(hw.channel, -1);
    QCOMPARE(hw.physicalMemoryUsed, -1);
    QCOMPARE(hw.memoryLoad, -1.0);
    QCOMPARE(hw.updateTime, 0u);
    QCOMPARE(QByteArray(hw.systemText), QByteArray("N/A"));

    const COLORREF defaults[NX_LED_ARRAY] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                             0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00,
                                             0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};
    for (const MemoryModuleData& m : hw.memoryData) {
        QCOMPARE(m.memorySlot, -1);
        QCOMPARE(m.temperature, -1);
        QCOMPARE(m.memoryModuleSize, -1);
        QCOMPARE(m.ledNum, -1);
        QCOMPARE(m.reserved288, -1);
        QCOMPARE(m.frequency, -1.0);
        QCOMPARE(QByteArray(m.modelCode), QByteArray("N/A"));
        QCOMPARE(QByteArray(m.type), QByteArray("N/A"));
        QCOMPARE(std::memcmp(m.defaultRGB, defaults, sizeof defaults), 0);
        QCOMPARE(std::memcmp(m.rgb, defaults, sizeof defaults), 0);
        QCOMPARE(m.singleRGB, COLORREF(0x0000FF));
        QCOMPARE(m.singleBright, 1.0f);
        QCOMPARE(m.lightMode, 5);
        QCOMPARE(m.colorMode, 0);
        QCOMPARE(m.lightSpeed, 2);
        QCOMPARE(m.turnOff, false);
        QCOMPARE(m.lightingOff, uint8_t(0));
        // The byte at record offset 556 is written as 0.
        QCOMPARE(reinterpret_cast<const unsigned char*>(&m)[556], static_cast<unsigned char>(0));
    }
}

void tst_Records::defaultModuleBrightnessIsDiagonal()
{
    const HWData hw = DefaultRecords::hwData();
    for (int module = 0; module < NX_MODULE_COUNT; ++module) {
        for (int led = 0; led < NX_LED_ARRAY; ++led)
            QCOMPARE(hw.memoryData[module].bright[led], led == module ? 1.0f : 0.0f);
    }
}

QTEST_APPLESS_MAIN(tst_Records)
#include "tst_records.moc"
