#include "Widget_Select_Palette.h"

#include <QDebug>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int PanelSize = 200;
constexpr int WheelSize = 176;
constexpr int AcceptRadius = 88; // truncated distances up to this one are inside the disc
const QString WheelPicture = QStringLiteral(":/QXRGBMemory/Images/palette.png");
const QColor PanelColor(40, 40, 40, 245);
const QColor PanelBorderColor(20, 20, 20);

} // namespace

Widget_Select_Palette::Widget_Select_Palette(QWidget* parent) : QWidget(parent)
{
    // Lets queued connections and signal spies carry the colour by its own name.
    qRegisterMetaType<COLORREF>("COLORREF");
    setGeometry(0, 0, PanelSize, PanelSize);
    setFocusPolicy(Qt::ClickFocus);
    label_Palette = new QLabel(this);
    label_Palette->setGeometry((PanelSize - WheelSize) / 2, (PanelSize - WheelSize) / 2, WheelSize,
                               WheelSize);
    label_Palette->setStyleSheet(
        QStringLiteral("QLabel{border-image: url(:/QXRGBMemory/Images/palette.png);}"));
}

Widget_Select_Palette::~Widget_Select_Palette() = default;

void Widget_Select_Palette::mousePressEvent(QMouseEvent* event)
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
    // Picture coordinates: the wheel is centred in the panel. The accepting disc reaches one
    // pixel beyond the picture; such clicks take the rim pixel.
    const int px = x - (width() - WheelSize) / 2;
    const int py = y - (height() - WheelSize) / 2;
    const QRgb pixel =
        wheel.pixel(std::clamp(px, 0, wheel.width() - 1), std::clamp(py, 0, wheel.height() - 1));
    const COLORREF color =
        COLORREF(qRed(pixel)) | COLORREF(qGreen(pixel)) << 8 | COLORREF(qBlue(pixel)) << 16;
    qDebug() << "弹出色盘取色:" << qRed(pixel) << qGreen(pixel) << qBlue(pixel);
    emit pressRGB(color);
}

void Widget_Select_Palette::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(PanelColor);
    painter.setPen(QPen(PanelBorderColor, 1, Qt::SolidLine));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

void Widget_Select_Palette::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Closing on focus loss needs the panel to hold the focus while it is open.
    setFocus(Qt::PopupFocusReason);
}

void Widget_Select_Palette::focusOutEvent(QFocusEvent* event)
{
    qDebug() << "Widget_Select_Palette::focusOutEvent";
    QWidget::focusOutEvent(event);
    if (isVisible())
        hide();
}
