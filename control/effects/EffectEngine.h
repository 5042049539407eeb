#pragma once

#include "EffectContext.h"

namespace nxfx {

// Every LED of one module at one moment: a pure function of the module's settings, its place
// on the canvas and the scene's inputs. Writes module.ledCount colours; a module switched off
// is black.
void renderModule(const ModuleInput& module, const SceneInput& scene, Color* out);

// Whether the module's picture changes with time alone (otherwise only with its inputs).
bool isAnimated(const ModuleInput& module);

} // namespace nxfx
