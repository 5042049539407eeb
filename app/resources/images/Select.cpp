// Drop-down arrow at the right of the settings page's language button (light grey).
#include "ImageRegistry.h"

#include <QPainter>
#include <QPainterPath>

namespace {

const QSize kSize(14, 8);
const QColor kColor = QColor(211, 211, 211);
const qreal kStroke = 1.8;

} // namespace

static QImage drawSelect()
{
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kColor, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath chevron;
    chevron.moveTo(2.0, 1.5);
    chevron.lineTo(7.0, 6.5);
    chevron.lineTo(12.0, 1.5);
    painter.drawPath(chevron);
    return image;
}

NX_REGISTER_IMAGE("Select", drawSelect);
