#include "LedAreaSelection.h"

#include <QtGlobal>

bool LedAreaSelection::startsBand(const QPoint& pos)
{
    return pos.x() > AreaLeft && clearsSelection(pos);
}

bool LedAreaSelection::clearsSelection(const QPoint& pos)
{
    return pos.y() > AreaTop && pos.y() < AreaBottom;
}

QPoint LedAreaSelection::clampToArea(const QPoint& pos)
{
    const int x = pos.x() < AreaLeft + 1 ? AreaLeft : pos.x();
    return QPoint(x, qBound(AreaTop, pos.y(), AreaBottom));
}

QPoint LedAreaSelection::clampDragEnd(const QPoint& end)
{
    const int x = qBound(1, end.x(), RightLimit);
    int y = qMin(end.y(), AreaBottom);
    if (y < 1)
        y = 1;
    return QPoint(x, y);
}

LedAreaSelection::Direction LedAreaSelection::direction(const QPoint& start, const QPoint& end)
{
    const int sx = start.x();
    const int sy = start.y();
    const int ex = end.x();
    const int ey = end.y();
    if (sx > ex && sy < ey)
        return DownLeft;
    if (sx < ex && sy > ey)
        return UpRight;
    if (sx < ex && sy < ey)
        return DownRight;
    return UpLeft;
}

bool LedAreaSelection::contains(Direction direction, const QPoint& start, const QPoint& end,
                                const QPoint& point)
{
    const int px = point.x();
    const int py = point.y();
    const bool rightward = direction == UpRight || direction == DownRight;
    const bool downward = direction == DownLeft || direction == DownRight;
    const bool insideX =
        rightward ? start.x() < px && px < end.x() : end.x() < px && px < start.x();
    const bool insideY = downward ? start.y() < py && py < end.y() : end.y() < py && py < start.y();
    return insideX && insideY;
}
