// The controller against the test double library: the poll with its freshness rule, the first
// delivery of counts and types, the request/answer roads and the hand-off of library callbacks;
// the loader with no library, a partial one and a full one.
#include "AppGlobals.h"
#include "LightingDouble.h"
#include "LightingLibrary.h"
#include "Main_View.h"
#include "Platform.h"
#include "QXRGBMemory.h"
#include "TestEnvironment.h"
#include "Widget_LocationPolicy.h"

#include <QtTest>

#include <cstring>
#include <memory>

namespace {

constexpr quint32 kNow = 1'800'000'000u;

// What the library answers: `memoryCount` modules of type "KX44" in `slotCount` slots.
void setHw(int memoryCount, int slotCount, quint32 updateTime)
{
    HWData& hw = *Double_hw();
    hw.memoryCount = memoryCount;
    hw.slotCount = slotCount;
    hw.updateTime = updateTime;
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        hw.slotIndex[i] = i < memoryCount ? i : -1;
        std::strcpy(hw.memoryData[i].modelCode, i < memoryCount ? "KX44" : "N/A");
    }
}

} // namespace

class tst_Controller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void freshnessAndRelaunch();
    void deliversCountsTypesAndLanguageUntilValid();
    void handsCallbacksToGuiThread();
    void dropsPreviewFramesThatNothingShows();
    void locationDialogAnswersOncePerChoice();
    void changesLanguageOnlyForKnownIndexes();
    void loader();

private:
    std::unique_ptr<QXRGBMemory> m_controller;
    int m_launches = 0;
};

void tst_Controller::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    // No message box may wait for a click.
    Platform::setMessageBoxHook(
        [](const std::wstring&, const std::wstring&, Platform::MessageIcon) {});
}

void tst_Controller::init()
{
    Double_reset();
    m_controller = std::make_unique<QXRGBMemory>(QStringLiteral(NX_DOUBLE_LIBRARY));
    m_controller->pollTimer()->stop();
    m_controller->setClock([]() { return kNow; });
    m_launches = 0;
    m_controller->setControlLauncher([this]() { ++m_launches; });
}

void tst_Controller::cleanup()
{
    m_controller.reset();
    programStarted = false;
}

// Data up to 9 s old is shown; older, from the future or without modules it is replaced by the
// default record, and the service is relaunched once until fresh data returns.
void tst_Controller::freshnessAndRelaunch()
{
    // The record is not a registered meta-type, so it is read through a direct connection.
    int shown = 0;
    connect(
        m_controller.get(), &QXRGBMemory::setHWData, this,
        [&shown](HWData d) { shown = d.memoryCount; }, Qt::DirectConnection);
    const struct {
        int count;
        quint32 time;
        int launches;
    } ticks[] = {{4, kNow - 9, 0}, {4, kNow - 10, 1}, {4, kNow - 30, 1}, {4, kNow, 1},
                 {4, kNow + 1, 2}, {4, kNow, 2},      {0, kNow, 3}};
    for (const auto& tick : ticks) {
        setHw(tick.count, 4, tick.time);
        m_controller->requestUpdateData();
        const bool fresh = tick.count > 0 && tick.time <= kNow && tick.time + 9 >= kNow;
        QCOMPARE(shown, fresh ? tick.count : -1);
        QCOMPARE(m_launches, tick.launches);
    }
}

void tst_Controller::deliversCountsTypesAndLanguageUntilValid()
{
    QSignalSpy slotNum(m_controller.get(), &QXRGBMemory::setSlotNum);
    QSignalSpy types(m_controller.get(), &QXRGBMemory::setQXModuleType);
    QSignalSpy language(m_controller.get(), &QXRGBMemory::updateLanguage);

    // Counts unknown: no slot numbers, but the language is applied on every tick.
    setHw(-1, -1, kNow);
    m_controller->requestUpdateData();
    m_controller->requestUpdateData();
    QCOMPARE(slotNum.count(), 0);
    QCOMPARE(language.count(), 2);

    setHw(2, 4, kNow);
    std::strcpy(Double_hw()->memoryData[1].modelCode, "KZ71-B");
    m_controller->requestUpdateData();
    m_controller->requestUpdateData();
    QCOMPARE(slotNum, (QList<QVariantList>{{4, 2}}));
    QCOMPARE(types.count(), 1);
    QCOMPARE(types.at(0).at(0).toStringList().mid(0, 3), (QStringList{"KX44", "KZ71-B", "N/A"}));
    QCOMPARE(language.count(), 3);

    // A count that drops to 0 makes the next tick deliver everything again.
    setHw(0, 4, kNow);
    m_controller->requestUpdateData();
    m_controller->requestUpdateData();
    QCOMPARE(slotNum.count(), 2);
    QCOMPARE(slotNum.at(1).at(1).toInt(), 0);
    QCOMPARE(language.count(), 4);
}

void tst_Controller::handsCallbacksToGuiThread()
{
    // With the Settings page visible a refresh re-reads the settings.
    m_controller->mainView()->slot_show_Setting();
    const int before = Double_callCount("GetSettingValue");

    Double_fireLightModeEvent(7, 0);
    QCOMPARE(Double_callCount("GetSettingValue"), before + 1);

    // From the library's thread: handed over, and a burst waiting in the queue refreshes once.
    for (int i = 0; i < 3; ++i)
        Double_fireLightModeEvent(7, 1);
    QCOMPARE(Double_callCount("GetSettingValue"), before + 1);
    QTRY_COMPARE(Double_callCount("GetSettingValue"), before + 2);
    QCoreApplication::processEvents();
    QCOMPARE(Double_callCount("GetSettingValue"), before + 2);
}

void tst_Controller::dropsPreviewFramesThatNothingShows()
{
    Main_View* frame = m_controller->mainView();
    QList<QList<COLORREF*>> previews;
    connect(m_controller.get(), &QXRGBMemory::updatePreviewList, this,
            [&previews](const QList<COLORREF*>& list) { previews << list; });

    // The Information page is shown: frames from either thread are dropped before any work.
    Double_firePreviewEvent(0);
    Double_firePreviewEvent(1);
    QCoreApplication::processEvents();
    QCOMPARE(previews.size(), 0);
    QCOMPARE(Double_callCount("GetValueSoftwareRGB"), 0);

    // The preview coming on screen reads the colours of now once, without waiting for a frame.
    frame->slot_show_Lighting();
    QTRY_COMPARE(previews.size(), 1);
    QCOMPARE(previews.at(0).value(3), Double_softwareRGB(3));
    // Frames from the library's thread are coalesced while one waits; each reaches the frame's
    // relay once.
    int relayed = 0;
    connect(frame, &Main_View::updatePreviewList, this, [&relayed]() { ++relayed; });
    for (int i = 0; i < 5; ++i)
        Double_firePreviewEvent(1);
    QCOMPARE(previews.size(), 1);
    QTRY_COMPARE(previews.size(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(previews.size(), 2);
    QCOMPARE(relayed, 1);
    // Another page again: dropped again.
    frame->slot_show_Noti();
    Double_firePreviewEvent(1);
    QCoreApplication::processEvents();
    QCOMPARE(previews.size(), 2);
}

void tst_Controller::locationDialogAnswersOncePerChoice()
{
    *Double_setting() = SettingData{0, true, true, false, 0x5A};
    Main_View* frame = m_controller->mainView();
    emit frame->changeLightMode(0, 31, 2, 2, false);
    emit frame->changeLightMode(1, 31, 2, 2, false);
    QVERIFY(m_controller->locationPolicy()->isVisible());
    // Light mode 31 is applied at once, whatever the answer.
    QCOMPARE(Double_callCount("SetValueLighting"), 2);

    emit m_controller->locationPolicy()->sendPushOK(true);
    QTRY_COMPARE(Double_callCount("SetSettingValue"), 2);
    const SettingData stored = *Double_setting();
    QVERIFY(stored.currentLocation && stored.autoRun && stored.reserved7 == 0x5A);

    // With consent given, mode 31 opens nothing more.
    m_controller->locationPolicy()->hide();
    emit frame->changeLightMode(2, 31, 2, 2, false);
    QVERIFY(!m_controller->locationPolicy()->isVisible());
}

void tst_Controller::changesLanguageOnlyForKnownIndexes()
{
    QSignalSpy language(m_controller.get(), &QXRGBMemory::updateLanguage);
    m_controller->changeSettingData(SettingData{3, true, false, false, 0});
    QCOMPARE(currentLanguage, 3);
    QCOMPARE(Double_setting()->languageIndex, 3);
    QCOMPARE(language.count(), 1);
    QTranslator* german = m_controller->translator();
    QVERIFY(german && !german->isEmpty());

    for (int index : {10, -1}) {
        m_controller->changeSettingData(SettingData{index, true, false, false, 0});
        QCOMPARE(currentLanguage, 3);
        QCOMPARE(m_controller->translator(), german);
    }
    // The caller still announces a language change.
    QCOMPARE(language.count(), 3);
    m_controller->changeLanguage(0);
}

// Without a library nothing crashes and every answer is the default "N/A" record with unknown
// counts; a partial library answers with what it has and defaults for the rest; a full one reads
// the turn-off flag as one byte whatever its value.
void tst_Controller::loader()
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
    QCOMPARE(partial.GetValueLightMode(1), 21);
    QCOMPARE(partial.GetValueHWData().memoryCount, 3);
    QCOMPARE(partial.GetValueColorMode(1), 0);
    partial.SetValueRGB(1, nullptr, nullptr, 0, 1.0f, 8);

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

QTEST_MAIN(tst_Controller)
#include "tst_controller.moc"
