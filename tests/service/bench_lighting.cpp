// Benchmark of the lighting library against a running service: getter latency, one panel
// refresh worth of getters, setter-to-event latency, and the service's CPU time per preview
// frame. Starts its own service in temporary runtime and config directories.

#include "LightingApi.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <ctime>
#include <mutex>

namespace {

LightingApi api;
ServiceProcess* service = nullptr;

std::mutex eventMutex;
std::condition_variable eventArrived;
long eventCount = 0;

void onLightMode(int32_t)
{
    {
        std::lock_guard<std::mutex> lock(eventMutex);
        ++eventCount;
    }
    eventArrived.notify_all();
}

double cpuSeconds(qint64 pid)
{
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(pid_t(pid), &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0;
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

void BM_GetValueLightMode(benchmark::State& state)
{
    int slot = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(api.GetValueLightMode(slot));
        slot = (slot + 1) & 7;
    }
}
BENCHMARK(BM_GetValueLightMode);

// What one refresh of the lighting page reads: 9 getters for each of 8 slots, the profile,
// the hardware record and the settings.
void BM_FullRefresh(benchmark::State& state)
{
    for (auto _ : state) {
        int sink = api.GetProfile() + api.GetSettingValue().languageIndex;
        sink += api.GetValueHWData().memoryCount;
        for (int slot = 0; slot < 8; ++slot) {
            sink += api.GetValueMemorySlotNumber(slot) + int(api.GetValueSingleBright(slot));
            sink += int(api.GetValueBright(slot)[0]) + int(api.GetValueSingleRGB(slot));
            sink += int(api.GetValueRGB(slot)[0]) + api.GetValueTurnOff(slot);
            sink += api.GetValueLightSpeed(slot) + api.GetValueColorMode(slot);
            sink += api.GetValueLightMode(slot);
        }
        benchmark::DoNotOptimize(sink);
    }
}
BENCHMARK(BM_FullRefresh);

// From SetValueLighting to the light-mode event that the service's push raises.
void BM_SetterToEvent(benchmark::State& state)
{
    int mode = 0;
    for (auto _ : state) {
        std::unique_lock<std::mutex> lock(eventMutex);
        const long before = eventCount;
        lock.unlock();
        const auto start = std::chrono::steady_clock::now();
        api.SetValueLighting(7, mode, 0, 2, false);
        lock.lock();
        if (!eventArrived.wait_for(lock, std::chrono::seconds(2),
                                   [&] { return eventCount > before; })) {
            state.SkipWithError("no event within 2 s");
            break;
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(took.count());
        mode = (mode + 1) % 38;
    }
}
BENCHMARK(BM_SetterToEvent)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(500);

// The service's CPU time per frame while it renders and streams the preview to a client.
void BM_ServiceCpuPerFrame(benchmark::State& state)
{
    RawClient client;
    if (!client.connectTo(service->socketPath())) {
        state.SkipWithError("cannot connect");
        return;
    }
    nxproto::Request preview;
    preview.type = nxproto::MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    client.countFor(nxproto::MessageType::Preview, 300);
    for (auto _ : state) {
        const double before = cpuSeconds(service->pid());
        const int frames = client.countFor(nxproto::MessageType::Preview, 2000);
        const double cpu = cpuSeconds(service->pid()) - before;
        state.SetIterationTime(frames > 0 ? cpu / frames : 0);
        state.counters["frames_per_s"] = frames / 2.0;
    }
}
BENCHMARK(BM_ServiceCpuPerFrame)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir runtime;
    QTemporaryDir config;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    ServiceProcess process(runtime.path(), config.path());
    service = &process;
    QString error;
    if (!runtime.isValid() || !config.isValid() || !api.load(LightingApi::libraryPath(), &error) ||
        !process.start()) {
        std::fprintf(stderr, "setup failed: %s\n", qPrintable(error));
        return 1;
    }
    api.SharedDLL_init();
    api.RegisterUIEventLightModeFunc(&onLightMode);
    for (int waited = 0; api.GetValueHWData().memoryCount < 0 && waited < 5000; waited += 10)
        QThread::msleep(10);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    process.terminate();
    return 0;
}
