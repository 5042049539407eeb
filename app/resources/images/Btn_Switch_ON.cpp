// Knob of a switch that is on: a glowing accent-blue ball with a soft highlight.
#include "ImageRegistry.h"
#include "Shapes.h"

static QImage drawBtn_Switch_ON()
{
    Shapes::KnobLook look;
    look.halo = QColor(32, 158, 199, 150);
    look.haloStop = 0.55;
    look.ball = 7.0;
    look.light = QColor(120, 214, 240);
    look.mid = QColor(32, 158, 199);
    look.dark = QColor(14, 104, 136);
    look.midStop = 0.45;
    look.lightFrom = QPointF(-2.2, -2.6);
    look.spread = 1.6;
    look.outline = QPen(QColor(10, 80, 104, 200), 0.8);
    look.shineAt = QPointF(-2.0, -3.0);
    look.shine = 3.2;
    look.shineAlpha = 170;
    return Shapes::knob(look);
}

NX_REGISTER_IMAGE("Btn_Switch_ON", drawBtn_Switch_ON);
