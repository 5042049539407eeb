#pragma once

#include <QPoint>

// Geometry of the rubber-band selection over the LED strips, in page coordinates: where a band
// may start, how its corners are held inside the LED area, which way it was dragged and which
// points lie strictly inside it.
class LedAreaSelection
{
public:
    // The band lives right of this line, between the two horizontal limits.
    static constexpr int AreaLeft = 300;
    static constexpr int AreaTop = 20;
    static constexpr int AreaBottom = 320;
    // Page-wide horizontal offset of the layout and the band's right limit (offset + 800).
    static constexpr int PageOffset = 100;
    static constexpr int RightLimit = PageOffset + 800;

    // Drag directions, from the band's start to its end.
    enum Direction { UpLeft = 0, DownLeft = 1, UpRight = 2, DownRight = 3 };

    // A press here starts a band.
    static bool startsBand(const QPoint& pos);
    // A press here clears the current LED selection.
    static bool clearsSelection(const QPoint& pos);
    // The pointer held inside the LED area: x no further left than AreaLeft, y between the
    // limits.
    static QPoint clampToArea(const QPoint& pos);
    // The band end while dragging (relative to the band widget): x within 1..RightLimit,
    // y at least 1 and at most AreaBottom.
    static QPoint clampDragEnd(const QPoint& end);
    // The direction of a band; a band with equal start and end coordinates counts as UpLeft
    // and then contains nothing.
    static Direction direction(const QPoint& start, const QPoint& end);
    // Whether a point lies strictly inside the band dragged in the given direction.
    static bool contains(Direction direction, const QPoint& start, const QPoint& end,
                         const QPoint& point);
};
