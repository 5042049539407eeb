// The controller against the test double library: the poll with its freshness rule, the first
// delivery of counts and types, the request/answer roads and the hand-off of library callbacks.
#include "AppGlobals.h"
#include "LightingDouble.h"
#include "Main_View.h"
#include "Platform.h"
#include "QXRGBMemory.h"
#include "Setting_View.h"
#include "TestEnvironment.h"
#include "Widget_LocationPolicy.h"

#include <QtTest>

#include <cstring>
#include <memory>

namespace {

constexpr quint32 kNow = 1'800'000'000u;

HWData hwWith(int memoryCount, int slotCount, quint32 updateTime)
{
    HWData hw;
    std::memset(&hw, 0, sizeof hw);
    hw.memoryCount = memoryCount;
    hw.slotCount = slotCount;
    hw.updateTime = updateTime;
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        hw.slotIndex[i] = i < memoryCount ? i : -1;
        std::strcpy(hw.memoryData[i].modelCode, i < memoryCount ? "KX44" : "N/A");
    }
    return hw;
}

} // namespace

class tst_Controller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void freshness_data();
    void freshness();
    void relaunchesOnceUntilFreshDataReturns();
    void deliversCountsTypesAndLanguageUntilValid();
    void passesNotificationRecordBackUnchanged();
    void readsLighting();
    void handsCallbacksToGuiThread();
    void dropsPreviewFramesThatNothingShows();
    void locationDialogAnswersOncePerChoice();
    void changesLanguageOnlyForKnownIndexes();

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

void tst_Controller::freshness_data()
{
    QTest::addColumn<int>("memoryCount");
    QTest::addColumn<quint32>("updateTime");
    QTest::addColumn<bool>("fresh");
    QTest::newRow("9 s old") << 4 << kNow - 9 << true;
    QTest::newRow("10 s old") << 4 << kNow - 10 << false;
    QTest::newRow("1 s in the future") << 4 << kNow + 1 << false;
    QTest::newRow("no module counted") << 0 << kNow << false;
}

void tst_Controller::freshness()
{
    QFETCH(int, memoryCount);
    QFETCH(quint32, updateTime);
    QFETCH(bool, fresh);

    const HWData hw = hwWith(memoryCount, 4, updateTime);
    Double_setHWData(&hw);
    // The record is not a registered meta-type, so it is read through a direct connection.
    QList<HWData> shown;
    connect(
        m_controller.get(), &QXRGBMemory::setHWData, this, [&shown](HWData d) { shown << d; },
        Qt::DirectConnection);
    m_controller->requestUpdateData();
    QCOMPARE(shown.size(), 1);
    // Stale data is replaced by the default record.
    QCOMPARE(shown.at(0).memoryCount, fresh ? memoryCount : -1);
    QCOMPARE(m_controller->isRestartTried(), !fresh);
    QCOMPARE(m_launches, fresh ? 0 : 1);
}

void tst_Controller::relaunchesOnceUntilFreshDataReturns()
{
    HWData stale = hwWith(4, 4, kNow - 30);
    Double_setHWData(&stale);
    for (int tick = 0; tick < 5; ++tick)
        m_controller->requestUpdateData();
    QCOMPARE(m_launches, 1);

    const HWData fresh = hwWith(4, 4, kNow - 1);
    Double_setHWData(&fresh);
    m_controller->requestUpdateData();
    QVERIFY(!m_controller->isRestartTried());
    QCOMPARE(m_launches, 1);

    Double_setHWData(&stale);
    m_controller->requestUpdateData();
    m_controller->requestUpdateData();
    QCOMPARE(m_launches, 2);
}

void tst_Controller::deliversCountsTypesAndLanguageUntilValid()
{
    QSignalSpy slotNum(m_controller.get(), &QXRGBMemory::setSlotNum);
    QSignalSpy types(m_controller.get(), &QXRGBMemory::setQXModuleType);
    QSignalSpy language(m_controller.get(), &QXRGBMemory::updateLanguage);

    // Counts unknown: no slot numbers, but the language is applied on every tick.
    HWData unknown = hwWith(-1, -1, kNow);
    Double_setHWData(&unknown);
    for (int tick = 0; tick < 3; ++tick)
        m_controller->requestUpdateData();
    QCOMPARE(slotNum.count(), 0);
    QCOMPARE(language.count(), 3);
    QVERIFY(!m_controller->isInitDone());

    HWData valid = hwWith(2, 4, kNow);
    std::strcpy(valid.memoryData[1].modelCode, "KZ71-B");
    Double_setHWData(&valid);
    m_controller->requestUpdateData();
    m_controller->requestUpdateData();
    QCOMPARE(slotNum.count(), 1);
    QCOMPARE(slotNum.at(0).at(0).toInt(), 4);
    QCOMPARE(slotNum.at(0).at(1).toInt(), 2);
    QCOMPARE(types.count(), 1);
    QCOMPARE(types.at(0).at(0).toStringList().mid(0, 3), (QStringList{"KX44", "KZ71-B", "N/A"}));
    QCOMPARE(language.count(), 4);
    QVERIFY(m_controller->isInitDone());

    // A count that drops to 0 makes the next tick deliver everything again.
    HWData dropped = hwWith(0, 4, kNow);
    Double_setHWData(&dropped);
    m_controller->requestUpdateData();
    QVERIFY(!m_controller->isInitDone());
    m_controller->requestUpdateData();
    QCOMPARE(slotNum.count(), 2);
    QCOMPARE(slotNum.at(1).at(1).toInt(), 0);
    QCOMPARE(language.count(), 5);
}

void tst_Controller::passesNotificationRecordBackUnchanged()
{
    // Every byte set, reserved cells and the padding of the boolean cells included.
    NotiEventData given;
    std::memset(&given, 0xAB, sizeof given);
    given.reserved0 = 0x11223344;
    given.reserved20 = -77;
    given.changedItem = 2;
    given.loadingSwitch = true;
    Double_setNotiEvent(&given);

    // A page that sends back what it was given.
    Main_View* frame = m_controller->mainView();
    connect(
        frame, &Main_View::setNotiData, frame,
        [frame](NotiEventData d) { emit frame->sendNotiData(d); }, Qt::DirectConnection);
    emit frame->requestNotiData();
    const NotiEventData back = Double_lastNotiEvent();
    QCOMPARE(Double_callCount("SetNotiEvent"), 1);
    QCOMPARE(std::memcmp(&back, &given, sizeof back), 0);
}

void tst_Controller::readsLighting()
{
    Double_setLighting(3, 24, 1, 0, 1);
    QSignalSpy lighting(m_controller.get(), &QXRGBMemory::setLighting);
    m_controller->requestSetLighting();
    QCOMPARE(lighting.count(), 8);
    QCOMPARE(lighting.at(3), (QVariantList{3, 24, 1, 0, true}));
}

void tst_Controller::handsCallbacksToGuiThread()
{
    QVERIFY(Double_hasCallbacks());
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
    QCOMPARE(previews.at(0).size(), 8);
    QCOMPARE(previews.at(0).at(3), Double_softwareRGB(3));
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

    // Another page again: dropped again; back on Lighting: refreshed again.
    frame->slot_show_Noti();
    Double_firePreviewEvent(1);
    QCoreApplication::processEvents();
    QCOMPARE(previews.size(), 2);
    frame->slot_show_Lighting();
    QTRY_COMPARE(previews.size(), 3);
}

void tst_Controller::locationDialogAnswersOncePerChoice()
{
    Double_setSetting(SettingData{0, true, true, false, 0x5A});
    Main_View* frame = m_controller->mainView();
    emit frame->changeLightMode(0, 31, 2, 2, false);
    emit frame->changeLightMode(1, 31, 2, 2, false);
    QVERIFY(m_controller->locationPolicy()->isVisible());
    // Light mode 31 is applied at once, whatever the answer.
    QCOMPARE(Double_callCount("SetValueLighting"), 2);

    emit m_controller->locationPolicy()->sendPushOK(true);
    QTRY_COMPARE(Double_callCount("SetSettingValue"), 2);
    const SettingData stored = Double_lastSetting();
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
    QCOMPARE(Double_lastSetting().languageIndex, 3);
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

    // The same language again is loaded and installed afresh.
    m_controller->changeLanguage(3);
    QVERIFY(m_controller->translator() != german);
    QCOMPARE(currentLanguage, 3);
    m_controller->changeLanguage(0);
}

QTEST_MAIN(tst_Controller)
#include "tst_controller.moc"
