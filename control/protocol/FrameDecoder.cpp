#include "FrameDecoder.h"

#include "ByteReader.h"
#include "ByteWriter.h"

namespace nxproto {

std::vector<uint8_t> encodeFrame(uint16_t type, const std::vector<uint8_t>& payload,
                                 uint16_t version)
{
    std::vector<uint8_t> out;
    out.reserve(kHeaderSize + payload.size());
    ByteWriter writer(out);
    writer.u32(static_cast<uint32_t>(kHeaderSize - kLengthFieldSize + payload.size()));
    writer.u16(version);
    writer.u16(type);
    writer.bytes(payload.data(), payload.size());
    return out;
}

void FrameDecoder::feed(const uint8_t* data, std::size_t size)
{
    if (failed_ || size == 0)
        return;
    // Drop consumed bytes before growing, so the buffer stays near one frame.
    if (offset_ > 0 && offset_ >= buffer_.size() / 2) {
        buffer_.erase(buffer_.begin(), buffer_.begin() + static_cast<std::ptrdiff_t>(offset_));
        offset_ = 0;
    }
    buffer_.insert(buffer_.end(), data, data + size);
}

FrameDecoder::Status FrameDecoder::next(Frame& frame, std::string* error)
{
    if (failed_)
        return fail(error, "stream already failed");
    if (buffered() < kHeaderSize)
        return Status::NeedMore;
    ByteReader header(buffer_.data() + offset_, kHeaderSize);
    const uint32_t length = header.u32();
    const uint16_t version = header.u16();
    const uint16_t type = header.u16();
    if (length < kHeaderSize - kLengthFieldSize)
        return fail(error, "frame length too short");
    if (length > kMaxFrameLength)
        return fail(error, "frame length too large");
    if (version != kProtocolVersion)
        return fail(error, "unsupported protocol version");
    if (buffered() < kLengthFieldSize + length)
        return Status::NeedMore;
    const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(offset_ + kHeaderSize);
    const auto end =
        buffer_.begin() + static_cast<std::ptrdiff_t>(offset_ + kLengthFieldSize + length);
    frame.version = version;
    frame.type = type;
    frame.payload.assign(begin, end);
    offset_ += kLengthFieldSize + length;
    if (offset_ == buffer_.size()) {
        buffer_.clear();
        offset_ = 0;
    }
    return Status::Frame;
}

void FrameDecoder::reset()
{
    buffer_.clear();
    offset_ = 0;
    failed_ = false;
}

FrameDecoder::Status FrameDecoder::fail(std::string* error, const char* reason)
{
    failed_ = true;
    buffer_.clear();
    offset_ = 0;
    if (error)
        *error = reason;
    return Status::Error;
}

} // namespace nxproto
