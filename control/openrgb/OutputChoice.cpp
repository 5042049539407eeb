#include "OutputChoice.h"

#include <cctype>

constexpr char OutputChoice::kDefaultHost[];

namespace {

bool parsePort(const std::string& text, uint16_t* port)
{
    if (text.empty() || text.size() > 5)
        return false;
    unsigned value = 0;
    for (char c : text) {
        if (!std::isdigit(static_cast<unsigned char>(c)))
            return false;
        value = value * 10 + unsigned(c - '0');
    }
    if (value == 0 || value > 65535)
        return false;
    *port = uint16_t(value);
    return true;
}

bool validHost(const std::string& host)
{
    if (host.empty() || host.size() > 253)
        return false;
    for (char c : host) {
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '.' && c != '-' && c != ':' &&
            c != '_')
            return false;
    }
    return true;
}

} // namespace

bool OutputChoice::parseAddress(const std::string& text, std::string* host, uint16_t* port,
                                std::string* error)
{
    std::string hostPart;
    std::string portPart;
    bool hasPort = false;
    if (!text.empty() && text[0] == '[') {
        const std::size_t close = text.find(']');
        if (close == std::string::npos) {
            *error = "\"" + text + "\" lacks the closing ]";
            return false;
        }
        hostPart = text.substr(1, close - 1);
        const std::string rest = text.substr(close + 1);
        if (!rest.empty()) {
            if (rest[0] != ':') {
                *error = "\"" + text + "\" is not [ADDRESS]:PORT";
                return false;
            }
            hasPort = true;
            portPart = rest.substr(1);
        }
    } else {
        const std::size_t colon = text.rfind(':');
        if (colon != std::string::npos && text.find(':') != colon) {
            *error = "write an IPv6 address in brackets: [ADDRESS]:PORT";
            return false;
        }
        hostPart = text.substr(0, colon);
        if (colon != std::string::npos) {
            hasPort = true;
            portPart = text.substr(colon + 1);
        }
    }
    uint16_t newPort = *port;
    if (hasPort && !parsePort(portPart, &newPort)) {
        *error = "\"" + portPart + "\" is not a port from 1 to 65535";
        return false;
    }
    if (!hostPart.empty() && !validHost(hostPart)) {
        *error = "\"" + hostPart + "\" is not a host name or address";
        return false;
    }
    if (!hostPart.empty())
        *host = hostPart;
    *port = newPort;
    return true;
}

bool OutputChoice::parse(const std::string& text, OutputChoice* choice, std::string* error)
{
    OutputChoice result;
    if (text == "none") {
        *choice = result;
        return true;
    }
    const std::string name = text.substr(0, text.find(':'));
    if (name != "openrgb") {
        *error = "unknown output \"" + name + "\" (outputs: none, openrgb[:HOST:PORT])";
        return false;
    }
    result.openrgb = true;
    if (text.size() > name.size()) {
        const std::string address = text.substr(name.size() + 1);
        if (address.empty()) {
            *error = "openrgb: expects HOST:PORT after the colon";
            return false;
        }
        if (!parseAddress(address, &result.host, &result.port, error))
            return false;
    }
    *choice = result;
    return true;
}

std::string OutputChoice::text() const
{
    if (!openrgb)
        return "none";
    const bool v6 = host.find(':') != std::string::npos;
    return "openrgb:" + (v6 ? "[" + host + "]" : host) + ":" + std::to_string(port);
}
