#include "RGB_Palette.h"

#include <QDebug>
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

void RGB_Palette::mousePressEvent(QMouseEvent* event)
{
    const int x = event->pos().x();
    const int y = event->pos().y();
    qDebug() << "RGB_Palette::mousePressEvent" << x << y;

    const int cx = width() / 2;
    const int cy = height() / 2;
    const double distance = std::sqrt(double(x - cx) * (x - cx) + double(y - cy) * (y - cy));
    if (int(distance) > AcceptRadius)
        return;

    const QImage wheel(WheelPicture);
    if (wheel.isNull())
        return;
    // The accepting disc reaches one pixel beyond the picture; such clicks take the rim pixel.
    const QRgb pixel =
        wheel.pixel(std::clamp(x, 0, wheel.width() - 1), std::clamp(y, 0, wheel.height() - 1));
    const COLORREF color =
        COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
    qDebug() << "取色:" << qRed(pixel) << qGreen(pixel) << qBlue(pixel);
    emit pressRGB(color);
}
