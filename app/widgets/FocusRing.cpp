#include "FocusRing.h"

#include <QPainter>

namespace {
constexpr int kMargin = 2;
constexpr int kPen = 2;
constexpr qreal kCorner = 4;
} // namespace

const QColor FocusRing::Accent(32, 158, 199);

FocusRing::FocusRing(QWidget* window) : QWidget(window)
{
    setObjectName(QStringLiteral("FocusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void FocusRing::surround(QWidget* target)
{
    const QRect area(target->mapTo(parentWidget(), QPoint(0, 0)), target->size());
    const int grow = kMargin + kPen;
    setGeometry(area.adjusted(-grow, -grow, grow, grow));
    raise();
    show();
    update();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Accent, kPen));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = kPen / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner,
                            kCorner);
}
