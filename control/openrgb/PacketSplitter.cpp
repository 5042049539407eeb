#include "PacketSplitter.h"

#include "BodyReader.h"

#include <cstring>

namespace orgb {

void PacketSplitter::feed(const uint8_t* data, std::size_t size)
{
    if (failed_ || size == 0)
        return;
    // Drop what was consumed before growing, so the buffer stays near one packet.
    if (offset_ > 0 && offset_ == buffer_.size()) {
        buffer_.clear();
        offset_ = 0;
    } else if (offset_ > 64 * 1024) {
        buffer_.erase(buffer_.begin(), buffer_.begin() + static_cast<std::ptrdiff_t>(offset_));
        offset_ = 0;
    }
    buffer_.insert(buffer_.end(), data, data + size);
}

PacketSplitter::Status PacketSplitter::next(Packet& packet, std::string* error)
{
    if (failed_)
        return Status::Error;
    const std::size_t available = buffer_.size() - offset_;
    if (available == 0)
        return Status::NeedMore;
    if (available < 4) {
        // A wrong magic is refused as soon as its first bytes are in.
        if (std::memcmp(buffer_.data() + offset_, "ORGB", available) != 0)
            return fail(error, "wrong magic");
        return Status::NeedMore;
    }
    const uint8_t* head = buffer_.data() + offset_;
    if (std::memcmp(head, "ORGB", 4) != 0)
        return fail(error, "wrong magic");
    if (available < kHeaderSize)
        return Status::NeedMore;
    BodyReader in(head + 4, kHeaderSize - 4);
    const uint32_t device = in.u32();
    const uint32_t id = in.u32();
    const uint32_t size = in.u32();
    if (size > kMaxBodySize)
        return fail(error, "body of " + std::to_string(size) + " bytes is past the limit");
    if (available < kHeaderSize + size)
        return Status::NeedMore;
    packet.device = device;
    packet.id = id;
    packet.body.assign(head + kHeaderSize, head + kHeaderSize + size);
    offset_ += kHeaderSize + size;
    return Status::Packet;
}

void PacketSplitter::reset()
{
    buffer_.clear();
    offset_ = 0;
    failed_ = false;
}

PacketSplitter::Status PacketSplitter::fail(std::string* error, const std::string& reason)
{
    failed_ = true;
    buffer_.clear();
    offset_ = 0;
    if (error)
        *error = reason;
    return Status::Error;
}

} // namespace orgb
