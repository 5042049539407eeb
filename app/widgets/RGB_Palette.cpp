#include "RGB_Palette.h"

#include "Log.h"

#include <QImage>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int WheelSize = 176;
constexpr int AcceptRadius = 88; // truncated distances up to this one are inside the disc
const QString WheelPicture = QStringLiteral(":/QXRGBMemory/Images/palette.png");

} // namespace

RGB_Palette::RGB_Palette(QWidget* parent) : QWidget(parent)
{
    // Lets queued connections and signal spies carry the colour by its own name.
    qRegisterMetaType<COLORREF>("COLORREF");
    setGeometry(0, 0, WheelSize, WheelSize);
    label_Palette = new QLabel(this);
    label_Palette->setGeometry(0, 0, WheelSize, WheelSize);
    label_Palette->setStyleSheet(
        QStringLiteral("border-image: url(:/QXRGBMemory/Images/palette.png);"));
}

RGB_Palette::~RGB_Palette() = default;

bool RGB_Palette::pickColour(const QPoint& click, const QSize& widgetSize, COLORREF* colour)
{
    const int cx = widgetSize.width() / 2;
    const int cy = widgetSize.height() / 2;
    const double dx = click.x() - cx;
    const double dy = click.y() - cy;
    if (int(std::sqrt(dx * dx + dy * dy)) > AcceptRadius)
        return false;
    const QImage wheel(WheelPicture);
    if (wheel.isNull())
        return false;
    // The accepting disc reaches one pixel beyond the picture; such clicks take the rim pixel.
    const int px = click.x() - (widgetSize.width() - WheelSize) / 2;
    const int py = click.y() - (widgetSize.height() - WheelSize) / 2;
    const QRgb pixel =
        wheel.pixel(std::clamp(px, 0, wheel.width() - 1), std::clamp(py, 0, wheel.height() - 1));
    *colour = COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
    return true;
}

void RGB_Palette::mousePressEvent(QMouseEvent* event)
{
    qCDebug(lcPanel) << "RGB_Palette::mousePressEvent" << event->pos().x() << event->pos().y();
    COLORREF colour = 0;
    if (!pickColour(event->pos(), size(), &colour))
        return;
    qCDebug(lcPanel) << "取色:" << (colour & 0xFF) << ((colour >> 8) & 0xFF)
                     << ((colour >> 16) & 0xFF);
    emit pressRGB(colour);
}
