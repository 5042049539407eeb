#pragma once

#include "DramMapping.h"
#include "FrameOutput.h"
#include "HardwareInfo.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

class QTcpSocket;
class SdkConnection;
namespace orgb {
struct Packet;
}

// Output "openrgb": drives the DRAM controllers of an OpenRGB SDK server. It negotiates the
// protocol version, lists the controllers, maps the DRAM ones to slots by location, puts each
// into its Direct mode and sends the frames that changed, at most kMaxFps a second. When the
// server goes away it reconnects with back-off and then applies everything again; it does the
// same when asked to after a resume and when the server's device list changes.
class OpenRgbOutput : public QObject, public FrameOutput
{
    Q_OBJECT

public:
    static constexpr int kMaxFps = 30;
    static constexpr int kMinFrameGapMs = 1000 / kMaxFps;
    static constexpr int kFirstRetryMs = 500;
    static constexpr int kMaxRetryMs = 30000;
    static constexpr int kVersionWaitMs = 3000;
    static constexpr int kAnswerWaitMs = 10000;
    static constexpr uint32_t kMaxControllers = 256;
    static constexpr char kClientName[] = "NORVALEX RGB";
    // Given to every module driven through OpenRGB, so that the panel offers its Lighting page.
    static constexpr char kModelCode[] = "KX44";

    OpenRgbOutput(QString host, quint16 port, QObject* parent = nullptr);
    ~OpenRgbOutput() override;

    void start();

    bool wantsFrames() const override { return stage_ == Stage::Streaming; }
    void showFrame(const Colors& frame) override;

    // Puts the controllers into Direct mode again and sends the whole frame (after a resume);
    // while the server is away, tries to reach it at once.
    void reapply();

    bool connected() const { return stage_ == Stage::Streaming; }
    // Unix seconds of the last moment the modules were known to be current, 0 before that.
    uint32_t lastContact() const;
    const std::vector<DramModule>& modules() const { return modules_; }
    // Puts the driven controllers into `info` as its modules (slot i is module i), named after
    // the controllers; while the server is away the time stamp is that of the last contact.
    void report(nxproto::HardwareInfo& info) const;
    uint32_t protocolVersion() const { return version_; }
    const QString& address() const { return address_; }
    // UPDATELEDS packets sent so far.
    quint64 updatesSent() const { return updatesSent_; }

signals:
    // The modules were listed anew, or the connection came or went.
    void modulesChanged();

private:
    enum class Stage { Idle, Connecting, Version, Count, Data, Streaming };

    void connectNow();
    void onConnected();
    void onClosed();
    void handle(const orgb::Packet& packet);
    void requestCount();
    void requestNextController();
    void applyModes();
    void flush(bool force);
    void expect(Stage stage, int waitMs);
    void fail(const QString& reason);

    QString host_;
    quint16 port_;
    QString address_;
    SdkConnection* connection_ = nullptr;
    Stage stage_ = Stage::Idle;
    uint32_t version_ = 0;
    uint32_t controllerCount_ = 0;
    uint32_t listed_ = 0; // controllers described so far in this listing
    std::vector<DramModule> found_;
    std::vector<DramModule> modules_;
    std::vector<std::vector<uint32_t>> sent_;
    bool relistPending_ = false;

    Colors frame_ = {};
    bool framePending_ = false;
    QElapsedTimer sinceSend_;
    QTimer sendTimer_;
    QTimer answerTimer_;
    QTimer retryTimer_;
    int retryMs_ = kFirstRetryMs;
    qint64 lastContactMs_ = 0;
    quint64 updatesSent_ = 0;
};
