#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orgb {

// Reads little-endian values and length-prefixed strings from a packet body. Any read past the
// end, or a string without its NUL, clears ok() for good and yields zeros, so that a decoder
// reads a whole block and checks once.
class BodyReader
{
public:
    BodyReader(const uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    uint8_t u8();
    uint16_t u16();
    uint32_t u32();
    int32_t i32() { return static_cast<int32_t>(u32()); }
    // u16 length with the NUL, then the bytes; the text ends at the first NUL.
    std::string string();
    void skip(std::size_t size);

    void fail() { ok_ = false; }
    bool ok() const { return ok_; }
    bool atEnd() const { return pos_ == size_; }
    std::size_t remaining() const { return ok_ ? size_ - pos_ : 0; }
    std::size_t position() const { return pos_; }

private:
    bool take(std::size_t size);

    const uint8_t* data_;
    std::size_t size_;
    std::size_t pos_ = 0;
    bool ok_ = true;
};

} // namespace orgb
