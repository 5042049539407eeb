// Window minimise button: a light grey dash.
#include "ImageRegistry.h"

#include <QPainter>

namespace {
constexpr int kWidth = 18;
constexpr int kHeight = 15;
constexpr qreal kInset = 3.0;
constexpr qreal kStroke = 1.6;
const QColor kColor(205, 208, 212);

QImage drawMin()
{
    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kColor, kStroke, Qt::SolidLine, Qt::RoundCap));
    const qreal y = kHeight / 2.0;
    painter.drawLine(QPointF(kInset, y), QPointF(kWidth - kInset, y));
    return image;
}
} // namespace

NX_REGISTER_IMAGE("Min", drawMin);
