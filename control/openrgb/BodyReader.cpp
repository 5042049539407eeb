#include "BodyReader.h"

namespace orgb {

std::string BodyReader::string()
{
    const uint16_t length = u16();
    if (length == 0 || !take(length)) {
        fail();
        return {};
    }
    const char* begin = reinterpret_cast<const char*>(data_ + pos_);
    pos_ += length;
    if (begin[length - 1] != '\0') {
        fail();
        return {};
    }
    return std::string(begin);
}

} // namespace orgb
