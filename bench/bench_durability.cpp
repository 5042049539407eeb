// What durable acknowledgements cost: the service (started in a temporary directory, so its
// file lives on the disk that holds the temporary directory) takes colour changes one at a
// time, each waited for, then a steady 1,000 a second. Prints the latency from request to
// acknowledgement, the service's CPU time per change and how many changes one save covered.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sys/stat.h>
#include <vector>

namespace {

double cpuSeconds(qint64 pid)
{
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(pid_t(pid), &clock) == 0)
        clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

nxproto::Request colourChange(uint32_t n)
{
    nxproto::Request request;
    request.type = nxproto::MessageType::SetColors;
    request.slot = int(n % nxproto::kSlotCount);
    request.count = 1;
    request.rgb[0] = n & 0xFFFFFF;
    request.bright[0] = 1.0f;
    request.singleBright = 1.0f;
    return request;
}

double percentile(std::vector<double> values, double p)
{
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * double(values.size())))];
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    ServiceProcess service(dir.path(), dir.path());
    RawClient client;
    nxproto::StateMessage state;
    if (!dir.isValid() || !service.start() || !client.connectTo(service.socketPath()) ||
        !client.waitForState(&state)) {
        std::fprintf(stderr, "cannot start the service\n");
        return 1;
    }
    const QByteArray statePath =
        QFile::encodeName(dir.filePath(QStringLiteral("norvalex/control-state.json")));
    const auto fileVersion = [&]() {
        struct stat info {
        };
        ::stat(statePath.constData(), &info);
        return info.st_ino;
    };

    // One at a time: every change pays a whole save.
    constexpr int kSingles = 300;
    std::vector<double> latencies;
    double cpuBefore = cpuSeconds(service.pid());
    QElapsedTimer clock;
    for (int i = 0; i < kSingles; ++i) {
        clock.start();
        if (!client.waitForState(&state, client.send(colourChange(uint32_t(i))), 5000))
            return 1;
        latencies.push_back(double(clock.nsecsElapsed()) / 1e6);
    }
    std::printf("one at a time: %d changes, acknowledged after %.2f ms median, %.2f ms p99; "
                "service CPU %.0f us per change\n",
                kSingles, percentile(latencies, 0.5), percentile(latencies, 0.99),
                (cpuSeconds(service.pid()) - cpuBefore) * 1e6 / kSingles);

    // A steady 1,000 changes a second for five seconds, acknowledgements read as they come.
    constexpr int kRate = 1000;
    constexpr int kSeconds = 5;
    cpuBefore = cpuSeconds(service.pid());
    std::vector<qint64> sentAt(kRate * kSeconds + 2, 0);
    latencies.clear();
    uint32_t firstSeq = 0;
    uint32_t acked = 0;
    int saves = 0;
    ino_t lastVersion = fileVersion();
    clock.start();
    for (int i = 0; i < kRate * kSeconds; ++i) {
        while (clock.nsecsElapsed() < qint64(i) * 1000000000 / kRate) {
            if (client.waitForState(&state, 0, 1) && state.ackSeq > acked) {
                for (uint32_t seq = std::max(acked + 1, firstSeq); seq <= state.ackSeq; ++seq)
                    latencies.push_back(double(clock.nsecsElapsed() - sentAt[seq - firstSeq]) /
                                        1e6);
                acked = state.ackSeq;
            }
            const ino_t version = fileVersion();
            saves += version != lastVersion;
            lastVersion = version;
        }
        const uint32_t seq = client.send(colourChange(uint32_t(i)));
        if (firstSeq == 0)
            firstSeq = seq;
        sentAt[seq - firstSeq] = clock.nsecsElapsed();
    }
    const uint32_t lastSeq = firstSeq + kRate * kSeconds - 1;
    while (acked < lastSeq && client.waitForState(&state, 0, 5000)) {
        for (uint32_t seq = std::max(acked + 1, firstSeq); seq <= state.ackSeq; ++seq)
            latencies.push_back(double(clock.nsecsElapsed() - sentAt[seq - firstSeq]) / 1e6);
        acked = std::max(acked, state.ackSeq);
    }
    const double cpu = cpuSeconds(service.pid()) - cpuBefore;
    std::printf("%d a second for %d s: %zu of %d acknowledged, after %.2f ms median, %.2f ms "
                "p99; service CPU %.0f us per change (%.0f %% of a core); at least %d saves\n",
                kRate, kSeconds, latencies.size(), kRate * kSeconds, percentile(latencies, 0.5),
                percentile(latencies, 0.99), cpu * 1e6 / (kRate * kSeconds),
                cpu * 100.0 / (double(clock.elapsed()) / 1000.0), saves);
    service.terminate();
    return acked == lastSeq ? 0 : 1;
}
