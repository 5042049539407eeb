#pragma once

#include "ByteReader.h"

#include <string>

namespace orgb {

// Reads a packet body: little-endian values as ByteReader does, plus the SDK's length-prefixed
// strings. Any read past the end, or a string without its NUL, clears ok() for good and yields
// zeros, so that a decoder reads a whole block and checks once.
class BodyReader : public nxproto::ByteReader
{
public:
    using ByteReader::ByteReader;

    // u16 length with the NUL, then the bytes; the text ends at the first NUL.
    std::string string();
};

} // namespace orgb
