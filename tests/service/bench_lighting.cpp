// Benchmark of the lighting library against a running service: getter latency, one panel
// refresh worth of getters, setter-to-event latency, and the service's CPU time per rendered
// frame. Starts its own service in temporary runtime and config directories.

#include "EffectRenderer.h"
#include "HardwareMonitor.h"
#include "LightingApi.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <cstdio>
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

// CPU time of a process in nanoseconds: the scheduler's figure where the kernel offers it,
// else user plus system clock ticks.
double processCpuNs(qint64 pid)
{
    QFile schedstat(QStringLiteral("/proc/%1/schedstat").arg(pid));
    if (schedstat.open(QIODevice::ReadOnly)) {
        const double ns = schedstat.readAll().split(' ').value(0).toDouble();
        if (ns > 0)
            return ns;
    }
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = stat.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
    return ticks * 1e9 / double(sysconf(_SC_CLK_TCK));
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

void BM_GetValueRGB(benchmark::State& state)
{
    int slot = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(api.GetValueRGB(slot)[0]);
        slot = (slot + 1) & 7;
    }
}
BENCHMARK(BM_GetValueRGB);

void BM_GetValueHWData(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(api.GetValueHWData().updateTime);
}
BENCHMARK(BM_GetValueHWData);

// What one refresh of the panel's lighting page reads: 9 getters for each of 8 slots, the
// profile, the hardware record and the settings (75 calls).
void BM_FullRefresh(benchmark::State& state)
{
    for (auto _ : state) {
        int sink = 0;
        for (int slot = 0; slot < 8; ++slot) {
            sink += api.GetValueMemorySlotNumber(slot);
            sink += int(api.GetValueSingleBright(slot));
            sink += int(api.GetValueBright(slot)[0]);
            sink += int(api.GetValueSingleRGB(slot));
            sink += int(api.GetValueRGB(slot)[0]);
            sink += api.GetValueTurnOff(slot);
            sink += api.GetValueLightSpeed(slot);
            sink += api.GetValueColorMode(slot);
            sink += api.GetValueLightMode(slot);
        }
        sink += api.GetProfile();
        sink += api.GetValueHWData().memoryCount;
        sink += api.GetSettingValue().languageIndex;
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
        const auto end = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(end - start).count());
        mode = (mode + 1) % 38;
    }
}
BENCHMARK(BM_SetterToEvent)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2000);

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
        const double cpuBefore = processCpuNs(service->pid());
        const int frames = client.countFor(nxproto::MessageType::Preview, 3000);
        const double cpu = processCpuNs(service->pid()) - cpuBefore;
        state.SetIterationTime(frames > 0 ? cpu / frames / 1e9 : 0);
        state.counters["frames_per_s"] = frames / 3.0;
        state.counters["service_cpu_percent"] = cpu / 3e9 * 100.0;
    }
}
BENCHMARK(BM_ServiceCpuPerFrame)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1);

// The rendering step alone, inside one process.
void BM_RenderFrame(benchmark::State& state)
{
    SimulationConfig config;
    config.modules = 8;
    HardwareMonitor monitor(config, QStringLiteral("/nonexistent"));
    nxproto::ControlState lighting = nxproto::defaultControlState();
    EffectRenderer::Colors colors;
    double t = 0;
    for (auto _ : state) {
        EffectRenderer::render(lighting, monitor.info(), t, colors);
        benchmark::DoNotOptimize(colors[0][0]);
        t += 1.0 / 30;
    }
}
BENCHMARK(BM_RenderFrame);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir runtime;
    QTemporaryDir config;
    if (!runtime.isValid() || !config.isValid())
        return 1;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());

    ServiceProcess process(runtime.path(), config.path());
    service = &process;
    QString error;
    if (!api.load(LightingApi::libraryPath(), &error) || !process.start()) {
        std::fprintf(stderr, "setup failed: %s\n", qPrintable(error));
        return 1;
    }
    api.SharedDLL_init();
    api.RegisterUIEventLightModeFunc(&onLightMode);
    for (int waited = 0; api.GetValueHWData().memoryCount < 0 && waited < 5000; waited += 10)
        QThread::msleep(10);
    if (api.GetValueHWData().memoryCount < 0) {
        std::fprintf(stderr, "the library did not connect\n");
        return 1;
    }

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    process.terminate();
    return 0;
}
