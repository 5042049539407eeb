#include "StripPainter.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>

namespace {

constexpr int kMargin = 10;
constexpr int kModuleWidth = 22;
constexpr int kModuleGap = 10;
constexpr int kLedPitch = 16;
constexpr int kLedRadius = 5;
constexpr int kGlowRadius = 11;
const QColor kBackground(16, 16, 20);
const QColor kModuleBody(42, 45, 51);
const QColor kDarkLed(28, 29, 32);

QColor toQColor(nxfx::Color c)
{
    return QColor(nxfx::red(c), nxfx::green(c), nxfx::blue(c));
}

void drawModule(QPainter& painter, const QRect& body)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(kModuleBody);
    painter.drawRoundedRect(body, 4, 4);
}

void drawLed(QPainter& painter, const QPoint& centre, nxfx::Color color)
{
    const QColor light = toQColor(color);
    if (color != 0) {
        QRadialGradient glow(centre, kGlowRadius);
        QColor halo = light;
        halo.setAlpha(110);
        glow.setColorAt(0.0, halo);
        halo.setAlpha(0);
        glow.setColorAt(1.0, halo);
        painter.setBrush(glow);
        painter.drawEllipse(centre, kGlowRadius, kGlowRadius);
    }
    // A dim LED never looks darker than one that is off.
    painter.setBrush(QColor(std::max(light.red(), kDarkLed.red()),
                            std::max(light.green(), kDarkLed.green()),
                            std::max(light.blue(), kDarkLed.blue())));
    painter.drawEllipse(centre, kLedRadius, kLedRadius);
}

} // namespace

QSize StripPainter::frameSize() const
{
    return QSize(2 * kMargin + modules_ * kModuleWidth + (modules_ - 1) * kModuleGap,
                 2 * kMargin + leds_ * kLedPitch + 8);
}

QImage StripPainter::paint(const std::vector<nxfx::Color>& colors) const
{
    QImage image(frameSize(), QImage::Format_RGB32);
    image.fill(kBackground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int m = 0; m < modules_; ++m) {
        const int left = kMargin + m * (kModuleWidth + kModuleGap);
        drawModule(painter, QRect(left, kMargin, kModuleWidth, leds_ * kLedPitch + 8));
        for (int led = 0; led < leds_; ++led) {
            const QPoint centre(left + kModuleWidth / 2,
                                kMargin + 4 + led * kLedPitch + kLedPitch / 2);
            drawLed(painter, centre, colors[std::size_t(m * leds_ + led)]);
        }
    }
    return image;
}
