#include "EffectContext.h"

#include <algorithm>

namespace nxfx {

namespace {

constexpr double kSpeedRates[] = {4.0, 2.0, 1.0, 0.5};

} // namespace

EffectContext::EffectContext(const ModuleInput& module, const SceneInput& scene, Palette own)
    : module_(module), scene_(scene), random_(scene.seed), own_(own),
      mode_(module.colorMode >= ColorRgb && module.colorMode <= ColorRandom ? module.colorMode
                                                                            : ColorOwn),
      time_(scene.seconds * kSpeedRates[std::clamp(module.speed, 0, 3)])
{
}

Color EffectContext::color(int led, double position, int64_t key) const
{
    switch (mode_) {
    case ColorRgb: {
        if (!module_.colors || module_.ledCount <= 0)
            return 0;
        const int n = module_.ledCount;
        return module_.colors[((led % n) + n) % n] & 0xFFFFFF;
    }
    case ColorSingle:
        return module_.single & 0xFFFFFF;
    case ColorRandom:
        return hsv(random_.unit(key, 0x52414e44), 0.85 + 0.15 * random_.unit(key, 7));
    default:
        return paletteColor(own_, position);
    }
}

double EffectContext::level(int led) const
{
    switch (mode_) {
    case ColorRgb:
        if (!module_.brightness || led < 0 || led >= module_.ledCount)
            return 0.0;
        return std::clamp(double(module_.brightness[led]), 0.0, 1.0);
    case ColorSingle:
        return std::clamp(double(module_.singleBrightness), 0.0, 1.0);
    default:
        return 1.0;
    }
}

} // namespace nxfx
