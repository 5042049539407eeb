#pragma once

#include <cstdint>
#include <string>

// Where the service sends its frames, as given by --output and kept in the state file:
// "none", or "openrgb" with an optional "HOST:PORT" ("[v6 address]:PORT" for IPv6).
struct OutputChoice {
    static constexpr char kDefaultHost[] = "127.0.0.1";

    bool openrgb = false;
    std::string host = kDefaultHost;
    uint16_t port = 6742;

    // False with a message for the user when `text` is not such a value.
    static bool parse(const std::string& text, OutputChoice* choice, std::string* error);
    // "HOST:PORT", "[ADDRESS]:PORT", "HOST" or ":PORT"; missing parts keep what `host` and
    // `port` hold.
    static bool parseAddress(const std::string& text, std::string* host, uint16_t* port,
                             std::string* error);
    std::string text() const;
};
