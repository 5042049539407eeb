// The slim accent bar that marks the chosen menu entry.
#include "ImageRegistry.h"
#include "Shapes.h"

namespace {
constexpr int kWidth = 4;
constexpr int kHeight = 24;
constexpr qreal kRadius = 2.0;

const QColor kTop(96, 204, 236);
const QColor kBottom(32, 158, 199);

QImage drawMenu_Bar()
{
    return Shapes::painted(kWidth, kHeight, [](QPainter& painter) {
        QLinearGradient fill(0, 0, 0, kHeight);
        fill.setColorAt(0.0, kTop);
        fill.setColorAt(1.0, kBottom);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(0, 0, kWidth, kHeight), kRadius, kRadius);
    });
}
} // namespace

NX_REGISTER_IMAGE("Menu_Bar", drawMenu_Bar);
