#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace nxproto {

// Reads little-endian values from a byte range. Reading past the end yields zeros and clears
// ok(), so a decoder reads a whole record and checks once.
class ByteReader
{
public:
    ByteReader(const uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    uint8_t u8();
    uint16_t u16();
    uint32_t u32();
    int32_t i32() { return static_cast<int32_t>(u32()); }
    float f32();
    double f64();
    std::string text();
    void bytes(void* out, std::size_t size);
    void skip(std::size_t size);

    void fail() { ok_ = false; }
    bool ok() const { return ok_; }
    bool atEnd() const { return pos_ == size_; }
    std::size_t remaining() const { return ok_ ? size_ - pos_ : 0; }
    std::size_t position() const { return pos_; }

protected:
    // Whether `size` more bytes are there; clears ok() when not.
    bool take(std::size_t size);

    const uint8_t* data_;
    std::size_t size_;
    std::size_t pos_ = 0;
    bool ok_ = true;
};

} // namespace nxproto
