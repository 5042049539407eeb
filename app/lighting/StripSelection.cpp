#include "StripSelection.h"

#include "LedAreaSelection.h"
#include "LightModeTable.h"
#include "LightingLook.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "SlotLayout.h"

#include <QPainter>
#include <QPolygon>
#include <QPushButton>

#include <algorithm>

using namespace LightingLook;

StripSelection::StripSelection(const PageState& state, const SlotLayout& slotLayout)
    : s(state), layout(slotLayout)
{
}

void StripSelection::press(const QPoint& pos)
{
    if (LedAreaSelection::startsBand(pos)) {
        s.dragging = true;
        s.startX = pos.x() - s.band->x();
        s.startY = pos.y() - s.band->y();
    }
    if (LedAreaSelection::clearsSelection(pos)) {
        for (QPushButton* row : s.rows)
            row->setChecked(false);
        for (Memory_RGB_View* strip : s.strips) {
            for (QPushButton* led : strip->btn_Led) {
                led->setChecked(false);
                strip->slot_SelectLED();
            }
        }
    }
}

void StripSelection::drag(const QPoint& pos)
{
    if (!s.dragging)
        return;
    s.band->show();
    s.band->raise();
    const QPoint held = LedAreaSelection::clampToArea(pos);
    const QPoint end = LedAreaSelection::clampDragEnd(held - s.band->pos());
    s.endX = end.x();
    s.endY = end.y();
    qCDebug(lcPanel) << "posX:" << pos.x() << ", posY:" << pos.y();
    qCDebug(lcPanel) << "palette_draw_rect->pos().x():" << s.band->pos().x()
                     << ", palette_draw_rect->pos().y():" << s.band->pos().y();
    qCDebug(lcPanel) << "allselect_end_x : " << s.endX << ", allselect_end_y : " << s.endY;
    s.band->setRect(s.startX, s.startY, s.endX - s.startX, s.endY - s.startY);
}

void StripSelection::release(const QPoint& pos)
{
    if (!s.band->isHidden())
        s.band->hide();
    if (s.dragging)
        selectInBand(pos);
    s.dragging = false;
    s.startX = pos.x() - s.band->x();
    s.startY = pos.y() - s.band->y();
}

void StripSelection::selectInBand(const QPoint& releasePos)
{
    const QPoint end = LedAreaSelection::clampToArea(releasePos) - s.band->pos();
    s.endX = end.x();
    s.endY = end.y();
    const QPoint start(s.startX, s.startY);
    const LedAreaSelection::Direction direction = LedAreaSelection::direction(start, end);
    qCDebug(lcPanel) << "Lighting_View::selectLedsInBand direction" << direction;

    // Band coordinates are page coordinates: the band widget stands at the page's origin.
    const QPoint bandOrigin = s.band->pos();
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = s.strips[i];
        if (!strip->available)
            continue;
        for (int led = 0; led < Memory_RGB_View::LedCount; ++led) {
            QPushButton* button = strip->btn_Led[led];
            const QPoint corner = layout.ledCorner(i, led) - bandOrigin;
            if (button->isChecked() || !LedAreaSelection::contains(direction, start, end, corner))
                continue;
            button->setChecked(true);
            if (s.modules[i].colorMode == LightModeTable::ColorSingle ||
                s.modules[i].colorMode == LightModeTable::ColorOff) {
                for (QPushButton* other : strip->btn_Led)
                    other->setChecked(true);
            }
            strip->slot_SelectLED();
        }
    }
}

void StripSelection::selectRow(int row, bool checked)
{
    for (Memory_RGB_View* strip : s.strips) {
        if (!strip->available)
            continue;
        if (strip->colorMode == LightModeTable::ColorSingle ||
            strip->colorMode == LightModeTable::ColorOff ||
            strip->colorMode == LightModeTable::ColorRandom) {
            for (QPushButton* led : strip->btn_Led)
                led->setChecked(checked);
        } else {
            strip->btn_Led[row]->setChecked(checked);
        }
        strip->slot_SelectLED();
    }
}

void StripSelection::updateRowButtons()
{
    for (int row = 0; row < LedRows; ++row) {
        int strips = 0;
        bool allChecked = true;
        for (const Memory_RGB_View* strip : s.strips) {
            if (strip->isHidden() || !strip->available)
                continue;
            ++strips;
            allChecked = allChecked && strip->btn_Led[row]->isChecked();
        }
        s.rows[row]->setChecked(strips > 0 && allChecked);
    }
}

void StripSelection::rebuildOutline()
{
    QVector<QRect> boxes;
    for (int i = 0; i < SlotCount; ++i) {
        const Memory_RGB_View* strip = s.strips[i];
        if (strip->btn_MemorySlot->isChecked() && !strip->isHidden())
            boxes.append(layout.stripRect(i).adjusted(-kSelectPadX, -kSelectPadTop, kSelectPadX,
                                                      kSelectPadBottom));
    }
    s.outline.clear();
    if (boxes.isEmpty())
        return;
    std::sort(boxes.begin(), boxes.end(),
              [](const QRect& a, const QRect& b) { return a.left() < b.left(); });
    int base = 0;
    for (const QRect& box : boxes)
        base = std::max(base, box.bottom());
    for (const QRect& box : boxes) {
        s.outline << QPoint(box.left(), base) << box.topLeft() << box.topRight()
                  << QPoint(box.right(), base);
    }
}

void StripSelection::paintOutline(QPainter& painter, const QSize& pageSize, int areaWidth) const
{
    if (s.outline.isEmpty())
        return;
    const int middle = areaWidth / 2;
    QLinearGradient edge(middle, 0, middle, pageSize.height());
    edge.setColorAt(0.0, kOutlineTop);
    edge.setColorAt(1.0, kFieldBottom);
    QLinearGradient field(middle, 0, middle, pageSize.height());
    field.setColorAt(0.0, kFieldTop);
    field.setColorAt(1.0, kFieldBottom);

    painter.setBrush(field);
    painter.setPen(QPen(QBrush(edge), kOutlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawPolygon(s.outline, Qt::OddEvenFill);
}
