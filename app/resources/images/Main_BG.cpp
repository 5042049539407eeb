// Frame background: a dark panel with a darker menu column on the left and a thin accent line
// under the title strip. The page area stays plain because the pages draw over it.
#include "ImageRegistry.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace {
constexpr int kWidth = 1000;
constexpr int kHeight = 600;
constexpr int kTitleHeight = 45;
constexpr int kMenuWidth = 186;

const QColor kPanelTop(40, 43, 48);
const QColor kPanelBottom(24, 26, 30);
const QColor kTitleTop(34, 37, 42);
const QColor kTitleBottom(28, 30, 35);
const QColor kMenuTop(24, 26, 30);
const QColor kMenuBottom(16, 17, 20);
const QColor kMenuEdge(255, 255, 255, 14);
const QColor kGlow(32, 158, 199, 18);
const QColor kAccent(32, 158, 199);

void drawPanel(QPainter& painter)
{
    QLinearGradient panel(0, 0, 0, kHeight);
    panel.setColorAt(0.0, kPanelTop);
    panel.setColorAt(1.0, kPanelBottom);
    painter.fillRect(QRect(0, 0, kWidth, kHeight), panel);

    // A faint cool light behind the page area, far too weak to compete with page content.
    QRadialGradient glow(QPointF(kWidth * 0.62, kHeight * 0.42), kWidth * 0.5);
    glow.setColorAt(0.0, kGlow);
    glow.setColorAt(1.0, Qt::transparent);
    painter.fillRect(QRect(kMenuWidth, kTitleHeight, kWidth - kMenuWidth, kHeight), glow);
}

void drawTitleStrip(QPainter& painter)
{
    QLinearGradient strip(0, 0, 0, kTitleHeight);
    strip.setColorAt(0.0, kTitleTop);
    strip.setColorAt(1.0, kTitleBottom);
    painter.fillRect(QRect(0, 0, kWidth, kTitleHeight), strip);
}

void drawMenuColumn(QPainter& painter)
{
    const QRect column(0, kTitleHeight, kMenuWidth, kHeight - kTitleHeight);
    QLinearGradient shade(0, column.top(), 0, column.bottom());
    shade.setColorAt(0.0, kMenuTop);
    shade.setColorAt(1.0, kMenuBottom);
    painter.fillRect(column, shade);
    painter.fillRect(QRect(kMenuWidth - 1, kTitleHeight, 1, column.height()), kMenuEdge);
}

void drawAccentLine(QPainter& painter)
{
    QLinearGradient line(0, 0, kWidth, 0);
    QColor faded = kAccent;
    faded.setAlpha(40);
    line.setColorAt(0.0, faded);
    line.setColorAt(0.25, kAccent);
    line.setColorAt(0.75, kAccent);
    line.setColorAt(1.0, faded);
    painter.fillRect(QRectF(0, kTitleHeight, kWidth, 1.0), line);

    // A soft halo just under the line.
    QLinearGradient halo(0, kTitleHeight + 1, 0, kTitleHeight + 5);
    QColor haloColor = kAccent;
    haloColor.setAlpha(45);
    halo.setColorAt(0.0, haloColor);
    halo.setColorAt(1.0, Qt::transparent);
    painter.fillRect(QRectF(0, kTitleHeight + 1, kWidth, 4), halo);
}

QImage drawMain_BG()
{
    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter);
    drawTitleStrip(painter);
    drawMenuColumn(painter);
    drawAccentLine(painter);
    painter.end();
    // Opaque: decoded without an alpha channel, and painted without blending.
    return image.convertToFormat(QImage::Format_RGB32);
}
} // namespace

NX_REGISTER_IMAGE("Main_BG", drawMain_BG);
