// libFuzzer target: the OpenRGB packet splitter and the body decoders, at every protocol
// version, on arbitrary bytes. A controller that decodes must encode and decode to itself.

#include "ControllerData.h"
#include "OrgbPacket.h"
#include "PacketSplitter.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    orgb::PacketSplitter splitter;
    orgb::Packet packet;
    splitter.feed(data, size / 2); // in two pieces, for partial headers
    while (splitter.next(packet) == orgb::PacketSplitter::Status::Packet) {
    }
    splitter.feed(data + size / 2, size - size / 2);
    while (splitter.next(packet) == orgb::PacketSplitter::Status::Packet) {
    }
    const std::vector<uint8_t> body(data, data + size);
    std::string error;
    for (uint32_t version = 0; version <= 6; ++version) {
        orgb::Controller controller, again;
        if (orgb::decodeController(body, version, &controller, &error) &&
            (!orgb::decodeController(orgb::encodeController(controller, version), version, &again,
                                     &error) ||
             !(again == controller)))
            std::abort();
        int32_t index = 0;
        orgb::Mode mode;
        orgb::decodeModeUpdate(body, version, &index, &mode, &error);
    }
    std::vector<orgb::Color> colors;
    uint32_t zone = 0;
    orgb::decodeLedUpdate(body, &colors, &error);
    orgb::decodeZoneLedUpdate(body, &zone, &colors, &error);
    return 0;
}
