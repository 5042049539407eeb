// Loading the lighting library at run time: none at all, one that exports only some functions,
// and a full one.
#include "LightingDouble.h"
#include "LightingLibrary.h"
#include "TestEnvironment.h"

#include <QtTest>

class tst_LightingLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init() { Double_reset(); }
    void missingAndPartialLibraries();
    void fullLibraryAnswersAndTurnOffIsOneByte();
};

// Without a library nothing crashes and every answer is the default "N/A" record with unknown
// counts; a partial library answers with what it has and defaults for the rest.
void tst_LightingLibrary::missingAndPartialLibraries()
{
    LightingLibrary missing;
    QVERIFY(!missing.load(QStringLiteral("no-such-directory/NORVALEX_Lighting")));
    QCOMPARE(missing.missingFunctions().size(), NORVALEX_LIGHTING_FUNCTION_COUNT);
    missing.SharedDLL_init();
    missing.SetValueLighting(0, 6, 1, 2, true);
    const HWData hw = missing.GetValueHWData();
    QVERIFY(hw.memoryCount == -1 && hw.updateTime == 0 && hw.memoryData[3].ledNum == -1);
    QCOMPARE(QByteArray(hw.memoryData[3].modelCode), QByteArray("N/A"));
    // Out-of-range slots fall back to slot 0 instead of reading past the table.
    QVERIFY(missing.GetValueRGB(8) && missing.GetValueBright(-1));

    LightingLibrary partial;
    QVERIFY(partial.load(QStringLiteral(NX_PARTIAL_LIBRARY)));
    QCOMPARE(partial.missingFunctions().size(), NORVALEX_LIGHTING_FUNCTION_COUNT - 3);
    QVERIFY(partial.missingFunctions().contains(QStringLiteral("SetValueRGB")));
    QCOMPARE(partial.GetValueLightMode(1), 21);
    QCOMPARE(partial.GetValueHWData().memoryCount, 3);
    QCOMPARE(partial.GetValueColorMode(1), 0);
    partial.SetValueRGB(1, nullptr, nullptr, 0, 1.0f, 8);
}

void tst_LightingLibrary::fullLibraryAnswersAndTurnOffIsOneByte()
{
    LightingLibrary library;
    QVERIFY(library.load(QStringLiteral(NX_DOUBLE_LIBRARY)));
    QVERIFY(library.missingFunctions().isEmpty());
    const uint8_t flags[] = {0, 2, 0x80};
    for (int slot = 0; slot < 3; ++slot) {
        Double_setLighting(slot, 17, 1, 0, flags[slot]);
        QCOMPARE(library.GetValueLightMode(slot), 17);
        QCOMPARE(library.GetValueTurnOff(slot), slot != 0);
    }
}

QTEST_GUILESS_MAIN(tst_LightingLibrary)
#include "tst_lighting_library.moc"
