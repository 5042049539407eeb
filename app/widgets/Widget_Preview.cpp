#include "Widget_Preview.h"

#include "AccessibleDisplay.h"
#include "ColorNames.h"
#include "Log.h"
#include "PreviewDemand.h"

#include <QLinearGradient>
#include <QMetaObject>
#include <QMutexLocker>
#include <QPaintEvent>
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

// The ornament of an 8-LED module shows its LEDs 3 and 4 as two diamonds over the bar's middle.
constexpr int OrnamentLedA = 3;
constexpr int OrnamentLedB = 4;
constexpr int OrnamentTop = 100;
constexpr int OrnamentBottom = 150;
constexpr qreal OrnamentStopA = 0.3;
constexpr qreal OrnamentStopB = 0.6;
constexpr int OutlineMargin = PreviewLayers::OutlineMargin;

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

Widget_Preview::~Widget_Preview()
{
    PreviewDemand::instance().setShown(this, false);
}

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
    bool firstChange = false;
    {
        QMutexLocker locker(&colorMutex);
        const unsigned before = changedEntries;
        const int entries = std::min(int(list.size()), MaxSlots);
        for (int i = 0; i < entries; ++i) {
            const COLORREF* source = list.at(i);
            if (!source)
                continue;
            for (int k = 0; k < MaxLeds; ++k) {
                if (previewColor[i][k] != source[k]) {
                    changedEntries |= 1u << i;
                    previewColor[i][k] = source[k];
                }
            }
        }
        firstChange = before == 0 && changedEntries != 0;
    }
    // Unchanged frames arrive often and cost no drawing; changes waiting for the GUI thread
    // have their repaint asked for already.
    if (!firstChange)
        return;
    if (QThread::currentThread() == thread())
        updateChangedBars();
    else
        QMetaObject::invokeMethod(this, &Widget_Preview::updateChangedBars, Qt::QueuedConnection);
}

QRegion Widget_Preview::barArea(int entry, int x) const
{
    QRegion area(QRect(x, BarTop, BarWidth, BarHeight)
                     .adjusted(-OutlineMargin, -OutlineMargin, OutlineMargin, OutlineMargin));
    if (entry < moduleNum && ledNum[entry] == 8)
        area += QRect(x - PreviewLayers::RimLeft, PreviewLayers::RimTop, PreviewLayers::RimWidth,
                      PreviewLayers::RimHeight);
    return area;
}

void Widget_Preview::updateChangedBars()
{
    unsigned changed = 0;
    {
        QMutexLocker locker(&colorMutex);
        std::swap(changed, changedEntries);
    }
    // Only the changed bars go to the screen, and only the page under them is redrawn. The
    // bars of empty slots are grey whatever colours arrive for them.
    QRegion region;
    const int bars = std::min({slotNum, moduleNum, int(MaxSlots)});
    for (int i = 0; i < bars; ++i) {
        if (changed & (1u << i))
            region += barArea(i, barX(slotIndex[i], slotNum));
    }
    // Painted at once: a frame arrives as an event of its own, so there is nothing to merge with,
    // and a posted update would cost the event loop another turn.
    if (!region.isEmpty())
        repaint(region);
}

void Widget_Preview::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    PreviewDemand::instance().setShown(this, true);
}

void Widget_Preview::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    PreviewDemand::instance().setShown(this, false);
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

void Widget_Preview::paintEvent(QPaintEvent* event)
{
    COLORREF colors[MaxSlots][MaxLeds];
    {
        QMutexLocker locker(&colorMutex);
        std::memcpy(colors, previewColor, sizeof colors);
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, event->region(), slotNum);
    qCDebug(lcPanel) << "updateSlotNum:" << slotNum << moduleNum;

    const int bars = std::min(slotNum, MaxSlots);
    for (int i = 0; i < bars; ++i) {
        const int x = barX(slotIndex[i], slotNum);
        // Bars outside the repainted region would be clipped away entirely.
        if (!event->region().intersects(barArea(i, x)))
            continue;
        drawBar(painter, i, x, colors[i]);
        if (i < moduleNum && ledNum[i] == 8)
            drawOrnament(painter, x, colors[i]);
    }
}

void Widget_Preview::drawFrame(QPainter& painter, const QRegion& exposed, int slotCount)
{
    // Inside its band the frame is fully transparent: a repaint of bars alone skips it.
    const QRegion touched = exposed & PreviewLayers::frameBand(size());
    if (touched.isEmpty())
        return;
    const QPixmap& frame = layers.frame(size(), devicePixelRatioF(), slotCount > MaxSlots);
    for (const QRect& part : touched)
        painter.drawPixmap(part, frame,
                           QRectF(part.topLeft() * frame.devicePixelRatio(),
                                  part.size() * frame.devicePixelRatio()));
}

void Widget_Preview::drawBar(QPainter& painter, int entry, int x, const COLORREF* colors)
{
    // The rectangle lies on whole pixels: filled without antialiasing it covers the same pixels,
    // at a fraction of the cost. The outline, the same for every bar, is blitted over it.
    const QRect bar(x, BarTop, BarWidth, BarHeight);
    if (entry < moduleNum) {
        qCDebug(lcPanel) << "ledNum[" << entry << "] = " << std::max(ledNum[entry], 1);
        QLinearGradient fill(QPointF(0, BarTop), QPointF(0, BarGradientBottom));
        const QGradientStops stops = gradientStops(colors, ledNum[entry]);
        if (!stops.isEmpty())
            fill.setStops(stops);
        painter.fillRect(bar, fill);
    } else {
        painter.fillRect(bar, EmptyBarColor);
    }
    painter.drawPixmap(x - OutlineMargin, BarTop - OutlineMargin,
                       layers.outline(bar.size(), EmptyBarColor, devicePixelRatioF()));
}

void Widget_Preview::drawOrnament(QPainter& painter, int x, const COLORREF* colors)
{
    QLinearGradient fill(QPointF(0, OrnamentTop), QPointF(0, OrnamentBottom));
    fill.setColorAt(OrnamentStopA, toColor(colors[OrnamentLedA]));
    fill.setColorAt(OrnamentStopB, toColor(colors[OrnamentLedB]));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(PreviewLayers::ornament(x), Qt::OddEvenFill);
    painter.drawPixmap(x - PreviewLayers::RimLeft, PreviewLayers::RimTop,
                       layers.rim(size(), devicePixelRatioF()));
}
