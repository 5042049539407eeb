// Drop-down arrow of the settings page's language button under the pointer (accent blue).
#include "ImageRegistry.h"

#include <QPainter>
#include <QPainterPath>

namespace {

const QSize kSize(14, 8);
const QColor kColor = QColor(32, 158, 199);
const qreal kStroke = 1.8;

} // namespace

static QImage drawSelect_h()
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

NX_REGISTER_IMAGE("Select_h", drawSelect_h);
