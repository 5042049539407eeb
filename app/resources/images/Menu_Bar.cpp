// The slim accent bar that marks the chosen menu entry.
#include "ImageRegistry.h"

#include <QLinearGradient>
#include <QPainter>

namespace {
constexpr int kWidth = 4;
constexpr int kHeight = 24;
constexpr qreal kRadius = 2.0;

const QColor kTop(96, 204, 236);
const QColor kBottom(32, 158, 199);

QImage drawMenu_Bar()
{
    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fill(0, 0, 0, kHeight);
    fill.setColorAt(0.0, kTop);
    fill.setColorAt(1.0, kBottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(0, 0, kWidth, kHeight), kRadius, kRadius);
    return image;
}
} // namespace

NX_REGISTER_IMAGE("Menu_Bar", drawMenu_Bar);
