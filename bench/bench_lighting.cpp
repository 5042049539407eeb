// Benchmark of the lighting library against a service it starts in a temporary directory:
// getter latency, one panel refresh worth of getters, setter-to-event latency, and the
// service's CPU time per preview frame.

#include "LightingApi.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

LightingApi api;
ServiceProcess* service = nullptr;
std::atomic<long> events{0};

double serviceCpuSeconds()
{
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(pid_t(service->pid()), &clock) == 0)
        clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

void BM_GetValueLightMode(benchmark::State& state)
{
    int slot = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(api.GetValueLightMode(slot++ & 7));
}
BENCHMARK(BM_GetValueLightMode);

// What one refresh of the lighting page reads: 9 getters for each of 8 slots, the profile,
// the hardware record and the settings.
void BM_FullRefresh(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(api.GetProfile() + api.GetSettingValue().languageIndex +
                                 api.GetValueHWData().memoryCount);
        for (int s = 0; s < 8; ++s) {
            benchmark::DoNotOptimize(api.GetValueMemorySlotNumber(s) + api.GetValueLightMode(s) +
                                     api.GetValueColorMode(s) + api.GetValueLightSpeed(s) +
                                     api.GetValueTurnOff(s) + api.GetValueSingleRGB(s));
            benchmark::DoNotOptimize(api.GetValueRGB(s)[0] + api.GetValueBright(s)[0] +
                                     api.GetValueSingleBright(s));
        }
    }
}
BENCHMARK(BM_FullRefresh);

// From SetValueLighting to the light-mode event that the service's push raises.
void BM_SetterToEvent(benchmark::State& state)
{
    int mode = 0;
    for (auto _ : state) {
        const long before = events;
        const auto start = Clock::now();
        api.SetValueLighting(7, ++mode % 38, 0, 2, false);
        while (events == before) {
            if (Clock::now() - start > std::chrono::seconds(2))
                return state.SkipWithError("no event within 2 s");
            std::this_thread::yield();
        }
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}
BENCHMARK(BM_SetterToEvent)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(500);

// The service's CPU time per frame while it renders and streams the preview to a client.
void BM_ServiceCpuPerFrame(benchmark::State& state)
{
    RawClient client;
    nxproto::Request preview;
    preview.type = nxproto::MessageType::SetPreview;
    preview.preview = true;
    if (!client.connectTo(service->socketPath()))
        return state.SkipWithError("cannot connect");
    client.send(preview);
    client.countFor(nxproto::MessageType::Preview, 300);
    for (auto _ : state) {
        const double before = serviceCpuSeconds();
        const int frames = client.countFor(nxproto::MessageType::Preview, 2000);
        state.SetIterationTime(frames > 0 ? (serviceCpuSeconds() - before) / frames : 0);
        state.counters["frames_per_s"] = frames / 2.0;
    }
}
BENCHMARK(BM_ServiceCpuPerFrame)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    qputenv("XDG_RUNTIME_DIR", dir.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", dir.path().toLocal8Bit());
    ServiceProcess process(dir.path(), dir.path());
    service = &process;
    QString error;
    if (!dir.isValid() || !api.load(&error) || !process.start()) {
        std::fprintf(stderr, "setup failed: %s\n", qPrintable(error));
        return 1;
    }
    api.SharedDLL_init();
    api.RegisterUIEventLightModeFunc([](int32_t) { ++events; });
    for (int waited = 0; api.GetValueHWData().memoryCount < 0 && waited < 5000; waited += 10)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    process.terminate();
}
