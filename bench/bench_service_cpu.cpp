// Whole-process CPU of norvalex-control rendering 8 modules at 30 fps: streaming the preview
// to one client, then with nobody asking for frames. Reads utime + stime from /proc/PID/stat.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

double cpuSeconds(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = file.readAll();
    // Fields after the command name, which may hold spaces: state is field 3, utime 14.
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    return (fields.value(11).toDouble() + fields.value(12).toDouble()) / sysconf(_SC_CLK_TCK);
}

// Percent of one core over `seconds` while the client drains what arrives; frames counted.
double measure(ServiceProcess& service, RawClient& client, int seconds, int* frames)
{
    const double before = cpuSeconds(service.pid());
    *frames = client.countFor(nxproto::MessageType::Preview, seconds * 1000);
    return (cpuSeconds(service.pid()) - before) / seconds * 100.0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::signal(SIGPIPE, SIG_IGN);
    const int seconds = argc > 1 ? std::max(1, atoi(argv[1])) : 30;
    const int mode = argc > 2 ? atoi(argv[2]) : 37;
    QTemporaryDir dir;
    ServiceProcess service(dir.path(), dir.path());
    if (!service.start({QStringLiteral("--modules"), QStringLiteral("8")})) {
        std::fprintf(stderr, "the service did not start\n");
        return 1;
    }
    RawClient client;
    nxproto::StateMessage state;
    if (!client.connectTo(service.socketPath()) || !client.waitForState(&state))
        return 1;
    uint32_t seq = 0;
    for (int slot = 0; slot < 8; ++slot)
        seq = client.send(lightingRequest(slot, mode));
    client.waitForState(&state, seq);

    nxproto::Request preview;
    preview.type = nxproto::MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    client.countFor(nxproto::MessageType::Preview, 1000);
    int frames = 0;
    const double streaming = measure(service, client, seconds, &frames);
    std::printf("mode %d, 8 modules, preview to one client: %.3f %% of one core over %d s "
                "(%d frames)\n",
                mode, streaming, seconds, frames);

    preview.preview = false;
    client.send(preview);
    client.countFor(nxproto::MessageType::Preview, 1000);
    const double idle = measure(service, client, seconds, &frames);
    std::printf("no subscriber, no output: %.3f %% of one core over %d s (%d frames)\n", idle,
                seconds, frames);
    service.terminate();
    return 0;
}
