#include "PreviewLayers.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

const QColor FrameTopColor(255, 255, 255, 50);
const QColor FrameBottomColor(255, 255, 255, 10);
const QPointF FrameGradientEnd(129, 252);
constexpr qreal FramePenWidth = 2.0;

const QColor OrnamentRimTop(80, 80, 80);
const QColor OrnamentRimBottom(0, 0, 0, 150);
constexpr int OrnamentRimTopY = -53;
constexpr qreal OrnamentPenWidth = 2.0;

} // namespace

QPolygon PreviewLayers::ornament(int x)
{
    return QPolygon({QPoint(x + 5, 125), QPoint(x - 1, 100), QPoint(x - 8, 125), QPoint(x - 1, 150),
                     QPoint(x + 5, 125), QPoint(x + 11, 100), QPoint(x + 18, 125),
                     QPoint(x + 11, 150)});
}

QRegion PreviewLayers::frameBand(const QSize& size)
{
    const QRect all(QPoint(0, 0), size);
    return QRegion(all) - QRegion(all.adjusted(FrameDepth, FrameDepth, -FrameDepth, -FrameDepth));
}

QPixmap PreviewLayers::blank(const QSize& size, qreal pixelRatio)
{
    QPixmap pixmap(size * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

const QPixmap& PreviewLayers::frame(const QSize& size, qreal pixelRatio, bool empty)
{
    if (m_frameSize == size && qFuzzyCompare(m_frameRatio, pixelRatio) && m_frameEmpty == empty)
        return m_frame;
    m_frameSize = size;
    m_frameRatio = pixelRatio;
    m_frameEmpty = empty;
    m_frame = blank(size, pixelRatio);

    QPainter painter(&m_frame);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient rim(QPointF(0, 0), FrameGradientEnd);
    rim.setColorAt(0.0, FrameTopColor);
    rim.setColorAt(1.0, FrameBottomColor);
    painter.setPen(QPen(QBrush(rim), FramePenWidth, Qt::SolidLine));
    painter.setBrush(QColor(255, 255, 0, 0));
    painter.drawRect(empty ? QRect() : QRect(0, 0, size.width() - 2, size.height() - 2));
    return m_frame;
}

const QPixmap& PreviewLayers::outline(const QSize& bar, const QColor& color, qreal pixelRatio)
{
    if (m_outlineBar == bar && m_outlineColor == color && qFuzzyCompare(m_outlineRatio, pixelRatio))
        return m_outline;
    m_outlineBar = bar;
    m_outlineColor = color;
    m_outlineRatio = pixelRatio;
    // A whole-pixel shift leaves antialiasing's coverage as it is: blitting this over a bar
    // blends the same pixels as stroking the bar's rectangle, but for the corners, where the
    // two edges' blends round once instead of twice (a level at most).
    m_outline = blank(bar + QSize(2 * OutlineMargin, 2 * OutlineMargin), pixelRatio);
    QPainter painter(&m_outline);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRect(QPoint(OutlineMargin, OutlineMargin), bar));
    return m_outline;
}

const QPixmap& PreviewLayers::rim(const QSize& size, qreal pixelRatio)
{
    if (m_rimSize == size && qFuzzyCompare(m_rimRatio, pixelRatio))
        return m_rim;
    m_rimSize = size;
    m_rimRatio = pixelRatio;
    // Stroked in the preview's own coordinates (the gradient's rounding depends on them), then
    // cut down to the rows it covers. The gradient runs straight down, so it is the same for
    // every column.
    QPixmap whole = blank(QSize(RimWidth, size.height()), pixelRatio);
    {
        QPainter painter(&whole);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient rim(QPointF(size.width() / 2, OrnamentRimTopY),
                            QPointF(size.width() / 2, size.height()));
        rim.setColorAt(0.0, OrnamentRimTop);
        rim.setColorAt(1.0, OrnamentRimBottom);
        painter.setPen(QPen(QBrush(rim), OrnamentPenWidth, Qt::SolidLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(ornament(RimLeft), Qt::OddEvenFill);
    }
    m_rim =
        whole.copy(QRectF(QPointF(0, RimTop) * pixelRatio, QSizeF(RimWidth, RimHeight) * pixelRatio)
                       .toAlignedRect());
    m_rim.setDevicePixelRatio(pixelRatio);
    return m_rim;
}
