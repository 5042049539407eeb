#pragma once

#include "Color.h"

#include <QImage>

#include <vector>

// Draws one frame of the canvas as the modules look from the front: a dark stick per module,
// its LEDs as glowing dots, modules left to right in column order.
class StripPainter
{
public:
    StripPainter(int modules, int leds) : modules_(modules), leds_(leds) {}

    QSize frameSize() const;
    // `colors` holds every LED, module after module.
    QImage paint(const std::vector<nxfx::Color>& colors) const;

private:
    int modules_;
    int leds_;
};
