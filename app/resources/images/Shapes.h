#pragma once

// Drawing shared by several pictures.

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace Shapes {

// A transparent picture of `width` x `height`, painted antialiased by `paint(QPainter&)`.
template <typename Paint> QImage painted(int width, int height, Paint paint)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    return image;
}

// The pen of the frame's window-button glyphs (close, minimise): thin, light grey, round caps.
inline QPen windowGlyphPen()
{
    return QPen(QColor(205, 208, 212), 1.6, Qt::SolidLine, Qt::RoundCap);
}

// A round switch knob: a halo (glow or shadow) behind a shaded ball lit from the upper left,
// with a specular highlight.
struct KnobLook {
    int size = 19;
    QColor halo; // opaque at haloStop, transparent at the image's edge
    qreal haloStop = 0.6;
    qreal haloDrop = 0; // halo shifted down, for a shadow
    qreal ball = 7.0;
    QColor light, mid, dark;
    qreal midStop = 0.5;
    QPointF lightFrom;  // offset of the light's centre from the ball's
    qreal spread = 1.6; // gradient radius in balls
    QPen outline;
    QPointF shineAt;
    qreal shine = 3.2;
    int shineAlpha = 170;
};

inline void paintKnob(QPainter& painter, const KnobLook& look)
{
    const QPointF centre(look.size / 2.0, look.size / 2.0);
    const qreal edge = look.size / 2.0;

    const QPointF haloCentre = centre + QPointF(0, look.haloDrop);
    QRadialGradient halo(haloCentre, edge);
    halo.setColorAt(look.haloStop, look.halo);
    halo.setColorAt(1.0, QColor(look.halo.red(), look.halo.green(), look.halo.blue(), 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(haloCentre, edge, edge);

    const QPointF lit = centre + look.lightFrom;
    QRadialGradient body(lit, look.ball * look.spread, lit);
    body.setColorAt(0.0, look.light);
    body.setColorAt(look.midStop, look.mid);
    body.setColorAt(1.0, look.dark);
    painter.setBrush(body);
    painter.setPen(look.outline);
    painter.drawEllipse(centre, look.ball, look.ball);

    const QPointF shineCentre = centre + look.shineAt;
    QRadialGradient shine(shineCentre, look.shine);
    shine.setColorAt(0.0, QColor(255, 255, 255, look.shineAlpha));
    shine.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(shineCentre, look.shine, look.shine);
}

inline QImage knob(const KnobLook& look)
{
    return painted(look.size, look.size, [&look](QPainter& painter) { paintKnob(painter, look); });
}

// A 14 x 8 drop-down chevron.
inline QImage chevron(const QColor& colour)
{
    return painted(14, 8, [&colour](QPainter& painter) {
        painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QPainterPath path;
        path.moveTo(2.0, 1.5);
        path.lineTo(7.0, 6.5);
        path.lineTo(12.0, 1.5);
        painter.drawPath(path);
    });
}

// The logo's mark: two slanted accent bars, the second shorter, reading as a stylised "N" and
// as a rising level. Drawn in a 21 x 15 design box mapped onto `box`; the word mark and the
// application icon share it.
inline void logoMark(QPainter& painter, const QRectF& box)
{
    constexpr qreal kBoxWidth = 21.0;
    constexpr qreal kBoxHeight = 15.0;
    constexpr qreal kSlant = 5.0;
    const QColor accent(32, 158, 199);
    const QColor accentLight(96, 204, 236);

    painter.save();
    painter.translate(box.topLeft());
    painter.scale(box.width() / kBoxWidth, box.height() / kBoxHeight);

    QLinearGradient fill(0, kBoxHeight, kBoxWidth - kSlant, 0);
    fill.setColorAt(0.0, accent);
    fill.setColorAt(1.0, accentLight);

    QPainterPath tall;
    tall.moveTo(0.5, kBoxHeight);
    tall.lineTo(0.5 + kSlant, 0);
    tall.lineTo(6.0 + kSlant, 0);
    tall.lineTo(6.0, kBoxHeight);
    tall.closeSubpath();

    const qreal shortTop = kBoxHeight * 0.35;
    const qreal shortSlant = kSlant * 0.65;
    QPainterPath shortBar;
    shortBar.moveTo(8.5, kBoxHeight);
    shortBar.lineTo(8.5 + shortSlant, shortTop);
    shortBar.lineTo(kBoxWidth - kSlant - 2.0 + shortSlant, shortTop);
    shortBar.lineTo(kBoxWidth - kSlant - 2.0, kBoxHeight);
    shortBar.closeSubpath();

    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPath(tall);
    painter.drawPath(shortBar);
    painter.restore();
}

} // namespace Shapes
