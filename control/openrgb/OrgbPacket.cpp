#include "OrgbPacket.h"

#include "BodyReader.h"

#include "ByteWriter.h"

#include <algorithm>

namespace orgb {

namespace {

constexpr std::size_t kMaxStringLength = 0xFFFE;

} // namespace

std::vector<uint8_t> encodePacket(uint32_t device, uint32_t id, const std::vector<uint8_t>& body)
{
    std::vector<uint8_t> out;
    out.reserve(kHeaderSize + body.size());
    nxproto::ByteWriter writer(out);
    writer.bytes("ORGB", 4);
    writer.u32(device);
    writer.u32(id);
    writer.u32(static_cast<uint32_t>(body.size()));
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

std::vector<uint8_t> encodePacket(uint32_t device, uint32_t id)
{
    return encodePacket(device, id, {});
}

std::vector<uint8_t> encodeU32(uint32_t value)
{
    std::vector<uint8_t> out;
    nxproto::ByteWriter(out).u32(value);
    return out;
}

bool decodeU32(const std::vector<uint8_t>& body, uint32_t* value)
{
    if (body.size() != 4)
        return false;
    BodyReader in(body.data(), body.size());
    *value = in.u32();
    return in.ok();
}

std::vector<uint8_t> encodeName(const std::string& name)
{
    std::vector<uint8_t> out(name.begin(), name.end());
    out.push_back(0);
    return out;
}

bool decodeName(const std::vector<uint8_t>& body, std::string* name)
{
    const auto nul = std::find(body.begin(), body.end(), uint8_t(0));
    if (nul == body.end())
        return false;
    name->assign(body.begin(), nul);
    return true;
}

void writeString(std::vector<uint8_t>& out, const std::string& text)
{
    const std::size_t length = std::min(text.size(), kMaxStringLength);
    nxproto::ByteWriter writer(out);
    writer.u16(static_cast<uint16_t>(length + 1));
    writer.bytes(text.data(), length);
    writer.u8(0);
}

} // namespace orgb
