// Loading the lighting library at run time: a full library, one that exports only some
// functions, and none at all.
#include "LightingDouble.h"
#include "LightingLibrary.h"
#include "TestEnvironment.h"

#include <QtTest>

#include <cstring>

class tst_LightingLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init() { Double_reset(); }
    void defaultRecord();
    void missingLibraryAnswersDefaults();
    void partialLibraryMixesRealAndDefaultAnswers();
    void fullLibraryPassesArgumentsThrough();
    void turnOffIsReadAsOneByte();
};

// What a missing library answers: the default record, field by field.
void tst_LightingLibrary::defaultRecord()
{
    LightingLibrary library;
    const HWData hw = library.GetValueHWData();
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
    for (int k = 0; k < NX_MODULE_COUNT; ++k) {
        const MemoryModuleData& m = hw.memoryData[k];
        QCOMPARE(hw.slotIndex[k], -1);
        QVERIFY(m.memorySlot == -1 && m.temperature == -1 && m.memoryModuleSize == -1 &&
                m.ledNum == -1 && m.reserved288 == -1);
        QCOMPARE(m.frequency, -1.0);
        for (const char* text : {m.modelCode, m.type, m.text12, m.text216})
            QCOMPARE(QByteArray(text), QByteArray("N/A"));
        QCOMPARE(std::memcmp(m.defaultRGB, defaults, sizeof defaults), 0);
        QCOMPARE(std::memcmp(m.rgb, defaults, sizeof defaults), 0);
        QCOMPARE(m.singleRGB, COLORREF(0x0000FF));
        QCOMPARE(m.singleBright, 1.0f);
        QVERIFY(m.lightMode == 5 && m.colorMode == 0 && m.lightSpeed == 2 && !m.turnOff);
        QCOMPARE(reinterpret_cast<const unsigned char*>(&m)[556], static_cast<unsigned char>(0));
        // Brightness is written by module index: module k has 1.0 at entry k only.
        for (int led = 0; led < NX_LED_ARRAY; ++led)
            QCOMPARE(m.bright[led], led == k ? 1.0f : 0.0f);
    }
}

void tst_LightingLibrary::missingLibraryAnswersDefaults()
{
    LightingLibrary library;
    QVERIFY(!library.load(QStringLiteral("no-such-directory/NORVALEX_Lighting")));
    QVERIFY(!library.isLoaded());
    QCOMPARE(library.missingFunctions().size(), NORVALEX_LIGHTING_FUNCTION_COUNT);

    // Nothing crashes and every answer is the default one.
    library.SharedDLL_init();
    library.SetValueLighting(0, 6, 1, 2, true);
    library.SetProfile(3);
    QCOMPARE(library.GetValueLightMode(2), 5);
    QCOMPARE(library.GetValueColorMode(2), 0);
    QCOMPARE(library.GetValueLightSpeed(2), 2);
    QCOMPARE(library.GetValueTurnOff(2), false);
    QCOMPARE(library.GetProfile(), 0);
    QCOMPARE(library.GetSettingValue().languageIndex, 0);
    // Pointer getters point at default storage that can be read in full.
    for (int slot = 0; slot < NX_MODULE_COUNT; ++slot) {
        QVERIFY(library.GetValueRGB(slot));
        QCOMPARE(library.GetValueRGB(slot)[11], COLORREF(0x00FFD8));
        QCOMPARE(library.GetValueBright(slot)[slot], 1.0f);
        QVERIFY(library.GetValueSoftwareRGB(slot));
    }
    // Out-of-range slots fall back to slot 0 instead of reading past the table.
    QVERIFY(library.GetValueRGB(8));
    QVERIFY(library.GetValueBright(-1));
}

void tst_LightingLibrary::partialLibraryMixesRealAndDefaultAnswers()
{
    LightingLibrary library;
    QVERIFY(library.load(QStringLiteral(NX_PARTIAL_LIBRARY)));
    const QStringList missing = library.missingFunctions();
    QCOMPARE(missing.size(), NORVALEX_LIGHTING_FUNCTION_COUNT - 3);
    QVERIFY(!missing.contains(QStringLiteral("GetValueHWData")));
    QVERIFY(missing.contains(QStringLiteral("SetValueRGB")));

    QCOMPARE(library.GetValueLightMode(1), 21);
    QCOMPARE(library.GetValueHWData().memoryCount, 3);
    // The functions it lacks answer with defaults.
    QCOMPARE(library.GetValueColorMode(1), 0);
    QVERIFY(library.GetValueRGB(1));
    library.SetValueRGB(1, nullptr, nullptr, 0, 1.0f, 8);
}

void tst_LightingLibrary::fullLibraryPassesArgumentsThrough()
{
    LightingLibrary library;
    QVERIFY(library.load(QStringLiteral(NX_DOUBLE_LIBRARY)));
    QVERIFY(library.missingFunctions().isEmpty());

    COLORREF rgb[8] = {0x1, 0x2, 0x3, 0x4, 0x5, 0x6, 0x7, 0x8};
    float bright[8] = {0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.25f};
    library.SetValueRGB(3, rgb, bright, 0xABCDEF, 0.75f, 8);
    QCOMPARE(
        QByteArray(Double_lastCall("SetValueRGB")),
        QByteArray("3,rgb=1:2:3:4:5:6:7:8,bright=0.5:0.5:0.5:0.5:0.5:0.5:0.5:0.25,abcdef,0.75,8"));

    library.SetValueLighting(2, 31, 2, 3, true);
    QCOMPARE(QByteArray(Double_lastCall("SetValueLighting")), QByteArray("2,31,2,3,1"));

    Double_setLighting(4, 17, 1, 0, 0);
    QCOMPARE(library.GetValueLightMode(4), 17);
    QCOMPARE(library.GetValueColorMode(4), 1);
    QCOMPARE(library.GetValueLightSpeed(4), 0);
}

void tst_LightingLibrary::turnOffIsReadAsOneByte()
{
    LightingLibrary library;
    QVERIFY(library.load(QStringLiteral(NX_DOUBLE_LIBRARY)));
    Double_setLighting(0, 5, 0, 2, 0);
    Double_setLighting(1, 5, 0, 2, 1);
    Double_setLighting(2, 5, 0, 2, 2);
    Double_setLighting(3, 5, 0, 2, 0x80);
    QCOMPARE(library.GetValueTurnOff(0), false);
    QCOMPARE(library.GetValueTurnOff(1), true);
    QCOMPARE(library.GetValueTurnOff(2), true);
    QCOMPARE(library.GetValueTurnOff(3), true);
}

QTEST_GUILESS_MAIN(tst_LightingLibrary)
#include "tst_lighting_library.moc"
