// Word mark: a slanted accent mark followed by "NORVALEX" in white, fitted to 146 x 23.
#include "ImageRegistry.h"
#include "Shapes.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace {
constexpr int kWidth = 146;
constexpr int kHeight = 23;
constexpr qreal kMarkWidth = 16.0;
constexpr qreal kMarkSlant = 5.0;
constexpr qreal kGap = 6.0;
constexpr qreal kTextHeight = 15.0;
constexpr qreal kLetterSpacing = 1.5;

const QColor kText(255, 255, 255);

void drawWord(QPainter& painter)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setBold(true);
    font.setPixelSize(20);
    font.setLetterSpacing(QFont::AbsoluteSpacing, kLetterSpacing);

    QPainterPath word;
    word.addText(0, 0, font, QStringLiteral("NORVALEX"));
    const QRectF bounds = word.boundingRect();
    const QRectF target(kMarkWidth + kMarkSlant + kGap, (kHeight - kTextHeight) / 2.0,
                        kWidth - (kMarkWidth + kMarkSlant + kGap) - 1.0, kTextHeight);

    // Fit the outline exactly into the box, whatever the font's own metrics.
    QTransform fit;
    fit.translate(target.left(), target.top());
    fit.scale(target.width() / bounds.width(), target.height() / bounds.height());
    fit.translate(-bounds.left(), -bounds.top());

    painter.setPen(Qt::NoPen);
    painter.setBrush(kText);
    painter.drawPath(fit.map(word));
}

QImage drawQX_Logo()
{
    return Shapes::painted(kWidth, kHeight, [](QPainter& painter) {
        Shapes::logoMark(painter, QRectF(0, (kHeight - kTextHeight) / 2.0, kMarkWidth + kMarkSlant,
                                         kTextHeight));
        drawWord(painter);
    });
}
} // namespace

NX_REGISTER_IMAGE("QX_Logo", drawQX_Logo);
