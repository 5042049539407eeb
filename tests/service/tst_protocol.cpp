// Framing and request decoding of the control protocol.

#include "FrameDecoder.h"
#include "Messages.h"

#include <QtTest>

#include <cstring>
#include <limits>

using namespace nxproto;

namespace {

Request lighting(int slot, int mode)
{
    Request request;
    request.type = MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = mode;
    return request;
}

Request colors(int slot, float bright)
{
    Request request;
    request.type = MessageType::SetColors;
    request.slot = slot;
    request.count = kLedCount;
    for (int i = 0; i < kLedCount; ++i) {
        request.rgb[i] = 0x010203u * COLORREF(i + 1);
        request.bright[i] = bright;
    }
    request.singleRGB = 0x00AA55;
    request.singleBright = 0.5f;
    return request;
}

QByteArray bytes(const std::vector<uint8_t>& data)
{
    return QByteArray(reinterpret_cast<const char*>(data.data()), int(data.size()));
}

QByteArray header(quint32 length, quint16 version, quint16 type)
{
    QByteArray out;
    for (int shift = 0; shift < 32; shift += 8)
        out.append(char(length >> shift));
    out.append(char(version)).append(char(version >> 8));
    return out.append(char(type)).append(char(type >> 8));
}

} // namespace

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void roundTripOverAnySplit();
};

void TestProtocol::refusals_data()
{
    QTest::addColumn<QByteArray>("frame");
    const QByteArray good = bytes(encodeRequest(lighting(3, 12)));
    QTest::newRow("length below header") << header(3, kProtocolVersion, 0x10);
    QTest::newRow("payload one byte short")
        << header(quint32(good.size() - 5), kProtocolVersion, quint16(MessageType::SetLighting)) +
               good.mid(int(kHeaderSize), good.size() - int(kHeaderSize) - 1);
    QTest::newRow("oversized") << header(kMaxFrameLength + 1, kProtocolVersion, 0x10);
    QTest::newRow("bad version") << header(4, kProtocolVersion + 1, 0x10);
    QTest::newRow("unknown type") << header(8, kProtocolVersion, 0x4242) + QByteArray(4, '\1');
    QTest::newRow("slot 8") << bytes(encodeRequest(lighting(8, 0)));
    QTest::newRow("slot -1") << bytes(encodeRequest(lighting(-1, 0)));
    QTest::newRow("mode 38") << bytes(encodeRequest(lighting(0, 38)));
    QTest::newRow("mode -1") << bytes(encodeRequest(lighting(0, -1)));
    QTest::newRow("NaN brightness")
        << bytes(encodeRequest(colors(0, std::numeric_limits<float>::quiet_NaN())));
}

// Each frame is refused by the decoder or by the request check, with a reason.
void TestProtocol::refusals()
{
    QFETCH(QByteArray, frame);
    FrameDecoder decoder;
    decoder.feed(reinterpret_cast<const uint8_t*>(frame.constData()), std::size_t(frame.size()));
    Frame decoded;
    std::string error;
    const FrameDecoder::Status status = decoder.next(decoded, &error);
    Request request;
    if (status == FrameDecoder::Status::Frame)
        QVERIFY(!decodeRequest(decoded, request, &error));
    else
        QVERIFY(status == FrameDecoder::Status::Error);
    QVERIFY(!error.empty());
}

void TestProtocol::roundTripOverAnySplit()
{
    Request first = lighting(7, 37);
    first.seq = 9;
    first.colorMode = 3;
    first.lightSpeed = 1;
    first.turnOff = true;
    const Request second = colors(5, 0.75f);
    std::vector<uint8_t> stream = encodeRequest(first);
    const std::vector<uint8_t> more = encodeRequest(second);
    stream.insert(stream.end(), more.begin(), more.end());

    for (std::size_t chunk : {std::size_t(1), std::size_t(7), stream.size()}) {
        FrameDecoder decoder;
        std::vector<Request> requests;
        for (std::size_t at = 0; at < stream.size(); at += chunk) {
            decoder.feed(stream.data() + at, std::min(chunk, stream.size() - at));
            Frame frame;
            while (decoder.next(frame) == FrameDecoder::Status::Frame) {
                requests.emplace_back();
                QVERIFY(decodeRequest(frame, requests.back(), nullptr));
            }
        }
        QCOMPARE(requests.size(), std::size_t(2));
        const Request& a = requests[0];
        QVERIFY(a.type == MessageType::SetLighting);
        QCOMPARE(a.seq, 9u);
        QCOMPARE(a.slot, 7);
        QCOMPARE(a.lightMode, 37);
        QCOMPARE(a.colorMode, 3);
        QCOMPARE(a.lightSpeed, 1);
        QVERIFY(a.turnOff);
        const Request& b = requests[1];
        QCOMPARE(b.slot, 5);
        QCOMPARE(b.count, kLedCount);
        QCOMPARE(std::memcmp(b.rgb, second.rgb, sizeof b.rgb), 0);
        QCOMPARE(std::memcmp(b.bright, second.bright, sizeof b.bright), 0);
        QCOMPARE(b.singleRGB, second.singleRGB);
        QCOMPARE(b.singleBright, 0.5f);
    }
}

QTEST_APPLESS_MAIN(TestProtocol)
#include "tst_protocol.moc"
