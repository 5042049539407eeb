#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <algorithm>
#include <cstdlib>

// Measures of a screenshot.
namespace Pixels {

inline int brightest(const QImage& image, QRect area)
{
    int best = -1;
    area &= image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, qGray(image.pixel(x, y)));
    }
    return best;
}

// How many pixels of the area are within `tolerance` of `colour` in each channel.
inline int countNear(const QImage& image, QRect area, QColor colour, int tolerance)
{
    int count = 0;
    area &= image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb c = image.pixel(x, y);
            count += std::abs(qRed(c) - colour.red()) <= tolerance &&
                     std::abs(qGreen(c) - colour.green()) <= tolerance &&
                     std::abs(qBlue(c) - colour.blue()) <= tolerance;
        }
    }
    return count;
}

// Share of the pixels of an area that differ between two images of the same size.
inline double changedShare(const QImage& a, const QImage& b, QRect area)
{
    area &= a.rect() & b.rect();
    if (area.isEmpty())
        return 0;
    int changed = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            changed += a.pixel(x, y) != b.pixel(x, y);
    }
    return double(changed) / (area.width() * area.height());
}

} // namespace Pixels
