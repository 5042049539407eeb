#pragma once

// The panel's pictures are drawn by code: each file in app/resources/images defines one
// function that paints a picture and registers it under its file name (without ".png").

#include <QImage>

#include <map>
#include <string>

namespace ImageRegistry {

using Painter = QImage (*)();

std::map<std::string, Painter>& painters();
bool add(const char* name, Painter painter);

} // namespace ImageRegistry

#define NX_REGISTER_IMAGE(name, function)                                                          \
    static const bool nxImageRegistered_##function = ImageRegistry::add(name, function)
