// Knob of a switch that is off: a light grey ball with soft shading.
#include "ImageRegistry.h"
#include "Shapes.h"

static QImage drawBtn_Switch_OFF()
{
    Shapes::KnobLook look;
    look.halo = QColor(0, 0, 0, 110);
    look.haloStop = 0.7;
    look.haloDrop = 0.8;
    look.ball = 7.8;
    look.light = QColor(250, 250, 250);
    look.mid = QColor(212, 212, 212);
    look.dark = QColor(150, 150, 150);
    look.midStop = 0.5;
    look.lightFrom = QPointF(-2.4, -2.8);
    look.spread = 1.7;
    look.outline = QPen(QColor(120, 120, 120, 180), 0.7);
    look.shineAt = QPointF(-2.2, -3.0);
    look.shine = 3.4;
    look.shineAlpha = 200;
    return Shapes::knob(look);
}

NX_REGISTER_IMAGE("Btn_Switch_OFF", drawBtn_Switch_OFF);
