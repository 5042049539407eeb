#pragma once

// The panel's pictures are drawn by code: each file in app/resources/images defines one
// function that paints a picture and registers it under its file name (without ".png").
// Scalable pictures (the application icon) register a second function that paints into a
// square of any size; the generator writes them as SVG and as PNG in several sizes.

#include <QImage>

#include <map>
#include <string>

class QPainter;

namespace ImageRegistry {

using Painter = QImage (*)();
using ScalablePainter = void (*)(QPainter& painter, qreal size);

std::map<std::string, Painter>& painters();
bool add(const char* name, Painter painter);

std::map<std::string, ScalablePainter>& scalablePainters();
bool addScalable(const char* name, ScalablePainter painter);

} // namespace ImageRegistry

#define NX_REGISTER_IMAGE(name, function)                                                          \
    static const bool nxImageRegistered_##function = ImageRegistry::add(name, function)

#define NX_REGISTER_SCALABLE_IMAGE(name, function)                                                 \
    static const bool nxScalableRegistered_##function = ImageRegistry::addScalable(name, function)
