#include "ByteReader.h"

#include <cstring>

namespace nxproto {

bool ByteReader::take(std::size_t size)
{
    if (!ok_ || size > size_ - pos_) {
        ok_ = false;
        return false;
    }
    return true;
}

uint8_t ByteReader::u8()
{
    if (!take(1))
        return 0;
    return data_[pos_++];
}

uint16_t ByteReader::u16()
{
    if (!take(2))
        return 0;
    const uint16_t value = static_cast<uint16_t>(data_[pos_] | (data_[pos_ + 1] << 8));
    pos_ += 2;
    return value;
}

uint32_t ByteReader::u32()
{
    if (!take(4))
        return 0;
    uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | data_[pos_ + static_cast<std::size_t>(i)];
    pos_ += 4;
    return value;
}

float ByteReader::f32()
{
    const uint32_t bits = u32();
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double ByteReader::f64()
{
    const uint64_t low = u32();
    const uint64_t high = u32();
    const uint64_t bits = low | (high << 32);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

std::string ByteReader::text()
{
    const std::size_t size = u8();
    if (!take(size))
        return {};
    std::string value(reinterpret_cast<const char*>(data_ + pos_), size);
    pos_ += size;
    return value;
}

void ByteReader::bytes(void* out, std::size_t size)
{
    if (!take(size)) {
        std::memset(out, 0, size);
        return;
    }
    std::memcpy(out, data_ + pos_, size);
    pos_ += size;
}

void ByteReader::skip(std::size_t size)
{
    if (take(size))
        pos_ += size;
}

} // namespace nxproto
