#pragma once

// Payloads of the control protocol and their codecs. Each encoder returns a whole frame;
// each decoder checks the frame type, the exact payload size and every value, and reports
// the first fault in `error`.

#include "ControlState.h"
#include "FrameDecoder.h"
#include "HardwareInfo.h"

#include <string>
#include <vector>

namespace nxproto {

// Service to client: the whole state after a change (or on connection). ackSeq is the
// highest request seq of the receiving connection that the state includes.
struct StateMessage {
    uint32_t ackSeq = 0;
    uint32_t changes = 0;
    ControlState state;
};

// Service to subscribed clients, at the frame rate: what every LED shows now.
struct PreviewMessage {
    uint32_t frame = 0;
    COLORREF colors[kSlotCount][kLedCount] = {};
};

enum class ErrorCode : uint16_t {
    Malformed = 1, // framing broken: the connection is closed after the reply
    UnknownType = 2,
    BadPayload = 3, // wrong size or out-of-range value; nothing was applied
};

struct ErrorMessage {
    uint32_t seq = 0; // of the refused request, 0 when unknown
    ErrorCode code = ErrorCode::Malformed;
    std::string text;
};

std::vector<uint8_t> encodeRequest(const Request& request);
std::vector<uint8_t> encodeState(const StateMessage& message);
std::vector<uint8_t> encodeHardware(const HardwareInfo& hardware);
std::vector<uint8_t> encodePreview(const PreviewMessage& message);
// The same frame written over `out`, whose storage is reused: the service sends one per frame.
void encodePreview(const PreviewMessage& message, std::vector<uint8_t>& out);
std::vector<uint8_t> encodeError(const ErrorMessage& message);

bool decodeRequest(const Frame& frame, Request& request, std::string* error);
bool decodeState(const Frame& frame, StateMessage& message, std::string* error);
bool decodeHardware(const Frame& frame, HardwareInfo& hardware, std::string* error);
bool decodePreview(const Frame& frame, PreviewMessage& message, std::string* error);
bool decodeError(const Frame& frame, ErrorMessage& message, std::string* error);

// The seq of a request frame, 0 when the payload is too short to carry one.
uint32_t requestSeq(const Frame& frame);

} // namespace nxproto
