// The lighting library as the panel uses it, loaded with dlopen, against a real service
// process: no service, reconnection, persistence across restarts, profiles, a second client,
// events and preview, a plain C client, and the cost of a refresh.

#include "LightingApi.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstring>

using namespace nxproto;

namespace {

std::atomic<int> lightModeEvents{0};
std::atomic<int> lastLightModeEvent{-1};
std::atomic<int> lightModeEventBits{0};
std::atomic<int> previewEvents{0};
std::atomic<bool> callbackOnGuiThread{false};
Qt::HANDLE guiThread = nullptr;

void onLightMode(int32_t value)
{
    lastLightModeEvent = value;
    lightModeEventBits.fetch_or(value);
    ++lightModeEvents;
    if (QThread::currentThreadId() == guiThread)
        callbackOnGuiThread = true;
}

void onPreview()
{
    ++previewEvents;
    if (QThread::currentThreadId() == guiThread)
        callbackOnGuiThread = true;
}

const COLORREF kDefaultColorsOfRecord[12] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                             0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00,
                                             0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};

} // namespace

class TestLightingLibrary : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void answersAtOnceWithoutService();
    void connectsWhenTheServiceComes();
    void keepsEveryChoiceAcrossRestarts();
    void profilesAreWholeCopies();
    void secondClientSharesTheState();
    void settersStayFastWhileTheServiceHangs();
    void previewEventsFollowTheFrameRate();
    void plainCProgramReadsHardware();
    void fullRefreshTakesWellUnderAMillisecond();

private:
    // Waits for a light-mode event after `since` events.
    bool waitForEvent(int since, int timeoutMs = 3000);
    bool waitForFreshHardware(uint32_t after, int timeoutMs = 5000);

    QTemporaryDir runtime_;
    QTemporaryDir config_;
    LightingApi api_;
    std::unique_ptr<ServiceProcess> service_;
};

void TestLightingLibrary::initTestCase()
{
    QVERIFY(runtime_.isValid() && config_.isValid());
    qputenv("XDG_RUNTIME_DIR", runtime_.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config_.path().toLocal8Bit());
    guiThread = QThread::currentThreadId();
    QString error;
    QVERIFY2(api_.load(LightingApi::libraryPath(), &error), qPrintable(error));
    service_ = std::make_unique<ServiceProcess>(runtime_.path(), config_.path());
}

void TestLightingLibrary::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning().noquote() << "service log:\n" << service_->log();
}

bool TestLightingLibrary::waitForEvent(int since, int timeoutMs)
{
    return QTest::qWaitFor([&] { return lightModeEvents > since; }, timeoutMs);
}

bool TestLightingLibrary::waitForFreshHardware(uint32_t after, int timeoutMs)
{
    return QTest::qWaitFor(
        [&] {
            const HWData data = api_.GetValueHWData();
            return data.memoryCount >= 0 && data.updateTime > after;
        },
        timeoutMs);
}

void TestLightingLibrary::answersAtOnceWithoutService()
{
    // Before any data: the default records.
    HWData data = api_.GetValueHWData();
    QCOMPARE(data.memoryCount, -1);
    QCOMPARE(data.updateTime, 0u);
    QCOMPARE(data.memoryData[3].bright[3], 1.0f);
    QCOMPARE(api_.GetValueBright(3)[3], 1.0f);
    QCOMPARE(api_.GetValueBright(3)[0], 0.0f);
    QCOMPARE(std::memcmp(api_.GetValueRGB(6), kDefaultColorsOfRecord, 48), 0);
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(api_.GetValueMemorySlotNumber(i), i);
        QCOMPARE(api_.GetValueLightMode(i), 5);
        QCOMPARE(api_.GetValueColorMode(i), 0);
        QCOMPARE(api_.GetValueLightSpeed(i), 2);
        QCOMPARE(api_.GetValueTurnOff(i), uint8_t(0));
        QCOMPARE(api_.GetValueSingleRGB(i), COLORREF(0x0000FF));
        QCOMPARE(api_.GetValueSingleBright(i), 1.0f);
    }
    const SettingData setting = api_.GetSettingValue();
    QCOMPARE(setting.languageIndex, 0);
    QVERIFY(setting.autoUpdate && setting.autoRun && !setting.currentLocation);
    QCOMPARE(api_.GetProfile(), 0);

    // Out-of-range arguments are harmless.
    QCOMPARE(api_.GetValueLightMode(8), -1);
    QCOMPARE(api_.GetValueMemorySlotNumber(-1), -1);
    QVERIFY(api_.GetValueRGB(-1) != nullptr);
    QVERIFY(api_.GetValueBright(99) != nullptr);
    QVERIFY(api_.GetValueSoftwareRGB(8) != nullptr);
    api_.SetValueLighting(8, 1, 0, 0, false);
    api_.SetValueLighting(0, 38, 0, 0, false);
    api_.SetValueRGB(0, nullptr, nullptr, 0x00FF00, 0.5f, 8);
    api_.SetSlotNumber(8, nullptr);
    api_.SetProfile(5);
    QCOMPARE(api_.GetValueLightMode(0), 5);
    QCOMPARE(api_.GetProfile(), 0);
    QCOMPARE(api_.GetValueSingleRGB(0), COLORREF(0x00FF00));

    // No call waits for the missing service.
    QElapsedTimer clock;
    clock.start();
    api_.SharedDLL_init();
    api_.SharedDLL_init();
    api_.RegisterUIEventLightModeFunc(&onLightMode);
    QVERIFY(clock.elapsed() < 50);
    // Spread over the library's reconnection attempts; a busy machine may delay a single
    // call, but a call that waited for a connection would be slow every time.
    std::vector<qint64> times;
    for (int round = 0; round < 21; ++round) {
        QElapsedTimer call;
        call.start();
        api_.SetValueLighting(2, 19, 1, 3, round % 2 == 1);
        api_.GetValueHWData();
        api_.GetValueLightMode(2);
        times.push_back(call.nsecsElapsed());
        QThread::msleep(10);
    }
    std::sort(times.begin(), times.end());
    QVERIFY2(times[times.size() / 2] < 1'000'000, qPrintable(QString::number(times[10])));
    QVERIFY2(times.back() < 50'000'000, qPrintable(QString::number(times.back())));
    // Setters change the mirror at once.
    QCOMPARE(api_.GetValueLightMode(2), 19);
    QCOMPARE(api_.GetValueColorMode(2), 1);
    QCOMPARE(api_.GetValueTurnOff(2), uint8_t(0));
}

void TestLightingLibrary::connectsWhenTheServiceComes()
{
    const int events = lightModeEvents;
    lightModeEventBits = 0;
    QVERIFY(service_->start());
    QVERIFY(waitForFreshHardware(0));
    QVERIFY(waitForEvent(events));
    // The whole state arrives on connection and is announced as such.
    QCOMPARE(lightModeEventBits.load(), int(ChangeAll));
    QVERIFY(!callbackOnGuiThread);

    const HWData data = api_.GetValueHWData();
    QCOMPARE(data.memoryCount, 4);
    QCOMPARE(data.slotCount, 4);
    QCOMPARE(QByteArray(data.memoryData[0].modelCode), QByteArray("KX44"));
    QCOMPARE(data.memoryData[3].ledNum, 8);
    QCOMPARE(data.slotIndex[4], -1);
    // A fresh service lights every LED fully.
    QCOMPARE(api_.GetValueBright(1)[0], 1.0f);

    // What was set while the service was away reached it.
    RawClient raw;
    QVERIFY(raw.connectTo(service_->socketPath()));
    StateMessage state;
    QVERIFY(raw.waitForState(&state));
    QCOMPARE(state.state.module(2).lightMode, 19);
    QCOMPARE(state.state.module(0).singleRGB, COLORREF(0x00FF00));
    QCOMPARE(api_.GetValueLightMode(2), 19);
}

void TestLightingLibrary::keepsEveryChoiceAcrossRestarts()
{
    COLORREF colors[12];
    float bright[12];
    for (int i = 0; i < 12; ++i) {
        colors[i] = 0x00100000u + COLORREF(i);
        bright[i] = float(i % 11) / 10.0f;
    }
    int order[8] = {3, 2, 1, 0, 4, 5, 6, 7};
    NotiEventData noti;
    std::memset(&noti, 0, sizeof noti);
    noti.changedItem = 2;
    noti.shutdownMemorySwitch = true;
    noti.shutdownMemoryValue = 61;
    noti.reserved0 = 12345;
    const SettingData setting{4, false, true, true, 0};

    const int events = lightModeEvents;
    api_.SetValueLighting(1, 27, 3, 0, true);
    api_.SetValueRGB(3, colors, bright, 0x00ABCDEF, 0.3f, 8);
    api_.SetSlotNumber(8, order);
    api_.SetNotiEvent(noti);
    api_.SetSettingValue(setting);
    QVERIFY(waitForEvent(events));
    QTest::qWait(100);

    QVERIFY(service_->quitByMessage());
    QCOMPARE(service_->exitCode(), 0);
    // Last known state and a time stamp that no longer moves.
    const uint32_t stopped = api_.GetValueHWData().updateTime;
    QTest::qWait(1300);
    QCOMPARE(api_.GetValueHWData().updateTime, stopped);
    QCOMPARE(api_.GetValueLightMode(1), 27);

    QVERIFY(service_->start());
    QVERIFY(waitForFreshHardware(stopped));
    QTRY_COMPARE(api_.GetValueLightMode(1), 27);
    QCOMPARE(api_.GetValueColorMode(1), 3);
    QCOMPARE(api_.GetValueLightSpeed(1), 0);
    QCOMPARE(api_.GetValueTurnOff(1), uint8_t(1));
    QCOMPARE(api_.GetValueHWData().memoryData[1].turnOff, true);
    QCOMPARE(std::memcmp(api_.GetValueRGB(3), colors, 8 * sizeof(COLORREF)), 0);
    QCOMPARE(std::memcmp(api_.GetValueBright(3), bright, 8 * sizeof(float)), 0);
    QCOMPARE(api_.GetValueRGB(3)[8], kDefaultColorsOfRecord[8]); // past the count
    QCOMPARE(api_.GetValueSingleRGB(3), COLORREF(0x00ABCDEF));
    QCOMPARE(api_.GetValueSingleBright(3), 0.3f);
    for (int i = 0; i < 8; ++i)
        QCOMPARE(api_.GetValueMemorySlotNumber(i), order[i]);
    const NotiEventData notiBack = api_.GetNotiEvent();
    QCOMPARE(std::memcmp(&notiBack, &noti, sizeof noti), 0);
    const SettingData settingBack = api_.GetSettingValue();
    QCOMPARE(std::memcmp(&settingBack, &setting, sizeof setting), 0);
    // The pointers stay where they were.
    QCOMPARE(api_.GetValueRGB(3), api_.GetValueRGB(3));
}

void TestLightingLibrary::profilesAreWholeCopies()
{
    api_.SetProfile(0);
    api_.SetValueLighting(0, 3, 1, 1, false);
    api_.SetProfile(1);
    QCOMPARE(api_.GetProfile(), 1);
    QCOMPARE(api_.GetValueLightMode(0), 5); // profile 1 as it came
    api_.SetValueLighting(0, 14, 2, 3, false);
    const int events = lightModeEvents;
    api_.SetProfile(0);
    QCOMPARE(api_.GetValueLightMode(0), 3);
    QVERIFY(waitForEvent(events));
    QTRY_COMPARE(lastLightModeEvent.load() & int(ChangeProfile), int(ChangeProfile));
    api_.SetProfile(1);
    QCOMPARE(api_.GetValueLightMode(0), 14);
    QCOMPARE(api_.GetValueHWData().memoryData[0].lightMode, 14);

    // The service agrees once the pushes have settled.
    RawClient raw;
    QVERIFY(raw.connectTo(service_->socketPath()));
    StateMessage state;
    QVERIFY(QTest::qWaitFor([&] {
        RawClient probe;
        return probe.connectTo(service_->socketPath()) && probe.waitForState(&state) &&
               state.state.profile == 1;
    }));
    QCOMPARE(state.state.profiles[0][0].lightMode, 3);
    QCOMPARE(state.state.profiles[1][0].lightMode, 14);
}

void TestLightingLibrary::secondClientSharesTheState()
{
    RawClient other;
    QVERIFY(other.connectTo(service_->socketPath()));
    StateMessage state;
    QVERIFY(other.waitForState(&state));

    // The other client's change reaches this one with an event.
    int events = lightModeEvents;
    Request request;
    request.type = MessageType::SetLighting;
    request.slot = 6;
    request.lightMode = 24;
    request.lightSpeed = 1;
    other.send(request);
    QVERIFY(waitForEvent(events));
    QTRY_COMPARE(api_.GetValueLightMode(6), 24);
    QCOMPARE(lastLightModeEvent.load(), int(ChangeLighting));

    // This client's change reaches the other one, and raises the event here too.
    events = lightModeEvents;
    int order[8] = {0, 1, 2, 3, 7, 6, 5, 4};
    api_.SetSlotNumber(8, order);
    QVERIFY(waitForEvent(events));
    QVERIFY(QTest::qWaitFor(
        [&] { return other.waitForState(&state, 0, 100) && state.state.slotOrder[4] == 7; }, 3000));
    QCOMPARE(state.changes & ChangeSlotOrder, uint32_t(ChangeSlotOrder));
    QVERIFY(!callbackOnGuiThread);
}

void TestLightingLibrary::settersStayFastWhileTheServiceHangs()
{
    // A stopped service reads nothing: the socket fills, then the library gives the
    // connection up instead of queueing without bound, and catches up after reconnecting.
    QCOMPARE(::kill(pid_t(service_->pid()), SIGSTOP), 0);
    COLORREF colors[12] = {};
    float bright[12] = {};
    qint64 slowest = 0;
    for (int i = 0; i < 20000; ++i) {
        std::fill(std::begin(colors), std::end(colors), COLORREF(i));
        std::fill(std::begin(bright), std::end(bright), float(i % 100) / 100.0f);
        QElapsedTimer call;
        call.start();
        api_.SetValueRGB(4, colors, bright, COLORREF(i), 1.0f, 8);
        slowest = qMax(slowest, call.nsecsElapsed());
    }
    QCOMPARE(api_.GetValueRGB(4)[0], COLORREF(19999));
    QCOMPARE(::kill(pid_t(service_->pid()), SIGCONT), 0);
    QVERIFY2(slowest < 50'000'000, qPrintable(QString::number(slowest)));

    StateMessage state;
    QVERIFY(QTest::qWaitFor(
        [&] {
            RawClient probe;
            return probe.connectTo(service_->socketPath()) && probe.waitForState(&state) &&
                   state.state.module(4).rgb[7] == 19999;
        },
        5000));
    QCOMPARE(state.state.module(4).bright[0], 0.99f);
    QTRY_COMPARE(api_.GetValueRGB(4)[0], COLORREF(19999));
}

void TestLightingLibrary::previewEventsFollowTheFrameRate()
{
    COLORREF colors[12];
    float bright[12];
    std::fill(std::begin(colors), std::end(colors), COLORREF(0x00C86432));
    std::fill(std::begin(bright), std::end(bright), 0.5f);
    api_.SetValueLighting(0, 6, 0, 2, false);
    api_.SetValueRGB(0, colors, bright, 0, 1.0f, 8);
    api_.SetValueLighting(1, 6, 0, 2, true);

    api_.RegisterUIPreviewEventFunc(&onPreview);
    QVERIFY(QTest::qWaitFor([] { return previewEvents > 3; }, 2000));
    const int start = previewEvents;
    QTest::qWait(1000);
    const int perSecond = previewEvents - start;
    QVERIFY2(perSecond >= 20 && perSecond <= 40, qPrintable(QString::number(perSecond)));
    QCOMPARE(api_.GetValueSoftwareRGB(0)[0], COLORREF(0x00643219));
    QCOMPARE(api_.GetValueSoftwareRGB(1)[0], COLORREF(0));
    QCOMPARE(api_.GetValueSoftwareRGB(0)[8], COLORREF(0)); // an 8-LED module
    QCOMPARE(api_.GetValueSoftwareRGB(5)[0], COLORREF(0)); // no module

    api_.RegisterUIPreviewEventFunc(nullptr);
    QTest::qWait(200);
    const int stopped = previewEvents;
    QTest::qWait(300);
    QCOMPARE(previewEvents.load(), stopped);
    QVERIFY(!callbackOnGuiThread);
}

void TestLightingLibrary::plainCProgramReadsHardware()
{
    api_.SetValueLighting(0, 31, 0, 2, false);
    QTest::qWait(100);
    QProcess probe;
    probe.setProcessEnvironment(service_->environment());
    probe.start(QStringLiteral(NX_DLOPEN_PROBE),
                {LightingApi::libraryPath(), QStringLiteral("3000")});
    QVERIFY(probe.waitForFinished(10000));
    const QByteArray output = probe.readAllStandardOutput();
    QCOMPARE(probe.exitCode(), 0);
    QVERIFY2(output.contains("resolved=23\n"), output.constData());
    QVERIFY2(output.contains("memoryCount=4\n"), output.constData());
    QVERIFY2(output.contains("modelCode0=KX44\n"), output.constData());
    QVERIFY2(output.contains("lightMode0=31\n"), output.constData());
    QVERIFY2(output.contains("unloaded=1\n"), output.constData());
}

void TestLightingLibrary::fullRefreshTakesWellUnderAMillisecond()
{
    // One panel refresh: slot order, colours, lighting, profile, hardware, settings, preview.
    QElapsedTimer clock;
    clock.start();
    const int rounds = 200;
    int sink = 0;
    for (int round = 0; round < rounds; ++round) {
        for (int slot = 0; slot < 8; ++slot) {
            sink += api_.GetValueMemorySlotNumber(slot);
            sink += int(api_.GetValueSingleBright(slot));
            sink += int(api_.GetValueBright(slot)[0]);
            sink += int(api_.GetValueSingleRGB(slot));
            sink += int(api_.GetValueRGB(slot)[0]);
            sink += api_.GetValueTurnOff(slot);
            sink += api_.GetValueLightSpeed(slot);
            sink += api_.GetValueColorMode(slot);
            sink += api_.GetValueLightMode(slot);
        }
        sink += api_.GetProfile();
        sink += api_.GetValueHWData().memoryCount;
        sink += api_.GetSettingValue().languageIndex;
    }
    const double perRefreshUs = double(clock.nsecsElapsed()) / rounds / 1000.0;
    qInfo("one refresh of 75 getters: %.1f us (%d)", perRefreshUs, sink & 1);
    QVERIFY2(perRefreshUs < 1000.0, qPrintable(QString::number(perRefreshUs)));
}

QTEST_GUILESS_MAIN(TestLightingLibrary)
#include "tst_lightinglibrary.moc"
