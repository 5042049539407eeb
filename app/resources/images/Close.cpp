// Window close button: a light grey X.
#include "ImageRegistry.h"

#include <QPainter>

namespace {
constexpr int kSize = 15;
constexpr qreal kInset = 2.5;
constexpr qreal kStroke = 1.6;
const QColor kColor(205, 208, 212);

QImage drawClose()
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kColor, kStroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(kInset, kInset), QPointF(kSize - kInset, kSize - kInset));
    painter.drawLine(QPointF(kSize - kInset, kInset), QPointF(kInset, kSize - kInset));
    return image;
}
} // namespace

NX_REGISTER_IMAGE("Close", drawClose);
