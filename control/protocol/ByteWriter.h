#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nxproto {

// Appends little-endian values to a byte buffer.
class ByteWriter
{
public:
    explicit ByteWriter(std::vector<uint8_t>& out) : out_(out) {}

    void u8(uint8_t value);
    void u16(uint16_t value);
    void u32(uint32_t value);
    void i32(int32_t value) { u32(static_cast<uint32_t>(value)); }
    void f32(float value);
    void f64(double value);
    // One length byte, then the bytes; longer texts are cut at 255.
    void text(const std::string& value);
    void bytes(const void* data, std::size_t size);

private:
    std::vector<uint8_t>& out_;
};

} // namespace nxproto
