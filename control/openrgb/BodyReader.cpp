#include "BodyReader.h"

namespace orgb {

bool BodyReader::take(std::size_t size)
{
    if (!ok_ || size > size_ - pos_) {
        ok_ = false;
        return false;
    }
    return true;
}

uint8_t BodyReader::u8()
{
    if (!take(1))
        return 0;
    return data_[pos_++];
}

uint16_t BodyReader::u16()
{
    if (!take(2))
        return 0;
    const uint16_t value = static_cast<uint16_t>(data_[pos_] | (data_[pos_ + 1] << 8));
    pos_ += 2;
    return value;
}

uint32_t BodyReader::u32()
{
    if (!take(4))
        return 0;
    uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | data_[pos_ + static_cast<std::size_t>(i)];
    pos_ += 4;
    return value;
}

std::string BodyReader::string()
{
    const uint16_t length = u16();
    if (length == 0 || !take(length)) {
        ok_ = false;
        return {};
    }
    const char* begin = reinterpret_cast<const char*>(data_ + pos_);
    pos_ += length;
    if (begin[length - 1] != '\0') {
        ok_ = false;
        return {};
    }
    return std::string(begin);
}

void BodyReader::skip(std::size_t size)
{
    if (take(size))
        pos_ += size;
}

} // namespace orgb
