#include "ByteWriter.h"

#include <cstring>

namespace nxproto {

void ByteWriter::u8(uint8_t value)
{
    out_.push_back(value);
}

void ByteWriter::u16(uint16_t value)
{
    out_.push_back(static_cast<uint8_t>(value));
    out_.push_back(static_cast<uint8_t>(value >> 8));
}

void ByteWriter::u32(uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        out_.push_back(static_cast<uint8_t>(value >> shift));
}

void ByteWriter::f32(float value)
{
    uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    u32(bits);
}

void ByteWriter::f64(double value)
{
    uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    u32(static_cast<uint32_t>(bits));
    u32(static_cast<uint32_t>(bits >> 32));
}

void ByteWriter::text(const std::string& value)
{
    const std::size_t size = value.size() < 255 ? value.size() : 255;
    u8(static_cast<uint8_t>(size));
    bytes(value.data(), size);
}

void ByteWriter::bytes(const void* data, std::size_t size)
{
    const auto* begin = static_cast<const uint8_t*>(data);
    out_.insert(out_.end(), begin, begin + size);
}

} // namespace nxproto
