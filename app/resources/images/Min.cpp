// Window minimise button: a light grey dash.
#include "ImageRegistry.h"
#include "Shapes.h"

namespace {
constexpr int kWidth = 18;
constexpr int kHeight = 15;
constexpr qreal kInset = 3.0;
constexpr qreal kStroke = 1.6;
const QColor kColor(205, 208, 212);

QImage drawMin()
{
    return Shapes::painted(kWidth, kHeight, [](QPainter& painter) {
        painter.setPen(QPen(kColor, kStroke, Qt::SolidLine, Qt::RoundCap));
        const qreal y = kHeight / 2.0;
        painter.drawLine(QPointF(kInset, y), QPointF(kWidth - kInset, y));
    });
}
} // namespace

NX_REGISTER_IMAGE("Min", drawMin);
