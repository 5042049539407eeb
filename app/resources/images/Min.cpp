// Window minimise button: a light grey dash.
#include "ImageRegistry.h"
#include "Shapes.h"

namespace {
constexpr int kWidth = 18;
constexpr int kHeight = 15;
constexpr qreal kInset = 3.0;

QImage drawMin()
{
    return Shapes::painted(kWidth, kHeight, [](QPainter& painter) {
        painter.setPen(Shapes::windowGlyphPen());
        const qreal y = kHeight / 2.0;
        painter.drawLine(QPointF(kInset, y), QPointF(kWidth - kInset, y));
    });
}
} // namespace

NX_REGISTER_IMAGE("Min", drawMin);
