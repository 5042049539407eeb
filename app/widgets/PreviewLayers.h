#pragma once

#include <QPixmap>
#include <QPolygon>
#include <QRegion>

// The constant parts of the preview's picture, stroked once and kept as see-through pixmaps: the
// frame, the outline of a bar, and the rim of the two-diamond ornament. Blitting them gives the
// same pixels as stroking them on every paint (a bar's corners may differ by a level), at a
// fraction of the cost.
class PreviewLayers
{
public:
    // Columns left of a bar's x that the rim pixmap covers, and the rows it spans: the
    // ornament's outline with its 2-pixel pen and a pixel of antialiasing on every side.
    static constexpr int RimLeft = 10;
    static constexpr int RimWidth = 31;
    static constexpr int RimTop = 97;
    static constexpr int RimHeight = 57;
    // Pixels that antialiasing may touch around a bar's outline, counted generously.
    static constexpr int OutlineMargin = 2;
    // Pixels of the frame's stroke reach this far in from every edge of the preview.
    static constexpr int FrameDepth = 3;

    // The ornament's outline for the bar standing at x.
    static QPolygon ornament(int x);

    // The frame of a preview of the given size; `empty` is the frame of too many slots.
    const QPixmap& frame(const QSize& size, qreal pixelRatio, bool empty);
    // The part of a preview of the given size that the frame may cover: a band along its edges.
    static QRegion frameBand(const QSize& size);
    // The 1-pixel outline of a bar of the given size in the given colour, drawn OutlineMargin
    // pixels up and left of the bar's top-left corner.
    const QPixmap& outline(const QSize& bar, const QColor& color, qreal pixelRatio);
    // The rim of one ornament in a preview of the given size, for the bar at x = RimLeft; it
    // covers the rows RimTop to RimTop + RimHeight - 1 and is drawn there.
    const QPixmap& rim(const QSize& size, qreal pixelRatio);

private:
    static QPixmap blank(const QSize& size, qreal pixelRatio);

    QPixmap m_frame;
    QSize m_frameSize;
    qreal m_frameRatio = 0;
    bool m_frameEmpty = false;
    QPixmap m_outline;
    QSize m_outlineBar;
    QColor m_outlineColor;
    qreal m_outlineRatio = 0;
    QPixmap m_rim;
    QSize m_rimSize;
    qreal m_rimRatio = 0;
};
