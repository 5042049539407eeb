#include "RGB_Palette.h"

#include "AccessibleDisplay.h"
#include "ColorNames.h"
#include "FocusRing.h"
#include "Log.h"

#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int WheelSize = 176;
constexpr int AcceptRadius = 88; // truncated distances up to this one are inside the disc
constexpr int KeyStep = 8;       // pixels per arrow key press
constexpr int FineKeyStep = 1;   // with Shift
constexpr int CursorMark = 10;
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

    setFocusPolicy(Qt::TabFocus);
    cursorMark = new FocusRing(this);
    cursor = rect().center() + QPoint(1, 1);
    describeCursor();
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

bool RGB_Palette::moveCursor(const QPoint& point)
{
    COLORREF colour = 0;
    if (!pickColour(point, size(), &colour))
        return false;
    cursor = point;
    describeCursor();
    if (hasFocus())
        cursorMark->setGeometry(QRect(QPoint(0, 0), QSize(CursorMark, CursorMark))
                                    .translated(cursor - QPoint(CursorMark / 2, CursorMark / 2)));
    return true;
}

void RGB_Palette::describeCursor()
{
    COLORREF colour = 0;
    if (!pickColour(cursor, size(), &colour))
        return;
    const int r = colour & 0xFF;
    const int g = (colour >> 8) & 0xFF;
    const int b = (colour >> 16) & 0xFF;
    AccessibleDisplay::setValue(this, QStringLiteral("%1 (%2, %3, %4)")
                                          .arg(ColorNames::describe(QColor(r, g, b)))
                                          .arg(r)
                                          .arg(g)
                                          .arg(b));
}

void RGB_Palette::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? FineKeyStep : KeyStep;
    QPoint delta;
    switch (event->key()) {
    case Qt::Key_Left:
        delta = QPoint(-step, 0);
        break;
    case Qt::Key_Right:
        delta = QPoint(step, 0);
        break;
    case Qt::Key_Up:
        delta = QPoint(0, -step);
        break;
    case Qt::Key_Down:
        delta = QPoint(0, step);
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        COLORREF colour = 0;
        if (pickColour(cursor, size(), &colour))
            emit pressRGB(colour);
        event->accept();
        return;
    }
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    // At the rim the cursor stays where it is.
    moveCursor(cursor + delta);
    showCursor();
    event->accept();
}

void RGB_Palette::showCursor()
{
    if (!hasFocus())
        return;
    moveCursor(cursor);
    cursorMark->raise();
    cursorMark->show();
}

void RGB_Palette::focusInEvent(QFocusEvent* event)
{
    // Focus given for a mouse click shows no cursor until an arrow key is pressed.
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason)
        showCursor();
    QWidget::focusInEvent(event);
}

void RGB_Palette::focusOutEvent(QFocusEvent* event)
{
    cursorMark->hide();
    QWidget::focusOutEvent(event);
}

void RGB_Palette::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        describeCursor();
    QWidget::changeEvent(event);
}
