#include "Lighting_View.h"

#include "AppGlobals.h"
#include "ColorEntry.h"
#include "FocusOrder.h"
#include "LightModeTable.h"
#include "LightingDeck.h"
#include "LightingLook.h"
#include "LightingWiring.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "ModeControls.h"
#include "Palette_draw_rect.h"
#include "PopupAnchor.h"
#include "ProfileButtons.h"
#include "RGB_Palette.h"
#include "SelectionDeck.h"
#include "SlotLayout.h"
#include "SlotOrder.h"
#include "StripSelection.h"
#include "SwitchButton.h"
#include "Widget_Light_Mode_View.h"
#include "Widget_Preview.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

using namespace LightingLook;

static_assert(Lighting_View::SlotCount == kSlotCount && Lighting_View::LedRows == kLedRows &&
                  Lighting_View::ProfileCount == kProfileCount,
              "the page's counts are the layout's");

Lighting_View::Lighting_View(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Lighting_View"));
    resize(kPageWidth, kPageHeight);
    setFocusPolicy(Qt::ClickFocus);
    setFont(QFont(QStringLiteral("Arial")));

    for (int i = 0; i < SlotCount; ++i) {
        memoryData[i] = MemoryModuleData{};
        memoryData[i].memorySlot = i;
    }

    deck = std::make_unique<LightingDeck>(this);
    modes = std::make_unique<ModeControls>(*deck);
    lineEdit_R_Value = deck->colorEntry->field(ColorEntry::Red);
    lineEdit_G_Value = deck->colorEntry->field(ColorEntry::Green);
    lineEdit_B_Value = deck->colorEntry->field(ColorEntry::Blue);
    for (QLineEdit* edit : {lineEdit_R_Value, lineEdit_G_Value, lineEdit_B_Value})
        edit->installEventFilter(this);

    slotLayout = std::make_unique<SlotLayout>(SlotLayout::PageState{
        this, widget_memory_Control, memoryRGBView, slotLabel, slotAnimation, btn_SelectHorizontal,
        btn_Profile, btn_Edit, btn_Edit_Cancel, btn_Edit_Apply, savedOrder, maxLEDNum});
    profiles = std::make_unique<ProfileButtons>(this, btn_Profile);
    slotLayout->createEditButtons();
    selectionDeck = std::make_unique<SelectionDeck>(this, *deck, *modes, memoryRGBView, memoryData);

    widget_Light_Mode_View =
        new Widget_Light_Mode_View(kLightModeListRect.width(), kLightModeListRect.height(), this);
    widget_Light_Mode_View->move(kLightModeListRect.topLeft());
    widget_Light_Mode_View->setLightModeMap(modes->lightModeNames());
    widget_Light_Mode_View->hide();
    PopupAnchor::tie(deck->btn_LightMode, widget_Light_Mode_View);

    palette_draw_rect = new Palette_draw_rect(this);
    palette_draw_rect->setGeometry(0, 0, kPageWidth, kPageHeight);
    palette_draw_rect->setAttribute(Qt::WA_TransparentForMouseEvents);
    palette_draw_rect->hide();

    selection = std::make_unique<StripSelection>(
        StripSelection::PageState{palette_draw_rect, allselect_start_x, allselect_start_y,
                                  allselect_end_x, allselect_end_y, allselectDragging,
                                  memoryRGBView, memoryData, btn_SelectHorizontal,
                                  selectAreaPointList},
        *slotLayout);
    slotOrder =
        std::make_unique<SlotOrder>(this, memoryRGBView, *slotLayout, *selection, savedOrder);

    LightingWiring::connect(this, {*deck, widget_Light_Mode_View, memoryRGBView,
                                   btn_SelectHorizontal, btn_Profile, btn_Edit, btn_Edit_Cancel,
                                   btn_Edit_Apply, slotLayout->widget_Preview});
    connect(widget_Light_Mode_View, &Widget_Light_Mode_View::keyboardFinished, this,
            &Lighting_View::returnFromModeList);
    applyLanguageFonts();

    // Tab reads the page as the eye does: the profiles and the slot editor next to the menu,
    // then the modules and their rows, then the controls below them.
    QList<QWidget*> first(std::begin(btn_Profile), std::end(btn_Profile));
    first << btn_Edit << btn_Edit_Apply << btn_Edit_Cancel;
    first += QList<QWidget*>(std::begin(memoryRGBView), std::end(memoryRGBView));
    first += QList<QWidget*>(std::begin(btn_SelectHorizontal), std::end(btn_SelectHorizontal));
    FocusOrder::placeFirst(this, first);
}

Lighting_View::~Lighting_View()
{
    // The filtered children outlive this body; they must not reach a half-destroyed page.
    for (Memory_RGB_View* strip : memoryRGBView)
        strip->removeEventFilter(this);
    for (QLineEdit* edit : {lineEdit_R_Value, lineEdit_G_Value, lineEdit_B_Value})
        edit->removeEventFilter(this);
}

void Lighting_View::applyLanguageFonts()
{
    deck->applyLanguageFonts(currentLanguage);
    profiles->applyLanguageFonts(currentLanguage);
}

// ----- light-mode rule --------------------------------------------------------------------------

void Lighting_View::checkLightingRule(int lightMode)
{
    selectionDeck->applyRule(lightMode);
}

// ----- shared steps -----------------------------------------------------------------------------

bool Lighting_View::isEditMode() const
{
    return slotLayout->isEditMode();
}

bool Lighting_View::isSlotChecked(int slot) const
{
    return memoryRGBView[slot]->btn_MemorySlot->isChecked();
}

// ----- requests from the user -------------------------------------------------------------------

void Lighting_View::slotApply()
{
    qCDebug(lcPanel) << "Lighting_View::slotApply";
    selectionDeck->apply(currentLightMode);
}

void Lighting_View::slotEdit()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit";
    slotOrder->toggleEditMode();
}

void Lighting_View::slotEdit_Cancel()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Cancel";
    slotOrder->cancelEditMode();
}

void Lighting_View::slotEdit_Apply()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Apply";
    slotOrder->applyEditMode();
}

void Lighting_View::slotDefault()
{
    qCDebug(lcPanel) << "Lighting_View::slotDefault";
    selectionDeck->restoreDefaults();
}

void Lighting_View::currentLightModeIndex(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::currentLightModeIndex" << lightMode;
    currentLightMode = lightMode;
    deck->btn_LightMode->setText(modes->lightModeName(lightMode));
    checkLightingRule(lightMode);
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            emit changeColorMode(i, modes->colorModeOfComboText());
    }
    selectionDeck->applyMbSyncRule(lightMode);
    widget_Light_Mode_View->hide();
}

void Lighting_View::currentColorModeIndex(int index)
{
    qCDebug(lcPanel) << "Lighting_View::currentColorModeIndex" << index;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            emit changeColorMode(i, modes->colorModeOfComboText());
    }
    deck->setBrightness(selectionDeck->moduleBrightness(SelectMemoryIndex));
}

void Lighting_View::currentLightSpeedIndex(int index)
{
    qCDebug(lcPanel) << "Lighting_View::currentLightSpeedIndex" << index;
}

void Lighting_View::updatePreview()
{
    qCDebug(lcPanel) << "Lighting_View::updatePreview";
}

void Lighting_View::updatePreviewList(QList<COLORREF*> list)
{
    qCDebug(lcPanel) << "Lighting_View::updatePreviewList" << list.size();
}

void Lighting_View::slot_SelectMemSlot(int slot)
{
    qCDebug(lcPanel) << "Lighting_View::slot_SelectMemSlot" << slot;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i)) {
            SelectMemoryIndex = i;
            currentLightMode = memoryData[i].lightMode;
            currentColorMode = memoryData[i].colorMode;
            currentLightSpeed = memoryData[i].lightSpeed;
            break;
        }
    }
    if (SelectMemoryIndex < 0 || SelectMemoryIndex >= SlotCount)
        SelectMemoryIndex = 0;

    if (slot >= 0 && slot < SlotCount) {
        const Memory_RGB_View* strip = memoryRGBView[slot];
        if (strip->slotPosition >= 0 && strip->slotPosition < SlotCount) {
            QPushButton* marker = slotLayout->btn_Slots[strip->slotPosition];
            marker->setChecked(strip->btn_MemorySlot->isChecked());
            marker->lower();
        }
    }

    selectionDeck->showSelection(currentLightMode);
    selectionDeck->showSwitch();
    selection->rebuildOutline();
    selection->updateRowButtons();
    selectionDeck->showModuleColor(SelectMemoryIndex);
    updateOutline();
}

void Lighting_View::slot_TurnOn_Switch(bool on)
{
    qCDebug(lcPanel) << "Lighting_View::slot_TurnOn_Switch" << on;
    selectionDeck->setSwitch(on);
}

void Lighting_View::slot_SelectHorizontal()
{
    auto* button = qobject_cast<QPushButton*>(sender());
    qCDebug(lcPanel) << "Lighting_View::slot_SelectHorizontal"
                     << (button ? button->text() : QString());
    if (!button || isEditMode())
        return;
    const QString text = button->text();
    int row = 0;
    if (text.size() == 1 && text.at(0) >= QLatin1Char('A') && text.at(0) <= QLatin1Char('H'))
        row = text.at(0).unicode() - 'A';
    selection->selectRow(row, button->isChecked());
}

void Lighting_View::changeSliderBright(int value)
{
    qCDebug(lcPanel) << "Lighting_View::changeSliderBright" << value;
    emit changeBright(static_cast<float>(value / 10.0));
}

void Lighting_View::slotLightMode()
{
    qCDebug(lcPanel) << "Lighting_View::slotLightMode";
    if (widget_Light_Mode_View->isHidden()) {
        // The mode button takes the focus only from the keyboard.
        const bool byKey = deck->btn_LightMode->hasFocus();
        widget_Light_Mode_View->show();
        widget_Light_Mode_View->raise();
        widget_Light_Mode_View->setFocus(Qt::PopupFocusReason);
        if (byKey)
            widget_Light_Mode_View->highlight(currentLightMode);
    } else if (widget_Light_Mode_View->hasFocus()) {
        widget_Light_Mode_View->clearFocus();
    } else {
        widget_Light_Mode_View->hide();
    }
}

void Lighting_View::returnFromModeList()
{
    // Taking the focus back closes the list.
    deck->btn_LightMode->setFocusProxy(nullptr);
    deck->btn_LightMode->setFocus(Qt::TabFocusReason);
    widget_Light_Mode_View->hide();
}

void Lighting_View::slot_Profile()
{
    const int profile = profiles->checkedProfile();
    qCDebug(lcPanel) << "Lighting_View::slot_Profile" << profile;
    emit select_Profile(profile);
}

void Lighting_View::slot_setProfile(int profile)
{
    qCDebug(lcPanel) << "Lighting_View::slot_setProfile" << profile;
    profiles->check(profile);
}

void Lighting_View::slot_R_Value(int value)
{
    qCDebug(lcPanel) << "Lighting_View::slot_R_Value" << value;
    deck->colorEntry->showValue(ColorEntry::Red, value);
}

void Lighting_View::slot_G_Value(int value)
{
    qCDebug(lcPanel) << "Lighting_View::slot_G_Value" << value;
    deck->colorEntry->showValue(ColorEntry::Green, value);
}

void Lighting_View::slot_B_Value(int value)
{
    qCDebug(lcPanel) << "Lighting_View::slot_B_Value" << value;
    deck->colorEntry->showValue(ColorEntry::Blue, value);
}

void Lighting_View::slot_LineEdit_RValue()
{
    commitLineEdit(ColorEntry::Red);
}

void Lighting_View::slot_LineEdit_GValue()
{
    commitLineEdit(ColorEntry::Green);
}

void Lighting_View::slot_LineEdit_BValue()
{
    commitLineEdit(ColorEntry::Blue);
}

void Lighting_View::commitLineEdit(int channel)
{
    emit pressRGB(deck->colorEntry->commit(channel));
}

void Lighting_View::receivePaletteValue(COLORREF color)
{
    qCDebug(lcPanel) << "Lighting_View::receivePaletteValue" << color;
    deck->colorEntry->setColor(color);
    emit pressRGB(color);
}

// ----- state from the controller ----------------------------------------------------------------

void Lighting_View::setRGB(int slot, COLORREF* colors, COLORREF singleColor, float* brights,
                           float singleBright)
{
    qCDebug(lcPanel) << "Lighting_View::setRGB" << slot;
    if (slot < 0 || slot >= SlotCount || !colors || !brights)
        return;
    Memory_RGB_View* strip = memoryRGBView[slot];
    for (int led = 0; led < Memory_RGB_View::LedCount; ++led)
        strip->setRGB(led, colors[led], brights[led]);
    strip->setSingleRGB(singleColor, singleBright);
}

void Lighting_View::setLighting(int slot, int lightMode, int colorMode, int lightSpeed,
                                bool turnOff)
{
    qCDebug(lcPanel) << "Lighting_View::setLighting" << slot << lightMode << colorMode << lightSpeed
                     << turnOff;
    if (slot < 0 || slot >= SlotCount)
        return;
    MemoryModuleData& module = memoryData[slot];
    module.lightMode = lightMode;
    module.colorMode = colorMode;
    module.lightSpeed = lightSpeed;
    module.lightingOff = turnOff ? 1 : 0;

    if (slot == SelectMemoryIndex) {
        currentLightMode = lightMode;
        selectionDeck->showModule(slot);
    }
    emit changeColorMode(slot, colorMode);
}

void Lighting_View::setMemorySlots(int slotCount, int availableCount)
{
    qCDebug(lcPanel) << "Lighting_View::setMemorySlots" << slotCount << availableCount;
    int ledNumbers[SlotCount];
    for (int i = 0; i < SlotCount; ++i)
        ledNumbers[i] = memoryData[i].ledNum;
    slotLayout->setSlotCounts(slotCount, availableCount, ledNumbers);
    selection->rebuildOutline();
    slotLayout->widget_Preview->update();
    updateOutline();
}

void Lighting_View::setMemorySlotNumber(int count, int* order)
{
    qCDebug(lcPanel) << "Lighting_View::setMemorySlotNumber" << count;
    slotOrder->setOrder(count, order);
}

void Lighting_View::setMemoryLEDNumber(int count, int* ledNumbers)
{
    qCDebug(lcPanel) << "Lighting_View::setMemoryLEDNumber" << count;
    if (!ledNumbers)
        return;
    const int modules = qBound(0, count, static_cast<int>(SlotCount));
    for (int i = 0; i < modules; ++i)
        memoryData[i].ledNum = ledNumbers[i];
    slotLayout->setLedCounts(modules, ledNumbers);
    slotLayout->widget_Preview->setLEDNum(modules, ledNumbers);
    slotLayout->widget_Preview->update();
}

void Lighting_View::updateLanguage_Lighting()
{
    qCDebug(lcPanel) << "Lighting_View::updateLanguage_Lighting";
    deck->retranslate();
    deck->colorEntry->nameChannels();
    modes->retranslate();
    widget_Light_Mode_View->setLightModeMap(modes->lightModeNames());
    if (!deck->btn_LightMode->text().isEmpty())
        deck->btn_LightMode->setText(modes->lightModeName(currentLightMode));
    btn_Edit->setText(tr("Edit"));
    btn_Edit_Cancel->setText(tr("Cancel"));
    btn_Edit_Apply->setText(tr("Apply"));
    slotLayout->label_Preview->setText(tr("Preview"));
    slotLayout->nameRows();
    profiles->retranslate();
    applyLanguageFonts();
}

// ----- mouse: LED selection and slot dragging ---------------------------------------------------

void Lighting_View::mousePressEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (isEditMode())
        slotOrder->press(pos);
    else
        selection->press(pos);
}

void Lighting_View::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (slotOrder->isActive()) {
        slotOrder->follow(pos);
        if (isEditMode()) {
            allselectDragging = false;
            slotOrder->hover(pos);
            return;
        }
    }
    if (!isEditMode())
        selection->drag(pos);
}

void Lighting_View::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (slotOrder->isActive()) {
        slotOrder->hide();
        if (isEditMode())
            slotOrder->drop(pos);
    }
    selection->release(pos);
    updateOutline();
}

// ----- painting and the event filter ------------------------------------------------------------

QRect Lighting_View::outlineArea() const
{
    if (selectAreaPointList.isEmpty())
        return QRect();
    return selectAreaPointList.boundingRect().adjusted(-kOutlineMargin, -kOutlineMargin,
                                                       kOutlineMargin, kOutlineMargin);
}

void Lighting_View::updateOutline()
{
    const QRegion area = QRegion(outlineOnScreen) + outlineArea();
    if (!area.isEmpty())
        update(area);
}

void Lighting_View::paintEvent(QPaintEvent* event)
{
    // An earlier outline is gone once all of it has been painted over.
    if ((QRegion(outlineOnScreen) - event->region()).isEmpty())
        outlineOnScreen = QRect();
    outlineOnScreen |= outlineArea();
    if (selectAreaPointList.isEmpty())
        return;
    QPainter painter(this);
    selection->paintOutline(painter, size(), widget_memory_Control->width());
}

bool Lighting_View::eventFilter(QObject* watched, QEvent* event)
{
    deck->colorEntry->filterFieldEvent(watched, event);
    // A strip's backdrop follows the strip while it moves.
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        slotLayout->followStrip(watched);
    return QWidget::eventFilter(watched, event);
}
