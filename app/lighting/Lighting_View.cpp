#include "Lighting_View.h"

#include "Accessibility.h"
#include "AppGlobals.h"
#include "ColorEntry.h"
#include "LightModeTable.h"
#include "LightingDeck.h"
#include "LightingLook.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "PopupAnchor.h"
#include "RGB_Palette.h"
#include "SlotLayout.h"
#include "StripSelection.h"
#include "SwitchButton.h"
#include "Widget_Light_Mode_View.h"
#include "Widget_Preview.h"

#include <QButtonGroup>
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

    buildLightModeMap();
    const QStringList colorKeys = LightModeTable::colorModeKeys();
    for (int mode = LightModeTable::ColorRgb; mode <= LightModeTable::ColorOff; ++mode) {
        colorModeStandMap.insert(tr(qPrintable(colorKeys.at(mode))), mode);
        colorModeMap.insert(tr(qPrintable(colorKeys.at(mode))), mode);
    }

    deck = std::make_unique<LightingDeck>(this);
    lineEdit_R_Value = deck->colorEntry->field(ColorEntry::Red);
    lineEdit_G_Value = deck->colorEntry->field(ColorEntry::Green);
    lineEdit_B_Value = deck->colorEntry->field(ColorEntry::Blue);
    for (QLineEdit* edit : {lineEdit_R_Value, lineEdit_G_Value, lineEdit_B_Value})
        edit->installEventFilter(this);

    slotLayout = std::make_unique<SlotLayout>(SlotLayout::PageState{
        this, widget_memory_Control, memoryRGBView, slotLabel, slotAnimation, btn_SelectHorizontal,
        btn_Profile, btn_Edit, btn_Edit_Cancel, btn_Edit_Apply, savedOrder, maxLEDNum});
    createProfileButtons();
    slotLayout->createEditButtons();

    widget_Light_Mode_View =
        new Widget_Light_Mode_View(kLightModeListRect.width(), kLightModeListRect.height(), this);
    widget_Light_Mode_View->move(kLightModeListRect.topLeft());
    widget_Light_Mode_View->setLightModeMap(lightModeMap);
    widget_Light_Mode_View->hide();
    PopupAnchor::tie(deck->btn_LightMode, widget_Light_Mode_View);

    palette_draw_rect = new Palette_draw_rect(this);
    palette_draw_rect->setGeometry(0, 0, kPageWidth, kPageHeight);
    palette_draw_rect->setAttribute(Qt::WA_TransparentForMouseEvents);
    palette_draw_rect->hide();

    label_DragSlot = new QLabel(this);
    label_DragSlot->setObjectName(QStringLiteral("label_DragSlot"));
    label_DragSlot->setAttribute(Qt::WA_TransparentForMouseEvents);
    label_DragSlot->setStyleSheet(QStringLiteral("background:transparent;"));
    label_DragSlot->hide();

    selection = std::make_unique<StripSelection>(
        StripSelection::PageState{palette_draw_rect, allselect_start_x, allselect_start_y,
                                  allselect_end_x, allselect_end_y, allselectDragging,
                                  memoryRGBView, memoryData, btn_SelectHorizontal,
                                  selectAreaPointList},
        *slotLayout);

    connectControls();
    applyLanguageFonts();
}

Lighting_View::~Lighting_View()
{
    // The filtered children outlive this body; they must not reach a half-destroyed page.
    for (Memory_RGB_View* strip : memoryRGBView)
        strip->removeEventFilter(this);
    for (QLineEdit* edit : {lineEdit_R_Value, lineEdit_G_Value, lineEdit_B_Value})
        edit->removeEventFilter(this);
}

void Lighting_View::buildLightModeMap()
{
    lightModeMap.clear();
    for (int mode : LightModeTable::modeValues(isNewMode))
        lightModeMap.insert(mode, tr(LightModeTable::modeKey(mode)));
}

void Lighting_View::createProfileButtons()
{
    buttonGroup_Profile = new QButtonGroup(this);
    buttonGroup_Profile->setExclusive(true);
    for (int id = 0; id < ProfileCount; ++id) {
        QPushButton* button =
            new QPushButton(tr("Profile") + QLatin1Char(' ') + QString::number(id + 1), this);
        button->setObjectName(QStringLiteral("btn_Profile%1").arg(id));
        button->setCheckable(true);
        Accessibility::makeTabReachable(button);
        button->setGeometry(
            QRect(QPoint(kProfileX, kProfileTop + id * kProfilePitch), kProfileSize));
        buttonGroup_Profile->addButton(button, id);
        btn_Profile[id] = button;
    }
    btn_Profile[0]->setChecked(true);
}

void Lighting_View::connectControls()
{
    const ColorEntry* entry = deck->colorEntry;
    for (Memory_RGB_View* strip : memoryRGBView) {
        strip->installEventFilter(this);
        connect(strip, &Memory_RGB_View::SelectMemSlot, this, &Lighting_View::slot_SelectMemSlot);
        // One connection per strip: a pick runs receivePaletteValue once for every strip, and
        // repeating the same colour changes nothing.
        connect(entry->palette(), &RGB_Palette::pressRGB, this,
                &Lighting_View::receivePaletteValue);
        connect(this, &Lighting_View::changeBright, strip, &Memory_RGB_View::slot_ChangeBright);
        connect(this, &Lighting_View::changeColorMode, strip,
                &Memory_RGB_View::slot_ChangeColorMode);
        connect(this, &Lighting_View::sendDefault, strip, &Memory_RGB_View::slot_Default);
        connect(this, &Lighting_View::sendSelected, strip, &Memory_RGB_View::slot_Selected);
        connect(this, &Lighting_View::pressRGB, strip, &Memory_RGB_View::pressRGB);
    }
    connect(this, &Lighting_View::sendUpdatePreviewList, slotLayout->widget_Preview,
            &Widget_Preview::updatePreviewList, Qt::DirectConnection);

    connect(widget_Light_Mode_View, &Widget_Light_Mode_View::selectLightMode, this,
            &Lighting_View::currentLightModeIndex);
    connect(widget_Light_Mode_View, &Widget_Light_Mode_View::keyboardFinished, this,
            &Lighting_View::returnFromModeList);
    connect(deck->comboBox_ColorMode, qOverload<int>(&QComboBox::activated), this,
            &Lighting_View::currentColorModeIndex);
    connect(deck->comboBox_LightSpeed, qOverload<int>(&QComboBox::activated), this,
            &Lighting_View::currentLightSpeedIndex);
    connect(deck->slider_Light, &QSlider::valueChanged, this, &Lighting_View::changeSliderBright);

    using Slot = void (Lighting_View::*)();
    using ValueSlot = void (Lighting_View::*)(int);
    const ValueSlot valueSlots[] = {&Lighting_View::slot_R_Value, &Lighting_View::slot_G_Value,
                                    &Lighting_View::slot_B_Value};
    const Slot commitSlots[] = {&Lighting_View::slot_LineEdit_RValue,
                                &Lighting_View::slot_LineEdit_GValue,
                                &Lighting_View::slot_LineEdit_BValue};
    for (int c = 0; c < ColorEntry::ChannelCount; ++c) {
        connect(entry->slider(c), &QSlider::valueChanged, this, valueSlots[c]);
        connect(entry->slider(c), &QSlider::sliderReleased, this, commitSlots[c]);
    }
    for (int c = 0; c < ColorEntry::ChannelCount; ++c)
        connect(entry->field(c), &QLineEdit::returnPressed, this, commitSlots[c]);

    connect(deck->switchButton, &SwitchButton::sigClicked, this,
            &Lighting_View::slot_TurnOn_Switch);
    for (QPushButton* row : btn_SelectHorizontal)
        connect(row, &QPushButton::released, this, &Lighting_View::slot_SelectHorizontal);
    for (QPushButton* profile : btn_Profile)
        connect(profile, &QPushButton::released, this, &Lighting_View::slot_Profile);

    connect(deck->btn_LightMode, &QPushButton::clicked, this, &Lighting_View::slotLightMode);
    connect(deck->btn_Apply, &QPushButton::clicked, this, &Lighting_View::slotApply);
    connect(deck->btn_Default, &QPushButton::clicked, this, &Lighting_View::slotDefault);
    connect(btn_Edit, &QPushButton::clicked, this, &Lighting_View::slotEdit);
    connect(btn_Edit_Apply, &QPushButton::clicked, this, &Lighting_View::slotEdit_Apply);
    // Released, not clicked: leaving the page emits it to cancel an unfinished edit.
    connect(btn_Edit_Cancel, &QPushButton::released, this, &Lighting_View::slotEdit_Cancel);
}

void Lighting_View::applyLanguageFonts()
{
    deck->applyLanguageFonts(currentLanguage);
    const int profileFont = currentLanguage == kLanguageJapanese ? kProfileFontSmall : kProfileFont;
    for (QPushButton* profile : btn_Profile)
        profile->setStyleSheet(QString::fromLatin1(kProfileStyle).arg(profileFont));
}

// ----- light-mode rule --------------------------------------------------------------------------

void Lighting_View::checkLightingRule(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::checkLightingRule" << lightMode;
    const LightModeTable::Rule rule = LightModeTable::rule(lightMode);
    QComboBox* colorCombo = deck->comboBox_ColorMode;
    QComboBox* speedCombo = deck->comboBox_LightSpeed;

    colorCombo->clear();
    colorModeMap.clear();
    deck->colorEntry->setChannelsEnabled(rule.colorEntryEnabled);

    const int groupItems = rule.colorItems.size() - (rule.randomAdded ? 1 : 0);
    for (int i = 0; i < groupItems; ++i) {
        colorModeMap.insert(tr(qPrintable(rule.colorItems.at(i))), colorModeMap.size());
        LightingDeck::addKeyedItem(colorCombo, rule.colorItems.at(i));
    }
    qCDebug(lcPanel) << rule.groupDiagnostic;
    deck->slider_Light->setDisabled(!rule.brightnessEnabled);

    if (rule.randomAdded) {
        colorModeMap.insert(tr(qPrintable(rule.colorItems.last())), colorModeMap.size());
        LightingDeck::addKeyedItem(colorCombo, rule.colorItems.last());
        qCDebug(lcPanel) << "Add Random";
    }
    colorCombo->setEnabled(rule.colorComboEnabled);
    LightingDeck::appendHiddenEmptyItem(colorCombo);

    speedCombo->clear();
    for (const QString& key : LightModeTable::speedKeys())
        LightingDeck::addKeyedItem(speedCombo, key);
    LightingDeck::appendHiddenEmptyItem(speedCombo);

    if (rule.speedFixed) {
        speedCombo->setCurrentIndex(LightModeTable::FixedSpeed);
        speedCombo->setEnabled(false);
        return;
    }
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i)) {
            speedCombo->setCurrentIndex(memoryData[i].lightSpeed);
            break;
        }
    }
    speedCombo->setEnabled(true);
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

QString Lighting_View::lightModeName(int lightMode)
{
    // Subscript on purpose: a mode without a name shows an empty button text.
    return lightModeMap[lightMode];
}

int Lighting_View::colorComboIndexFor(int colorMode)
{
    return colorModeMap[tr(LightModeTable::colorModeKey(colorMode))];
}

int Lighting_View::colorModeOfComboText()
{
    return colorModeStandMap[deck->comboBox_ColorMode->currentText()];
}

float Lighting_View::moduleBrightness(int slot) const
{
    const Memory_RGB_View* strip = memoryRGBView[slot];
    if (strip->colorMode == LightModeTable::ColorRgb)
        return strip->ledBright[0];
    if (strip->colorMode == LightModeTable::ColorSingle)
        return strip->singleBright;
    return 1.0f;
}

void Lighting_View::applyMbSyncRule(int lightMode)
{
    deck->showMbSyncWarning(mbSyncWarning && lightMode == kMbSyncMode);
}

// Shows the focused module's mode, colour mode and speed, or empty controls when the selected
// modules run different modes.
void Lighting_View::showSelectedControls()
{
    bool sameMode = true;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && memoryRGBView[i]->available &&
            memoryData[i].lightMode != currentLightMode)
            sameMode = false;
    }

    QComboBox* colorCombo = deck->comboBox_ColorMode;
    QComboBox* speedCombo = deck->comboBox_LightSpeed;
    if (!sameMode) {
        deck->btn_LightMode->setText(QString());
        colorCombo->clear();
        colorCombo->setEnabled(false);
        speedCombo->clear();
        speedCombo->setEnabled(false);
        return;
    }

    const MemoryModuleData& focused = memoryData[SelectMemoryIndex];
    checkLightingRule(focused.lightMode);
    deck->btn_LightMode->setText(lightModeName(focused.lightMode));
    colorCombo->setCurrentIndex(colorComboIndexFor(focused.colorMode));
    speedCombo->setCurrentIndex(focused.lightSpeed);

    bool colorModesDiffer = false;
    bool speedsDiffer = false;
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i) || !memoryRGBView[i]->available)
            continue;
        colorModesDiffer = colorModesDiffer || memoryData[i].colorMode != focused.colorMode;
        speedsDiffer = speedsDiffer || memoryData[i].lightSpeed != focused.lightSpeed;
    }
    if (colorModesDiffer)
        colorCombo->setCurrentText(QString());
    if (speedsDiffer)
        speedCombo->setCurrentText(QString());
    applyMbSyncRule(focused.lightMode);
}

void Lighting_View::showModuleColor(int slot)
{
    const Memory_RGB_View* strip = memoryRGBView[slot];
    COLORREF color = 0;
    if (strip->colorMode == LightModeTable::ColorRgb) {
        int led = 0;
        while (led < Memory_RGB_View::LedCount && !strip->btn_Led[led]->isChecked())
            ++led;
        if (led == Memory_RGB_View::LedCount)
            return;
        color = strip->ledColor[led];
    } else if (strip->colorMode == LightModeTable::ColorSingle) {
        color = strip->singleColor;
    } else {
        return;
    }
    deck->colorEntry->setColor(color);
}

void Lighting_View::finishEditMode()
{
    label_DragSlot->hide();
    slotLayout->finishEditMode();
    update();
}

// ----- requests from the user -------------------------------------------------------------------

void Lighting_View::slotApply()
{
    qCDebug(lcPanel) << "Lighting_View::slotApply";
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        MemoryModuleData& module = memoryData[i];
        // An empty text means the selected modules disagree: their own values are kept.
        if (!deck->btn_LightMode->text().isEmpty()) {
            module.lightMode = currentLightMode;
            if (!deck->comboBox_ColorMode->currentText().isEmpty())
                module.colorMode = colorModeOfComboText();
            if (!deck->comboBox_LightSpeed->currentText().isEmpty())
                module.lightSpeed = deck->comboBox_LightSpeed->currentIndex();
        }
        qCDebug(lcPanel) << "UI-->changeBright ==" << deck->slider_Light->value();
        emit changeBright(static_cast<float>(deck->slider_Light->value() / 10.0));
        Memory_RGB_View* strip = memoryRGBView[i];
        emit changeColor(i, strip->ledColor, strip->singleColor, strip->ledBright,
                         strip->singleBright);
    }
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        const MemoryModuleData& module = memoryData[i];
        emit changeLightMode(i, module.lightMode, module.colorMode, module.lightSpeed,
                             module.lightingOff != 0);
        emit changeColorMode(i, module.colorMode);
    }
}

void Lighting_View::slotEdit()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit";
    for (int i = 0; i < SlotCount; ++i)
        savedOrder[i] = memoryRGBView[i]->slotPosition;
    if (isEditMode()) {
        finishEditMode();
        return;
    }
    slotLayout->enterEditMode();
    selection->rebuildOutline();
    update();
}

void Lighting_View::slotEdit_Cancel()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Cancel";
    label_DragSlot->hide();
    slotLayout->cancelEditMode();
    update();
}

void Lighting_View::slotEdit_Apply()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Apply";
    finishEditMode();
    int order[SlotCount];
    slotLayout->currentOrder(order);
    emit changeMemorySlotNumber(SlotCount, order);
    slotLayout->widget_Preview->setSlotsOrder(SlotCount, order);
    slotLayout->widget_Preview->update();
}

void Lighting_View::slotDefault()
{
    qCDebug(lcPanel) << "Lighting_View::slotDefault";
    emit changeBright(1.0f);
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        deck->comboBox_LightSpeed->setCurrentIndex(LightModeTable::FixedSpeed);
        emit changeColorMode(i, memoryData[i].colorMode);
    }
    emit sendDefault();
}

void Lighting_View::currentLightModeIndex(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::currentLightModeIndex" << lightMode;
    currentLightMode = lightMode;
    deck->btn_LightMode->setText(lightModeName(lightMode));
    checkLightingRule(lightMode);
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            emit changeColorMode(i, colorModeOfComboText());
    }
    applyMbSyncRule(lightMode);
    widget_Light_Mode_View->hide();
}

void Lighting_View::currentColorModeIndex(int index)
{
    qCDebug(lcPanel) << "Lighting_View::currentColorModeIndex" << index;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            emit changeColorMode(i, colorModeOfComboText());
    }
    deck->setBrightness(moduleBrightness(SelectMemoryIndex));
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

    showSelectedControls();
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && memoryRGBView[i]->available) {
            deck->showSwitchState(memoryData[i].lightingOff == 0);
            break;
        }
    }
    selection->rebuildOutline();
    selection->updateRowButtons();
    showModuleColor(SelectMemoryIndex);
    update();
}

void Lighting_View::slot_TurnOn_Switch(bool on)
{
    qCDebug(lcPanel) << "Lighting_View::slot_TurnOn_Switch" << on;
    deck->showSwitchLabel(on);
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i))
            memoryData[i].lightingOff = on ? 0 : 1;
    }
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
    const int profile = buttonGroup_Profile->checkedId();
    qCDebug(lcPanel) << "Lighting_View::slot_Profile" << profile;
    emit select_Profile(profile);
}

void Lighting_View::slot_setProfile(int profile)
{
    qCDebug(lcPanel) << "Lighting_View::slot_setProfile" << profile;
    if (QAbstractButton* button = buttonGroup_Profile->button(profile))
        button->setChecked(true);
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
        deck->btn_LightMode->setText(lightModeName(lightMode));
        currentLightMode = lightMode;
        checkLightingRule(lightMode);
        deck->comboBox_LightSpeed->setCurrentIndex(lightSpeed);
        deck->comboBox_ColorMode->setCurrentIndex(colorComboIndexFor(colorMode));
        deck->showSwitchState(!turnOff);
        const Memory_RGB_View* strip = memoryRGBView[slot];
        float bright = 1.0f;
        if (colorMode == LightModeTable::ColorRgb)
            bright = strip->ledBright[0];
        else if (colorMode == LightModeTable::ColorSingle)
            bright = strip->singleBright;
        deck->setBrightness(bright);
        applyMbSyncRule(lightMode);
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
    update();
}

void Lighting_View::setMemorySlotNumber(int count, int* order)
{
    qCDebug(lcPanel) << "Lighting_View::setMemorySlotNumber" << count;
    if (!order)
        return;
    const int placed = qBound(0, count, static_cast<int>(SlotCount));
    bool anyChecked = false;
    for (int i = 0; i < placed; ++i)
        anyChecked = anyChecked || isSlotChecked(i);

    // Only while nothing is selected: a selection keeps the strips where the user sees them.
    if (!anyChecked) {
        slotLayout->setColumns(placed, order);
        int first = 0;
        for (int i = 0; i < placed; ++i) {
            if (memoryRGBView[i]->slotPosition == 0) {
                first = i;
                break;
            }
        }
        slot_SelectMemSlot(first);
    }

    slotLayout->widget_Preview->setSlotsOrder(placed, order);
    slotLayout->placeMarkers();
    slotLayout->widget_Preview->update();
    update();
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
    buildLightModeMap();
    colorModeStandMap.clear();
    const QStringList colorKeys = LightModeTable::colorModeKeys();
    for (int mode = 0; mode < colorKeys.size(); ++mode)
        colorModeStandMap.insert(tr(qPrintable(colorKeys.at(mode))), mode);
    widget_Light_Mode_View->setLightModeMap(lightModeMap);

    if (!deck->btn_LightMode->text().isEmpty())
        deck->btn_LightMode->setText(lightModeName(currentLightMode));
    deck->retranslate();
    deck->colorEntry->nameChannels();
    btn_Edit->setText(tr("Edit"));
    btn_Edit_Cancel->setText(tr("Cancel"));
    btn_Edit_Apply->setText(tr("Apply"));
    slotLayout->label_Preview->setText(tr("Preview"));
    slotLayout->nameRows();
    for (int id = 0; id < ProfileCount; ++id)
        btn_Profile[id]->setText(tr("Profile") + QLatin1Char(' ') + QString::number(id + 1));

    QComboBox* colorCombo = deck->comboBox_ColorMode;
    colorModeMap.clear();
    for (int i = 0; i < colorCombo->count(); ++i) {
        if (!colorCombo->itemData(i).toString().isEmpty())
            colorModeMap.insert(colorCombo->itemText(i), i);
    }
    applyLanguageFonts();
}

// ----- mouse: LED selection and slot dragging ---------------------------------------------------

void Lighting_View::mousePressEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (!isEditMode()) {
        selection->press(pos);
        return;
    }
    for (int i = 0; i < SlotCount; ++i) {
        if (!memoryRGBView[i]->isHidden() && slotLayout->stripContains(i, pos)) {
            pickUpStrip(i, pos);
            return;
        }
    }
}

void Lighting_View::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (!label_DragSlot->isHidden()) {
        label_DragSlot->move(pos.x(), label_DragSlot->y());
        if (isEditMode()) {
            allselectDragging = false;
            for (int i = 0; i < SlotCount; ++i) {
                if (!memoryRGBView[i]->isHidden())
                    emit sendSelected(i, slotLayout->stripContains(i, pos));
            }
            return;
        }
    }
    if (!isEditMode())
        selection->drag(pos);
}

void Lighting_View::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (!label_DragSlot->isHidden()) {
        label_DragSlot->hide();
        if (isEditMode())
            dropStrip(pos);
    }
    selection->release(pos);
    update();
}

void Lighting_View::pickUpStrip(int slot, const QPoint& pos)
{
    qCDebug(lcPanel) << "Lighting_View::pickUpStrip" << slot;
    dragSlotIndex = slot;
    Memory_RGB_View* strip = memoryRGBView[slot];

    dragPixmap = QPixmap(strip->size());
    dragPixmap.fill(Qt::transparent);
    strip->render(&dragPixmap, QPoint(), QRegion(), QWidget::DrawChildren);
    QPixmap faded(dragPixmap.size());
    faded.fill(Qt::transparent);
    {
        QPainter painter(&faded);
        painter.setOpacity(kDragOpacity);
        painter.drawPixmap(0, 0, dragPixmap);
    }

    label_DragSlot->setPixmap(faded);
    label_DragSlot->resize(faded.size());
    label_DragSlot->move(pos.x(), slotLayout->stripRect(slot).top());
    label_DragSlot->raise();
    label_DragSlot->show();
}

void Lighting_View::dropStrip(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (memoryRGBView[i]->isHidden())
            continue;
        if (slotLayout->stripContains(i, pos))
            slotLayout->swapStrips(dragSlotIndex, i);
        emit sendSelected(i, false);
    }
}

// ----- painting and the event filter ------------------------------------------------------------

void Lighting_View::paintEvent(QPaintEvent* /*event*/)
{
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
