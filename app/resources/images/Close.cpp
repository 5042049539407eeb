// Window close button: a light grey X.
#include "ImageRegistry.h"
#include "Shapes.h"

namespace {
constexpr int kSize = 15;
constexpr qreal kInset = 2.5;

QImage drawClose()
{
    return Shapes::painted(kSize, kSize, [](QPainter& painter) {
        painter.setPen(Shapes::windowGlyphPen());
        painter.drawLine(QPointF(kInset, kInset), QPointF(kSize - kInset, kSize - kInset));
        painter.drawLine(QPointF(kSize - kInset, kInset), QPointF(kInset, kSize - kInset));
    });
}
} // namespace

NX_REGISTER_IMAGE("Close", drawClose);
