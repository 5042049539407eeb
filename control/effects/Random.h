#pragma once

#include <cstdint>

namespace nxfx {

// A counter-based random source: the same seed and keys always give the same numbers, so a
// frame is a pure function of its inputs and can be rendered again exactly.
class Random
{
public:
    explicit Random(uint64_t seed) : seed_(seed) {}

    uint64_t seed() const { return seed_; }
    // 64 well-mixed bits for the keys.
    uint64_t bits(int64_t a, int64_t b = 0, int64_t c = 0) const;
    // Uniform in [0, 1).
    double unit(int64_t a, int64_t b = 0, int64_t c = 0) const;
    // Uniform in [0, count), count > 0.
    int below(int count, int64_t a, int64_t b = 0, int64_t c = 0) const;

private:
    uint64_t seed_;
};

} // namespace nxfx
