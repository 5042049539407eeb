#include "Widget_Preview.h"

#include "AccessibleDisplay.h"
#include "ColorNames.h"
#include "Log.h"

#include <QLinearGradient>
#include <QMetaObject>
#include <QMutexLocker>
#include <QPainter>
#include <QPolygon>
#include <QThread>

#include <algorithm>
#include <cstring>

namespace {

constexpr int NarrowMargin = 87; // up to four bars, centred
constexpr int WideMargin = 17;   // five to eight bars
constexpr int ColumnPitch = 25;
constexpr int GroupGap = 35; // extra space after every fourth column
constexpr int ColumnsPerGroup = 4;

constexpr int BarTop = 5;
constexpr int BarWidth = 10;
constexpr int BarHeight = 240;
constexpr int BarGradientBottom = 240;
constexpr double FirstStop = 0.1;
const QColor EmptyBarColor(80, 80, 80);

const QColor FrameTopColor(255, 255, 255, 50);
const QColor FrameBottomColor(255, 255, 255, 10);
const QPointF FrameGradientEnd(129, 252);
constexpr qreal FramePenWidth = 2.0;

// The ornament of an 8-LED module shows its LEDs 3 and 4 as two diamonds over the bar's middle.
constexpr int OrnamentLedA = 3;
constexpr int OrnamentLedB = 4;
constexpr int OrnamentTop = 100;
constexpr int OrnamentBottom = 150;
constexpr qreal OrnamentStopA = 0.3;
constexpr qreal OrnamentStopB = 0.6;
const QColor OrnamentRimTop(80, 80, 80);
const QColor OrnamentRimBottom(0, 0, 0, 150);
constexpr int OrnamentRimTopY = -53;
constexpr qreal OrnamentPenWidth = 2.0;

QColor toColor(COLORREF color)
{
    return QColor(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF), 255);
}

int leftMargin(int slotCount)
{
    if (slotCount <= 4)
        return NarrowMargin;
    if (slotCount <= 8)
        return WideMargin;
    return 0;
}

} // namespace

Widget_Preview::Widget_Preview(QWidget* parent) : QWidget(parent)
{
    AccessibleDisplay::expose(this, QAccessible::Graphic);
}

Widget_Preview::~Widget_Preview() = default;

void Widget_Preview::setSlotNum(int n)
{
    slotNum = n;
}

void Widget_Preview::setModuleNum(int n)
{
    moduleNum = n;
}

void Widget_Preview::setLEDNum(int count, const int* leds)
{
    for (int i = 0; i < std::min(count, MaxSlots); ++i)
        ledNum[i] = leds[i];
}

void Widget_Preview::setSlotsOrder(int count, const int* order)
{
    for (int i = 0; i < std::min(count, MaxSlots); ++i) {
        slotIndex[i] = order[i];
        qCDebug(lcPanel) << "slotIndex[" << i << "]:" << slotIndex[i];
    }
}

int Widget_Preview::barX(int column, int slotCount)
{
    return column * ColumnPitch + (column / ColumnsPerGroup) * GroupGap + leftMargin(slotCount);
}

QGradientStops Widget_Preview::gradientStops(const COLORREF* colors, int ledCount)
{
    QGradientStops stops;
    const float step = 1.0f / float(std::max(ledCount, 1));
    const int leds = std::min(ledCount, MaxLeds);
    for (int k = 0; k < leds; ++k) {
        if (ledCount == 8 && (k == OrnamentLedA || k == OrnamentLedB))
            continue;
        const float position = float(double(float(k) * step) + FirstStop);
        stops.append({qreal(position), toColor(colors[k])});
    }
    return stops;
}

void Widget_Preview::updatePreviewList(QList<COLORREF*> list)
{
    bool changed = false;
    {
        QMutexLocker locker(&colorMutex);
        const int entries = std::min(int(list.size()), MaxSlots);
        for (int i = 0; i < entries; ++i) {
            const COLORREF* source = list.at(i);
            if (!source)
                continue;
            for (int k = 0; k < MaxLeds; ++k) {
                if (previewColor[i][k] != source[k]) {
                    changed = true;
                    previewColor[i][k] = source[k];
                }
            }
        }
    }
    // Unchanged frames arrive often and cost no drawing.
    if (!changed)
        return;
    if (QThread::currentThread() == thread())
        update();
    else
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
}

QString Widget_Preview::accessibleValue() const
{
    COLORREF colors[MaxSlots][MaxLeds];
    {
        QMutexLocker locker(&colorMutex);
        std::memcpy(colors, previewColor, sizeof colors);
    }
    QStringList bars;
    const int shown = std::min(slotNum, MaxSlots);
    for (int i = 0; i < shown; ++i) {
        const QString slot = tr("Slot %1").arg(slotIndex[i] + 1);
        if (i >= moduleNum) {
            bars << tr("%1: empty").arg(slot);
            continue;
        }
        // Neighbouring LEDs of one colour are named once.
        QStringList names;
        for (int k = 0; k < std::min(std::max(ledNum[i], 1), MaxLeds); ++k) {
            const QString name = ColorNames::describe(toColor(colors[i][k]));
            if (names.isEmpty() || names.last() != name)
                names << name;
        }
        bars << QStringLiteral("%1: %2").arg(slot, names.join(QStringLiteral(", ")));
    }
    return bars.join(QStringLiteral("; "));
}

void Widget_Preview::paintEvent(QPaintEvent* /*event*/)
{
    COLORREF colors[MaxSlots][MaxLeds];
    {
        QMutexLocker locker(&colorMutex);
        std::memcpy(colors, previewColor, sizeof colors);
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, slotNum);
    qCDebug(lcPanel) << "updateSlotNum:" << slotNum << moduleNum;

    const int bars = std::min(slotNum, MaxSlots);
    for (int i = 0; i < bars; ++i) {
        const int x = barX(slotIndex[i], slotNum);
        drawBar(painter, i, x, colors[i]);
        if (i < moduleNum && ledNum[i] == 8)
            drawOrnament(painter, x, colors[i]);
    }
}

void Widget_Preview::drawFrame(QPainter& painter, int slotCount) const
{
    QLinearGradient rim(QPointF(0, 0), FrameGradientEnd);
    rim.setColorAt(0.0, FrameTopColor);
    rim.setColorAt(1.0, FrameBottomColor);
    painter.setPen(QPen(QBrush(rim), FramePenWidth, Qt::SolidLine));
    painter.setBrush(QColor(255, 255, 0, 0));
    const QRect frame = slotCount > MaxSlots ? QRect() : QRect(0, 0, width() - 2, height() - 2);
    painter.drawRect(frame);
}

void Widget_Preview::drawBar(QPainter& painter, int entry, int x, const COLORREF* colors) const
{
    if (entry < moduleNum) {
        qCDebug(lcPanel) << "ledNum[" << entry << "] = " << std::max(ledNum[entry], 1);
        QLinearGradient fill(QPointF(0, BarTop), QPointF(0, BarGradientBottom));
        const QGradientStops stops = gradientStops(colors, ledNum[entry]);
        if (!stops.isEmpty())
            fill.setStops(stops);
        painter.setPen(EmptyBarColor);
        painter.setBrush(fill);
    } else {
        painter.setPen(EmptyBarColor);
        painter.setBrush(EmptyBarColor);
    }
    painter.drawRect(x, BarTop, BarWidth, BarHeight);
}

void Widget_Preview::drawOrnament(QPainter& painter, int x, const COLORREF* colors) const
{
    const QPolygon diamonds({QPoint(x + 5, 125), QPoint(x - 1, 100), QPoint(x - 8, 125),
                             QPoint(x - 1, 150), QPoint(x + 5, 125), QPoint(x + 11, 100),
                             QPoint(x + 18, 125), QPoint(x + 11, 150)});
    QLinearGradient fill(QPointF(0, OrnamentTop), QPointF(0, OrnamentBottom));
    fill.setColorAt(OrnamentStopA, toColor(colors[OrnamentLedA]));
    fill.setColorAt(OrnamentStopB, toColor(colors[OrnamentLedB]));
    QLinearGradient rim(QPointF(width() / 2, OrnamentRimTopY), QPointF(width() / 2, height()));
    rim.setColorAt(0.0, OrnamentRimTop);
    rim.setColorAt(1.0, OrnamentRimBottom);
    painter.setPen(QPen(QBrush(rim), OrnamentPenWidth, Qt::SolidLine));
    painter.setBrush(fill);
    painter.drawPolygon(diamonds, Qt::OddEvenFill);
}
