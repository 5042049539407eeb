// Knob of a switch that is off: a light grey ball with soft shading.
#include "ImageRegistry.h"

#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr int KnobSize = 19;
const QColor KnobLight(250, 250, 250);
const QColor KnobMid(212, 212, 212);
const QColor KnobDark(150, 150, 150);

} // namespace

static QImage drawBtn_Switch_OFF()
{
    QImage image(KnobSize, KnobSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(KnobSize / 2.0, KnobSize / 2.0);

    // Soft shadow under the ball.
    QRadialGradient shadow(centre + QPointF(0.0, 0.8), KnobSize / 2.0);
    shadow.setColorAt(0.7, QColor(0, 0, 0, 110));
    shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(centre + QPointF(0.0, 0.8), KnobSize / 2.0, KnobSize / 2.0);

    // Ball: lit from the upper left.
    const qreal ball = 7.8;
    QRadialGradient body(centre - QPointF(2.4, 2.8), ball * 1.7, centre - QPointF(2.4, 2.8));
    body.setColorAt(0.0, KnobLight);
    body.setColorAt(0.5, KnobMid);
    body.setColorAt(1.0, KnobDark);
    painter.setBrush(body);
    painter.setPen(QPen(QColor(120, 120, 120, 180), 0.7));
    painter.drawEllipse(centre, ball, ball);

    // Specular highlight.
    QRadialGradient shine(centre - QPointF(2.2, 3.0), 3.4);
    shine.setColorAt(0.0, QColor(255, 255, 255, 200));
    shine.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(centre - QPointF(2.2, 3.0), 3.4, 3.4);
    return image;
}

NX_REGISTER_IMAGE("Btn_Switch_OFF", drawBtn_Switch_OFF);
