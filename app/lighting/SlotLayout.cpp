#include "SlotLayout.h"

#include "Accessibility.h"
#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "Widget_Preview.h"

#include <QGridLayout>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>

#include <algorithm>

using namespace LightingLook;

static_assert(SlotLayout::SlotCount == kSlotCount && SlotLayout::LedRows == kLedRows &&
                  SlotLayout::ProfileCount == kProfileCount,
              "the layout's counts are the page's");

SlotLayout::SlotLayout(const PageState& state) : s(state)
{
    createStripArea();
    createStrips();
    createRowButtons();
}

void SlotLayout::createStripArea()
{
    s.area = new QWidget(s.page);
    s.area->setObjectName(QStringLiteral("widget_memory_Control"));
    s.area->setGeometry(kStripAreaFew);

    gridLayout_Memory = new QGridLayout;
    gridLayout_Memory->setContentsMargins(kStripGridMargin, kStripGridMargin, kStripGridMargin,
                                          kStripGridMargin);
    gridLayout_Memory->setSpacing(kStripGridSpacing);

    // Column markers stand behind the strips' slot buttons, one per column.
    for (int column = 0; column < SlotCount; ++column) {
        QPushButton* marker = new QPushButton(QString::number(column + 1), s.area);
        marker->setObjectName(QStringLiteral("btn_Slots"));
        marker->setCheckable(true);
        marker->setFocusPolicy(Qt::NoFocus);
        marker->setStyleSheet(QString::fromLatin1(kMarkerStyle));
        marker->setGeometry(kMarkerXMany[column], kMarkerY, kMarkerSize, kMarkerSize);
        btn_Slots[column] = marker;
    }
}

void SlotLayout::createStrips()
{
    for (int i = 0; i < SlotCount; ++i) {
        // The strip's backdrop while the slots are being rearranged.
        QLabel* well = new QLabel(s.area);
        well->setObjectName(QStringLiteral("slotLabel"));
        well->setStyleSheet(QString::fromLatin1(kWellStyle));
        well->setAttribute(Qt::WA_TransparentForMouseEvents);
        well->hide();
        s.wells[i] = well;

        Memory_RGB_View* strip = new Memory_RGB_View(s.area);
        strip->setSlotNumber(i);
        s.strips[i] = strip;

        s.animations[i] = new QPropertyAnimation(strip, "geometry", s.page);
        s.animations[i]->setDuration(kSwapDurationMs);

        gridLayout_Memory->addWidget(strip, 0, i);
        strip->hide();
    }
    s.area->setLayout(gridLayout_Memory);

    label_Preview = new QLabel(Lighting_View::tr("Preview"), s.page);
    label_Preview->setObjectName(QStringLiteral("label_Preview"));
    label_Preview->setStyleSheet(QString::fromLatin1(kPreviewLabelStyle));
    label_Preview->setGeometry(QRect(kPreviewLabelFew, kPreviewLabelSize));

    widget_Preview = new Widget_Preview(s.page);
    widget_Preview->setObjectName(QStringLiteral("widget_Preview"));
    widget_Preview->setGeometry(QRect(kPreviewFew, kPreviewSize));
}

void SlotLayout::createRowButtons()
{
    for (int row = 0; row < LedRows; ++row) {
        QPushButton* button = new QPushButton(QString(QChar('A' + row)), s.page);
        button->setObjectName(QStringLiteral("btn_SelectHorizontal"));
        button->setCheckable(true);
        Accessibility::makeTabReachable(button);
        button->setStyleSheet(QString::fromLatin1(kRowButtonStyle));
        button->resize(kRowButtonSize, kRowButtonSize);
        button->hide();
        s.rows[row] = button;
    }
    placeRowButtons();
    nameRows();
}

void SlotLayout::nameRows()
{
    for (int row = 0; row < LedRows; ++row)
        s.rows[row]->setAccessibleName(Lighting_View::tr("LED row %1").arg(QChar('A' + row)));
}

void SlotLayout::createEditButtons()
{
    QPushButton* edit = new QPushButton(Lighting_View::tr("Edit"), s.page);
    edit->setObjectName(QStringLiteral("btn_Edit"));
    edit->setStyleSheet(styled(kEditButtonStyle, edit->objectName()));
    edit->setMinimumSize(kEditMinimum);
    edit->setGeometry(kEditRect);
    s.editButton = edit;

    QPushButton* apply = new QPushButton(Lighting_View::tr("Apply"), s.page);
    apply->setObjectName(QStringLiteral("btn_Edit_Apply"));
    apply->setStyleSheet(QString::fromLatin1(kEditApplyStyle));
    apply->setMinimumSize(kEditMinimum);
    apply->setGeometry(kEditApplyRect);
    apply->hide();
    s.editApplyButton = apply;

    QPushButton* cancel = new QPushButton(Lighting_View::tr("Cancel"), s.page);
    cancel->setObjectName(QStringLiteral("btn_Edit_Cancel"));
    cancel->setStyleSheet(styled(kEditButtonStyle, cancel->objectName()));
    cancel->setMinimumSize(kEditMinimum);
    cancel->setGeometry(kEditCancelRect);
    cancel->hide();
    s.editCancelButton = cancel;
}

void SlotLayout::setSlotCounts(int slotCount, int availableCount, const int* ledNumbers)
{
    for (Memory_RGB_View* strip : s.strips) {
        gridLayout_Memory->removeWidget(strip);
        strip->hide();
    }
    slotNumber = slotCount;
    availableSlotNumber = availableCount;
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = s.strips[i];
        if (i < slotCount)
            strip->show();
        strip->setDisable(i < availableCount);
        // Making a strip available shows all eight LEDs; a known 5-LED module hides its surplus.
        if (ledNumbers[i] == kFiveLeds || ledNumbers[i] == kEightLeds)
            strip->setLEDNumber(ledNumbers[i]);
    }

    if (slotCount < kFewSlotsLimit) {
        s.area->setGeometry(kStripAreaFew);
        label_Preview->move(kPreviewLabelFew);
        for (int column = 0; column < SlotCount; ++column) {
            QPushButton* marker = btn_Slots[column];
            if (column < 4) {
                marker->move(kMarkerXFew[column], kMarkerY);
                marker->show();
            } else {
                marker->hide();
            }
        }
        widget_Preview->move(kPreviewFew);
    } else if (slotCount <= SlotCount) {
        s.area->setGeometry(kStripAreaMany);
        label_Preview->move(kPreviewLabelMany);
        for (int column = 0; column < SlotCount; ++column) {
            btn_Slots[column]->move(kMarkerXMany[column], kMarkerY);
            btn_Slots[column]->show();
            btn_Slots[column]->lower();
        }
        widget_Preview->move(kPreviewMany);
    } else {
        s.area->setGeometry(QRect());
    }
    widget_Preview->setSlotNum(slotCount);
    widget_Preview->setModuleNum(availableCount);

    // Every strip goes back into its column.
    for (int i = 0; i < SlotCount; ++i) {
        const int column = s.strips[i]->slotPosition;
        readdStrip(i, column >= 0 && column < SlotCount ? column : i);
    }
    relayoutStrips();
    placeMarkers();
    placeRowButtons();
}

void SlotLayout::setColumns(int count, const int* order)
{
    for (int i = 0; i < count; ++i) {
        const int column = order[i] >= 0 && order[i] < SlotCount ? order[i] : i;
        s.strips[i]->slotPosition = column;
        readdStrip(i, column);
    }
    relayoutStrips();
}

void SlotLayout::setLedCounts(int count, const int* ledNumbers)
{
    for (int i = 0; i < count; ++i) {
        s.strips[i]->setLEDNumber(ledNumbers[i]);
        s.maxLEDNum = std::max(s.maxLEDNum, ledNumbers[i]);
    }
    placeRowButtons();
}

void SlotLayout::placeRowButtons()
{
    const QRect area = s.area->geometry();
    const int x = area.right() + 1 + kRowButtonGap;
    for (int row = 0; row < LedRows; ++row) {
        QPushButton* button = s.rows[row];
        if (s.maxLEDNum == kFiveLeds) {
            button->move(x, kRowTop + kRowPitchFiveLeds * row);
            button->setVisible(row < kFiveLeds);
        } else if (s.maxLEDNum == kEightLeds) {
            button->move(x, kRowTop + kRowPitchEightLeds * row);
            button->show();
        } else {
            button->move(x, button->y() ? button->y() : kRowTop + kRowPitchEightLeds * row);
        }
    }
}

void SlotLayout::placeMarkers()
{
    for (const Memory_RGB_View* strip : s.strips) {
        const int column = strip->slotPosition;
        if (column < 0 || column >= SlotCount || strip->isHidden())
            continue;
        if (strip->x() != 0 && strip->y() != 0) {
            btn_Slots[column]->move(strip->pos());
            btn_Slots[column]->lower();
        }
    }
}

void SlotLayout::currentOrder(int (&order)[SlotCount]) const
{
    for (int i = 0; i < SlotCount; ++i)
        order[i] = s.strips[i]->slotPosition;
}

void SlotLayout::relayoutStrips()
{
    s.area->setLayout(gridLayout_Memory);
    gridLayout_Memory->invalidate();
    gridLayout_Memory->activate();
}

void SlotLayout::readdStrip(int slot, int column)
{
    Memory_RGB_View* strip = s.strips[slot];
    gridLayout_Memory->removeWidget(strip);
    gridLayout_Memory->addWidget(strip, 0, column);
}

void SlotLayout::lowerMarkers()
{
    for (QPushButton* marker : btn_Slots)
        marker->lower();
}

bool SlotLayout::isEditMode() const
{
    return s.editButton->isHidden();
}

void SlotLayout::enterEditMode()
{
    s.editButton->hide();
    s.editCancelButton->show();
    s.editApplyButton->show();
    setEditControlsEnabled(false);
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = s.strips[i];
        strip->btn_MemorySlot->setChecked(false);
        for (QPushButton* led : strip->btn_Led)
            led->setChecked(false);
        strip->setEnabled(false);
        strip->setEdited(true);
        if (!strip->isHidden()) {
            s.wells[i]->setGeometry(
                strip->geometry().adjusted(-kWellMargin, -kWellMargin, kWellMargin, kWellMargin));
            s.wells[i]->show();
            s.wells[i]->lower();
        }
    }
    for (QPushButton* marker : btn_Slots) {
        marker->setChecked(false);
        marker->lower();
    }
}

void SlotLayout::finishEditMode()
{
    leaveEditMode();
    relayoutStrips();
    placeMarkers();
    lowerMarkers();
}

void SlotLayout::cancelEditMode()
{
    leaveEditMode();
    const int count = qBound(0, slotNumber, static_cast<int>(SlotCount));
    for (int i = 0; i < count; ++i) {
        s.strips[i]->slotPosition = s.savedOrder[i];
        readdStrip(i, s.savedOrder[i]);
    }
    relayoutStrips();
    placeMarkers();
    lowerMarkers();
}

// Leaves Edit mode without touching the order: strips, rows and profiles usable again.
void SlotLayout::leaveEditMode()
{
    s.editButton->show();
    s.editCancelButton->hide();
    s.editApplyButton->hide();
    for (int i = 0; i < SlotCount; ++i) {
        s.animations[i]->stop();
        s.strips[i]->setEnabled(true);
        s.strips[i]->setEdited(false);
        s.wells[i]->hide();
    }
    setEditControlsEnabled(true);
}

void SlotLayout::setEditControlsEnabled(bool enabled)
{
    for (QPushButton* row : s.rows) {
        if (!enabled)
            row->setChecked(false);
        row->setEnabled(enabled);
    }
    for (QPushButton* profile : s.profiles)
        profile->setEnabled(enabled);
}

void SlotLayout::swapStrips(int dragged, int target)
{
    qCDebug(lcPanel) << "Lighting_View::swapStrips" << dragged << target;
    if (dragged < 0 || dragged >= SlotCount)
        return;
    Memory_RGB_View* draggedStrip = s.strips[dragged];
    Memory_RGB_View* targetStrip = s.strips[target];
    const QRect draggedFrom = draggedStrip->geometry();
    const QRect targetFrom = targetStrip->geometry();

    std::swap(draggedStrip->slotPosition, targetStrip->slotPosition);
    readdStrip(dragged, draggedStrip->slotPosition);
    readdStrip(target, targetStrip->slotPosition);
    relayoutStrips();

    QPropertyAnimation* draggedMove = s.animations[dragged];
    draggedMove->stop();
    draggedMove->setKeyValueAt(0.0, draggedFrom);
    draggedMove->setKeyValueAt(1.0, QRect(targetFrom.topLeft(), draggedFrom.size()));
    QPropertyAnimation* targetMove = s.animations[target];
    if (targetMove != draggedMove) {
        targetMove->stop();
        targetMove->setKeyValueAt(0.0, targetFrom);
        targetMove->setKeyValueAt(1.0, QRect(draggedFrom.topLeft(), targetFrom.size()));
    }
    draggedMove->start();
    if (targetMove != draggedMove)
        targetMove->start();
    s.wells[dragged]->lower();
    s.wells[target]->lower();
}

QRect SlotLayout::stripRect(int slot) const
{
    const Memory_RGB_View* strip = s.strips[slot];
    return QRect(s.area->pos() + strip->pos(), strip->size());
}

bool SlotLayout::stripContains(int slot, const QPoint& pos) const
{
    // Inclusive: the right edge is left + width, the bottom edge top + height.
    const QRect rect = stripRect(slot);
    return pos.x() >= rect.left() && pos.x() <= rect.left() + rect.width() &&
           pos.y() >= rect.top() && pos.y() <= rect.top() + rect.height();
}

QPoint SlotLayout::ledCorner(int slot, int led) const
{
    const Memory_RGB_View* strip = s.strips[slot];
    return s.area->pos() + strip->pos() + strip->btn_Led[led]->pos();
}

void SlotLayout::followStrip(const QObject* strip)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (strip == s.strips[i] && s.wells[i]) {
            s.wells[i]->setGeometry(s.strips[i]->geometry().adjusted(-kWellMargin, -kWellMargin,
                                                                     kWellMargin, kWellMargin));
            return;
        }
    }
}
