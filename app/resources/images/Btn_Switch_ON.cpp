// Knob of a switch that is on: a glowing accent-blue ball with a soft highlight.
#include "ImageRegistry.h"

#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr int KnobSize = 19;
const QColor Accent(32, 158, 199);
const QColor AccentLight(120, 214, 240);
const QColor AccentDeep(14, 104, 136);

} // namespace

static QImage drawBtn_Switch_ON()
{
    QImage image(KnobSize, KnobSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(KnobSize / 2.0, KnobSize / 2.0);

    // Glow: the accent fading out toward the image's edge.
    QRadialGradient glow(centre, KnobSize / 2.0);
    glow.setColorAt(0.55, QColor(Accent.red(), Accent.green(), Accent.blue(), 150));
    glow.setColorAt(1.0, QColor(Accent.red(), Accent.green(), Accent.blue(), 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, KnobSize / 2.0, KnobSize / 2.0);

    // Ball: lit from the upper left.
    const qreal ball = 7.0;
    QRadialGradient body(centre - QPointF(2.2, 2.6), ball * 1.6, centre - QPointF(2.2, 2.6));
    body.setColorAt(0.0, AccentLight);
    body.setColorAt(0.45, Accent);
    body.setColorAt(1.0, AccentDeep);
    painter.setBrush(body);
    painter.setPen(QPen(QColor(10, 80, 104, 200), 0.8));
    painter.drawEllipse(centre, ball, ball);

    // Specular highlight.
    QRadialGradient shine(centre - QPointF(2.0, 3.0), 3.2);
    shine.setColorAt(0.0, QColor(255, 255, 255, 170));
    shine.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(centre - QPointF(2.0, 3.0), 3.2, 3.2);
    return image;
}

NX_REGISTER_IMAGE("Btn_Switch_ON", drawBtn_Switch_ON);
