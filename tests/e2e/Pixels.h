#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <algorithm>
#include <cstdlib>

// Measures of a screenshot.
namespace Pixels {

template <typename F> void forEach(const QImage& image, QRect area, F f)
{
    area &= image.rect();
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            f(QPoint(x, y), image.pixel(x, y));
}

inline int brightest(const QImage& image, QRect area)
{
    int best = -1;
    forEach(image, area, [&](QPoint, QRgb c) { best = std::max(best, qGray(c)); });
    return best;
}

// How many pixels of the area are within `tolerance` of `colour` in each channel.
inline int countNear(const QImage& image, QRect area, QColor colour, int tolerance)
{
    int count = 0;
    forEach(image, area, [&](QPoint, QRgb c) {
        count += std::abs(qRed(c) - colour.red()) <= tolerance &&
                 std::abs(qGreen(c) - colour.green()) <= tolerance &&
                 std::abs(qBlue(c) - colour.blue()) <= tolerance;
    });
    return count;
}

// Share of the pixels of an area that differ between two images of the same size.
inline double changedShare(const QImage& a, const QImage& b, QRect area)
{
    area &= a.rect() & b.rect();
    int changed = 0;
    forEach(a, area, [&](QPoint p, QRgb c) { changed += c != b.pixel(p); });
    return area.isEmpty() ? 0 : double(changed) / (area.width() * area.height());
}

} // namespace Pixels
