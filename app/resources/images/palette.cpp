// The colour wheel: hue around the circle, saturation falling to white toward the centre, full
// value. Every pixel is computed from its polar coordinates, so the wheel has no bands; the rim
// is antialiased by pixel coverage. Pixels outside the disc are fully transparent but keep the
// colour of the rim beside them, so that a pick just beyond the visible edge still finds it.
#include "ImageRegistry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int WheelSize = 176;
constexpr double WheelRadius = 88.0;
constexpr double Pi = 3.14159265358979323846;

// Hue in turns (0..1, red at 0), saturation 0..1, full value; components 0..1.
void hsvToRgb(double hue, double saturation, double& r, double& g, double& b)
{
    const double h = hue * 6.0;
    const int sector = int(std::floor(h)) % 6;
    const double f = h - std::floor(h);
    const double p = 1.0 - saturation;
    const double q = 1.0 - saturation * f;
    const double t = 1.0 - saturation * (1.0 - f);
    switch (sector) {
    case 0:
        r = 1.0;
        g = t;
        b = p;
        break;
    case 1:
        r = q;
        g = 1.0;
        b = p;
        break;
    case 2:
        r = p;
        g = 1.0;
        b = t;
        break;
    case 3:
        r = p;
        g = q;
        b = 1.0;
        break;
    case 4:
        r = t;
        g = p;
        b = 1.0;
        break;
    default:
        r = 1.0;
        g = p;
        b = q;
        break;
    }
}

int toByte(double component)
{
    return std::clamp(int(std::lround(component * 255.0)), 0, 255);
}

} // namespace

static QImage drawpalette()
{
    // Straight (not premultiplied) alpha keeps the colour of transparent pixels.
    QImage image(WheelSize, WheelSize, QImage::Format_ARGB32);
    const double centre = WheelSize / 2.0;
    for (int y = 0; y < WheelSize; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < WheelSize; ++x) {
            const double dx = x + 0.5 - centre;
            const double dy = centre - (y + 0.5); // counter-clockwise hue, red to the right
            const double radius = std::hypot(dx, dy);
            double hue = std::atan2(dy, dx) / (2.0 * Pi);
            if (hue < 0.0)
                hue += 1.0;
            const double saturation = std::min(radius / WheelRadius, 1.0);
            const double coverage = std::clamp(WheelRadius - radius + 0.5, 0.0, 1.0);
            double r = 0.0;
            double g = 0.0;
            double b = 0.0;
            hsvToRgb(hue, saturation, r, g, b);
            line[x] = qRgba(toByte(r), toByte(g), toByte(b), toByte(coverage));
        }
    }
    return image;
}

NX_REGISTER_IMAGE("palette", drawpalette);
