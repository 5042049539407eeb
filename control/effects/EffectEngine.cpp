#include "EffectEngine.h"

#include "EffectRegistry.h"

#include <algorithm>

namespace nxfx {

void renderModule(const ModuleInput& module, const SceneInput& scene, Color* out)
{
    if (module.ledCount <= 0)
        return;
    if (module.turnOff) {
        std::fill(out, out + module.ledCount, Color(0));
        return;
    }
    const EffectInfo& effect = effectFor(module.mode);
    SceneInput safe = scene;
    safe.columns = std::max(scene.columns, module.column + 1);
    const EffectContext context(module, safe, effect.palette);
    for (int led = 0; led < module.ledCount; ++led)
        out[led] = scale(effect.render(context, led), context.level(led));
}

bool isAnimated(const ModuleInput& module)
{
    return !module.turnOff && effectFor(module.mode).animated;
}

} // namespace nxfx
