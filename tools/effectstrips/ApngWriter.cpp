#include "ApngWriter.h"

#include <QBuffer>
#include <QFile>
#include <QtEndian>

#include <array>
#include <cstdint>

namespace {

constexpr char kSignature[] = "\x89PNG\r\n\x1a\n";

const std::array<uint32_t, 256>& crcTable()
{
    static const std::array<uint32_t, 256> table = [] {
        std::array<uint32_t, 256> t{};
        for (uint32_t n = 0; n < 256; ++n) {
            uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[n] = c;
        }
        return t;
    }();
    return table;
}

uint32_t crc32(const QByteArray& bytes)
{
    uint32_t c = 0xFFFFFFFFu;
    for (char byte : bytes)
        c = crcTable()[(c ^ uint8_t(byte)) & 0xFF] ^ (c >> 8);
    return c ^ 0xFFFFFFFFu;
}

QByteArray be32(uint32_t value)
{
    QByteArray out(4, '\0');
    qToBigEndian(value, out.data());
    return out;
}

QByteArray be16(uint16_t value)
{
    QByteArray out(2, '\0');
    qToBigEndian(value, out.data());
    return out;
}

QByteArray chunk(const QByteArray& type, const QByteArray& data)
{
    const QByteArray body = type + data;
    return be32(uint32_t(data.size())) + body + be32(crc32(body));
}

struct Chunk {
    QByteArray type;
    QByteArray data;
};

// The chunks of an encoded PNG, signature checked.
bool split(const QByteArray& png, std::vector<Chunk>* chunks)
{
    if (!png.startsWith(QByteArray(kSignature, 8)))
        return false;
    int at = 8;
    while (at + 12 <= png.size()) {
        const uint32_t length = qFromBigEndian<uint32_t>(png.constData() + at);
        if (at + 12 + qint64(length) > png.size())
            return false;
        chunks->push_back({png.mid(at + 4, 4), png.mid(at + 8, int(length))});
        at += 12 + int(length);
    }
    return true;
}

} // namespace

void ApngWriter::addFrame(const QImage& frame)
{
    if (!frames_.empty() && frames_.back().image == frame)
        ++frames_.back().repeats;
    else
        frames_.push_back({frame, 1});
}

bool ApngWriter::save(const QString& path, QString* error) const
{
    if (frames_.empty()) {
        *error = QStringLiteral("no frames");
        return false;
    }
    QByteArray out(kSignature, 8);
    uint32_t sequence = 0;
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        QByteArray encoded;
        QBuffer buffer(&encoded);
        buffer.open(QIODevice::WriteOnly);
        const QImage& image = frames_[i].image;
        // Quality 0 is the strongest compression.
        if (image.size() != frames_[0].image.size() || !image.save(&buffer, "PNG", 0)) {
            *error = QStringLiteral("frame %1 cannot be encoded").arg(i);
            return false;
        }
        std::vector<Chunk> chunks;
        if (!split(encoded, &chunks)) {
            *error = QStringLiteral("frame %1 is not a PNG").arg(i);
            return false;
        }
        if (i == 0) {
            out += chunk("IHDR", chunks.front().data);
            out += chunk("acTL", be32(uint32_t(frames_.size())) + be32(0));
        }
        const QByteArray control = be32(sequence++) + be32(uint32_t(image.width())) +
                                   be32(uint32_t(image.height())) + be32(0) + be32(0) +
                                   be16(uint16_t(delayMs_ * frames_[i].repeats)) + be16(1000) +
                                   QByteArray(2, '\0');
        out += chunk("fcTL", control);
        for (const Chunk& c : chunks) {
            if (c.type != "IDAT")
                continue;
            out += i == 0 ? chunk("IDAT", c.data) : chunk("fdAT", be32(sequence++) + c.data);
        }
    }
    out += chunk("IEND", QByteArray());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(out) != out.size()) {
        *error = file.errorString();
        return false;
    }
    return true;
}
