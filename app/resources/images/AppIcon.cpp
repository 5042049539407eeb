// Application icon: the logo's mark on a dark rounded tile with a thin accent rim. One drawing
// for every size: the window icon (a 256-pixel picture in the resources) and the icon theme
// (SVG and PNG sizes, written by the generator).
#include "ImageRegistry.h"
#include "Shapes.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {
constexpr int kRasterSize = 256;
// Proportions of the tile edge.
constexpr qreal kMargin = 0.0625;
constexpr qreal kCorner = 0.19;
constexpr qreal kRim = 0.018;
constexpr qreal kMarkWidth = 0.62;
constexpr qreal kMarkAspect = 15.0 / 21.0;
// The mark sits a little right of centre: its slant leans to the right.
constexpr qreal kMarkShift = -0.02;

const QColor kTileTop(44, 49, 57);
const QColor kTileBottom(16, 18, 22);
const QColor kRimColor(32, 158, 199, 150);
const QColor kGlow(32, 158, 199, 70);

void drawTile(QPainter& painter, const QRectF& tile)
{
    const qreal radius = tile.width() * kCorner;
    QPainterPath shape;
    shape.addRoundedRect(tile, radius, radius);

    QLinearGradient body(tile.topLeft(), tile.bottomLeft());
    body.setColorAt(0.0, kTileTop);
    body.setColorAt(1.0, kTileBottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(body);
    painter.drawPath(shape);

    QRadialGradient glow(tile.center() + QPointF(0, tile.height() * 0.22), tile.width() * 0.55);
    glow.setColorAt(0.0, kGlow);
    glow.setColorAt(1.0, QColor(kGlow.red(), kGlow.green(), kGlow.blue(), 0));
    painter.setBrush(glow);
    painter.drawPath(shape);

    const qreal rim = tile.width() * kRim;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kRimColor, rim));
    const QRectF inner = tile.adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2);
    painter.drawRoundedRect(inner, radius - rim / 2, radius - rim / 2);
}

void paintAppIcon(QPainter& painter, qreal size)
{
    const QRectF tile(size * kMargin, size * kMargin, size * (1 - 2 * kMargin),
                      size * (1 - 2 * kMargin));
    drawTile(painter, tile);
    const qreal width = size * kMarkWidth;
    const qreal height = width * kMarkAspect;
    const QRectF mark(tile.center().x() - width / 2 + size * kMarkShift,
                      tile.center().y() - height / 2, width, height);
    Shapes::logoMark(painter, mark);
}

QImage drawAppIcon()
{
    return Shapes::painted(kRasterSize, kRasterSize,
                           [](QPainter& painter) { paintAppIcon(painter, kRasterSize); });
}
} // namespace

NX_REGISTER_IMAGE("AppIcon", drawAppIcon);
NX_REGISTER_SCALABLE_IMAGE(NX_APP_ID, paintAppIcon);
