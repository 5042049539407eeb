#pragma once

// Framing of the control protocol. Every frame is
//   u32 length   bytes that follow this field (4 + payload size), little-endian
//   u16 version  kProtocolVersion
//   u16 type     a MessageType
//   payload
// A stream is a plain sequence of frames in both directions.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nxproto {

constexpr uint16_t kProtocolVersion = 2;
constexpr std::size_t kLengthFieldSize = 4;
constexpr std::size_t kHeaderSize = 8;
// Upper bound of the length field; the largest message is far below it.
constexpr uint32_t kMaxFrameLength = 64 * 1024;

struct Frame {
    uint16_t version = 0;
    uint16_t type = 0;
    std::vector<uint8_t> payload;
};

// A whole frame with its header, ready to write.
std::vector<uint8_t> encodeFrame(uint16_t type, const std::vector<uint8_t>& payload,
                                 uint16_t version = kProtocolVersion);

// Splits a byte stream into frames. A bad length or version cannot be skipped safely, so it
// puts the decoder into a failed state for good; the owner closes the stream.
class FrameDecoder
{
public:
    enum class Status { NeedMore, Frame, Error };

    void feed(const uint8_t* data, std::size_t size);
    Status next(Frame& frame, std::string* error = nullptr);

    bool failed() const { return failed_; }
    std::size_t buffered() const { return buffer_.size() - offset_; }
    void reset();

private:
    Status fail(std::string* error, const char* reason);

    std::vector<uint8_t> buffer_;
    std::size_t offset_ = 0;
    bool failed_ = false;
};

} // namespace nxproto
