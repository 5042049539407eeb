// Loading the lighting library at run time: none at all, one that exports only some functions,
// and a full one.
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
    void missingLibraryAnswersDefaults();
    void partialLibraryMixesRealAndDefaultAnswers();
    void fullLibraryAnswersAndTurnOffIsOneByte();
};

// Nothing crashes and every answer is the default one: the "N/A" record with unknown counts, the
// default colour cycle, full brightness of module k at entry k only.
void tst_LightingLibrary::missingLibraryAnswersDefaults()
{
    LightingLibrary library;
    QVERIFY(!library.load(QStringLiteral("no-such-directory/NORVALEX_Lighting")));
    QVERIFY(!library.isLoaded());
    QCOMPARE(library.missingFunctions().size(), NORVALEX_LIGHTING_FUNCTION_COUNT);

    library.SharedDLL_init();
    library.SetValueLighting(0, 6, 1, 2, true);
    library.SetProfile(3);
    const HWData hw = library.GetValueHWData();
    QVERIFY(hw.memoryCount == -1 && hw.slotCount == 0 && hw.channel == -1 && hw.updateTime == 0);
    QCOMPARE(hw.memoryLoad, -1.0);
    QCOMPARE(QByteArray(hw.systemText), QByteArray("N/A"));
    const COLORREF defaults[NX_LED_ARRAY] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                             0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00,
                                             0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};
    for (int k = 0; k < NX_MODULE_COUNT; ++k) {
        const MemoryModuleData& m = hw.memoryData[k];
        QVERIFY(hw.slotIndex[k] == -1 && m.temperature == -1 && m.ledNum == -1);
        QCOMPARE(QByteArray(m.modelCode), QByteArray("N/A"));
        QCOMPARE(std::memcmp(m.rgb, defaults, sizeof defaults), 0);
        QVERIFY(m.lightMode == 5 && m.colorMode == 0 && m.lightSpeed == 2 && !m.turnOff);
        for (int led = 0; led < NX_LED_ARRAY; ++led)
            QCOMPARE(m.bright[led], led == k ? 1.0f : 0.0f);
        QCOMPARE(library.GetValueRGB(k)[11], COLORREF(0x00FFD8));
        QCOMPARE(library.GetValueBright(k)[k], 1.0f);
        QVERIFY(library.GetValueSoftwareRGB(k));
    }
    QVERIFY(library.GetValueLightMode(2) == 5 && library.GetValueLightSpeed(2) == 2);
    QVERIFY(!library.GetValueTurnOff(2) && library.GetProfile() == 0);
    QCOMPARE(library.GetSettingValue().languageIndex, 0);
    // Out-of-range slots fall back to slot 0 instead of reading past the table.
    QVERIFY(library.GetValueRGB(8) && library.GetValueBright(-1));
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

// The controller suite checks the arguments passed through; here the answers, and the turn-off
// flag read as one byte whatever its value.
void tst_LightingLibrary::fullLibraryAnswersAndTurnOffIsOneByte()
{
    LightingLibrary library;
    QVERIFY(library.load(QStringLiteral(NX_DOUBLE_LIBRARY)));
    QVERIFY(library.missingFunctions().isEmpty());
    Double_setLighting(4, 17, 1, 0, 0);
    QCOMPARE(library.GetValueLightMode(4), 17);
    QCOMPARE(library.GetValueColorMode(4), 1);
    QCOMPARE(library.GetValueLightSpeed(4), 0);
    const uint8_t flags[] = {0, 1, 2, 0x80};
    for (int slot = 0; slot < 4; ++slot) {
        Double_setLighting(slot, 5, 0, 2, flags[slot]);
        QCOMPARE(library.GetValueTurnOff(slot), slot != 0);
    }
}

QTEST_GUILESS_MAIN(tst_LightingLibrary)
#include "tst_lighting_library.moc"
