// libFuzzer entry: any byte stream through the frame decoder and every message decoder.

#include "FrameDecoder.h"
#include "Messages.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    nxproto::FrameDecoder decoder;
    // Two feeds, so that frames split across reads are covered too.
    const std::size_t half = size / 2;
    decoder.feed(data, half);
    nxproto::Frame frame;
    for (int pass = 0; pass < 2; ++pass) {
        while (decoder.next(frame) == nxproto::FrameDecoder::Status::Frame) {
            nxproto::Request request;
            if (nxproto::decodeRequest(frame, request, nullptr)) {
                nxproto::ControlState state = nxproto::defaultControlState();
                nxproto::applyRequest(state, request);
            }
            nxproto::StateMessage state;
            nxproto::decodeState(frame, state, nullptr);
            nxproto::HardwareInfo hardware;
            if (nxproto::decodeHardware(frame, hardware, nullptr))
                nxproto::buildHWData(hardware, state.state);
            nxproto::PreviewMessage preview;
            nxproto::decodePreview(frame, preview, nullptr);
            nxproto::ErrorMessage error;
            nxproto::decodeError(frame, error, nullptr);
        }
        decoder.feed(data + half, size - half);
    }
    return 0;
}
