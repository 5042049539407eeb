#include "Random.h"

namespace nxfx {

namespace {

// The finaliser of SplitMix64.
uint64_t mix(uint64_t x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    return x ^ (x >> 31);
}

} // namespace

uint64_t Random::bits(int64_t a, int64_t b, int64_t c) const
{
    uint64_t x = mix(seed_ ^ uint64_t(a));
    x = mix(x ^ uint64_t(b));
    return mix(x ^ uint64_t(c));
}

double Random::unit(int64_t a, int64_t b, int64_t c) const
{
    return double(bits(a, b, c) >> 11) * (1.0 / 9007199254740992.0);
}

int Random::below(int count, int64_t a, int64_t b, int64_t c) const
{
    return int(bits(a, b, c) % uint64_t(count));
}

} // namespace nxfx
