#pragma once

#include "OrgbPacket.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orgb {

// Splits a byte stream into packets. The header is checked before any of the body is kept, so
// at most one header and one body of kMaxBodySize are ever buffered. A wrong magic or an
// oversized body cannot be skipped safely: the splitter fails for good and the owner closes
// the connection.
class PacketSplitter
{
public:
    enum class Status { NeedMore, Packet, Error };

    void feed(const uint8_t* data, std::size_t size);
    Status next(Packet& packet, std::string* error = nullptr);

    bool failed() const { return failed_; }
    std::size_t buffered() const { return buffer_.size() - offset_; }
    void reset();

private:
    Status fail(std::string* error, const std::string& reason);

    std::vector<uint8_t> buffer_;
    std::size_t offset_ = 0;
    bool failed_ = false;
};

} // namespace orgb
