#pragma once

// Geometry, fonts and style sheets of the lighting page and its helpers, in one place so that the
// helpers lay out their widgets exactly where the page expects them.

#include "LedAreaSelection.h"
#include "norvalex_lighting.h"

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

namespace LightingLook {

// Page and the control deck below the strips. The frame's menu covers the page's left kOffsetX
// pixels down to page y 248; below kMenuBottom that column is free. The page's own content
// starts right of the column.
constexpr int kPageWidth = 914;
constexpr int kPageHeight = 560;
constexpr int kOffsetX = LedAreaSelection::PageOffset;
constexpr int kMenuBottom = 252;
constexpr QRect kDeckRect(kOffsetX, 330, kPageWidth - kOffsetX, 230);

// Slot layout (page coordinates).
constexpr QRect kStripAreaFew(kOffsetX + 400, 20, 260, 295);
constexpr QRect kStripAreaMany(kOffsetX + 280, 20, 500, 295);
constexpr QPoint kPreviewLabelFew(kOffsetX + 126, 20);
constexpr QPoint kPreviewLabelMany(kOffsetX + 16, 20);
constexpr QPoint kPreviewFew(kOffsetX + 126, 53);
constexpr QPoint kPreviewMany(kOffsetX + 16, 53);
constexpr QSize kPreviewSize(258, 252);
constexpr QSize kPreviewLabelSize(200, 26);
constexpr int kFewSlotsLimit = 5;
constexpr int kMarkerXFew[] = {16, 82, 148, 214};
constexpr int kMarkerXMany[] = {13, 76, 139, 202, 265, 328, 391, 454};
constexpr int kMarkerY = 10;
constexpr int kMarkerSize = 30;
constexpr int kStripGridMargin = 10;
constexpr int kStripGridSpacing = 30;

// Row buttons beside the LED area.
constexpr int kRowButtonSize = 30;
constexpr int kRowButtonGap = 2;
constexpr int kRowTop = 60;
constexpr int kRowPitchFiveLeds = 52;
constexpr int kRowPitchEightLeds = 30;
constexpr int kFiveLeds = 5;
constexpr int kEightLeds = 8;

constexpr int kSlotCount = 8;
constexpr int kLedRows = 8;
constexpr int kProfileCount = 5;

// Profiles and the slot-order editor in the left column, below the frame's menu. The editor's
// buttons follow the profiles after a gap; in Edit mode Apply takes the Edit button's place and
// Cancel stands below it.
constexpr int kProfileX = 10;
constexpr int kProfileTop = kMenuBottom + 3;
constexpr int kProfilePitch = 35;
constexpr QSize kProfileSize(80, 30);
constexpr int kEditGap = 20;
constexpr int kEditTop =
    kProfileTop + (kProfileCount - 1) * kProfilePitch + kProfileSize.height() + kEditGap;
constexpr QRect kEditRect(QPoint(kProfileX, kEditTop), kProfileSize);
constexpr QRect kEditApplyRect = kEditRect;
constexpr QRect kEditCancelRect(QPoint(kProfileX, kEditTop + kProfilePitch), kProfileSize);
constexpr QSize kEditMinimum(48, 20);

// Deck controls (deck coordinates), in four blocks from left to right: mode controls, colour
// wheel, Apply and Default, colour channels and brightness. The wheel stands level with the mode
// button, above the switch row, so the switch's state label may reach under its corner.
constexpr int kDeckWidth = kDeckRect.width();
constexpr int kDeckGap = 20;
constexpr QRect kLightModeRect(20, 10, 120, 30);
constexpr QSize kMbSyncSize(350, 50);
constexpr int kMbSyncGap = 10;
constexpr QRect kColorModeLabelRect(20, 70, 138, 30);
constexpr QRect kColorModeComboRect(160, 70, 100, 30);
constexpr QRect kSpeedLabelRect(20, 130, 138, 30);
constexpr QRect kSpeedComboRect(160, 130, 100, 30);
constexpr int kUnderlineHeight = 3;
constexpr int kComboArrowWidth = 16;
constexpr int kComboFont = 14;
constexpr int kModeArrowWidth = 14;
constexpr int kModeArrowRight = 4;
constexpr QRect kTurnLightLabelRect(20, 188, 138, 30);
constexpr QRect kSwitchRect(160, 194, 47, 19);
constexpr QRect kSwitchLabelRect(215, 188, 85, 30);
constexpr int kPaletteSize = 176;
constexpr QPoint kPalettePos(kColorModeComboRect.right() + 1 + kDeckGap, kLightModeRect.top());
constexpr int kRgbRight = 200;
constexpr int kRgbTops[] = {55, 90, 125};
constexpr QSize kRgbLabelSize(25, 25);
constexpr int kRgbSliderInset = 2;
constexpr int kRgbSliderX = 28;
constexpr int kRgbSliderWidth = 118;
constexpr int kRgbEditX = 152;
constexpr QSize kRgbEditSize(44, 25);
constexpr QRect kSwatchRect(kDeckWidth - kRgbRight, 14, 196, 28);
constexpr int kSwatchLightLimit = 150;
constexpr int kBrightRight = 205;
constexpr int kBrightBottom = 35;
constexpr QSize kBrightSize(200, 10);
constexpr int kBrightLabelHeight = 22;
constexpr int kBrightLabelGap = 6;
constexpr int kBrightLabelFont = 14;
// Apply and Default between the wheel and the channels, level with the two combos.
constexpr int kActionX = kPalettePos.x() + kPaletteSize + kDeckGap;
constexpr int kActionWidth = kDeckWidth - kBrightRight - kDeckGap - kActionX;
constexpr int kActionHeight = 40;
constexpr QRect kApplyRect(kActionX, kColorModeComboRect.center().y() - kActionHeight / 2,
                           kActionWidth, kActionHeight);
constexpr QRect kDefaultRect(kActionX, kSpeedComboRect.center().y() - kActionHeight / 2,
                             kActionWidth, kActionHeight);

// The light-mode list below the light-mode button (page coordinates).
constexpr QSize kLightModeListSize(660, 180);
constexpr QRect kLightModeListRect(QPoint(kDeckRect.left() + kLightModeRect.left(),
                                          kDeckRect.top() + kLightModeRect.bottom() + 3),
                                   kLightModeListSize);

// Brightness slider and colour channels.
constexpr int kBrightSteps = 10;
constexpr int kChannelMax = 255;
constexpr int kDefaultRed = 255;

// Slot dragging in Edit mode.
constexpr int kSwapDurationMs = 300;
constexpr qreal kDragOpacity = 0.5;
constexpr int kWellMargin = 4;

// Outline of the selected strips.
constexpr int kSelectPadX = 8;
constexpr int kSelectPadTop = 4;
constexpr int kSelectPadBottom = 6;

// The MB Sync light mode.
constexpr int kMbSyncMode = 35;

// Per-language font sizes: Default button, colour-mode caption, speed caption, switch caption.
struct LanguageFonts {
    int defaultButton;
    int colorModeLabel;
    int speedLabel;
    int turnLightLabel;
};
constexpr int kLanguageGerman = 3;
constexpr int kLanguageJapanese = 5;
constexpr int kLanguageRussian = 7;
constexpr int kLanguageSpanish = 9;
constexpr int kSpeedComboSmall = 12;
// Profile captions: the Japanese word needs a smaller size to fit the button.
constexpr int kProfileFont = 12;
constexpr int kProfileFontSmall = 10;

inline LanguageFonts fontsForLanguage(int language)
{
    switch (language) {
    case kLanguageRussian:
        return {8, 14, 12, 22};
    case kLanguageGerman:
        return {12, 22, 12, 22};
    case kLanguageJapanese:
        return {8, 13, 12, 22};
    case kLanguageSpanish:
        return {9, 16, 9, 14};
    default:
        return {12, 22, 22, 22};
    }
}

// Colours.
const char* const kAccent = "rgb(32,158,199)";
const char* const kAccentDeep = "rgb(0,122,204)";
const char* const kRed = "rgb(255,0,0)";
const char* const kGreen = "rgb(6,197,6)";
const char* const kBlue = "rgb(5,158,197)";
const QColor kFieldTop(80, 80, 80);
const QColor kFieldBottom(0, 0, 0, 150);
const QColor kOutlineTop(0, 122, 204);
constexpr qreal kOutlineWidth = 2.0;
constexpr int kOutlineMargin = 3; // what the outline's pen may cover beyond its polygon

// Style sheets.
const char* const kCaptionStyle =
    "QLabel#%1{font-family: Arial; font-size:%2px; color:rgb(200,200,200);}";
const char* const kComboStyle =
    "QComboBox#%1{font-family: Arial; font-size:%2px; color:white; background:transparent;"
    " border:none; padding-left:6px; combobox-popup:0;}"
    "QComboBox#%1:disabled{color:rgb(110,110,110);}"
    "QComboBox#%1::drop-down{border:none; width:16px;}"
    "QComboBox#%1::down-arrow{image:none; width:0px; height:0px;}"
    "QComboBox#%1 QAbstractItemView{font-family: Arial; font-size:%2px; color:white;"
    " background-color:rgb(40,40,40); border:1px solid rgb(70,70,70); outline:0;"
    " selection-background-color:rgb(0,122,204); selection-color:white;}";
const char* const kComboArrowStyle =
    "QLabel{font-family: Arial; font-size:9px; color:rgb(160,160,160); background:transparent;}"
    "QLabel:disabled{color:rgb(75,75,75);}";
const char* const kUnderlineStyle = "background-color:rgb(105,109,110);";
const char* const kLightModeButtonStyle =
    "QPushButton#btn_LightMode{font-family: Arial; font-size:14px; color:white;"
    " background-color:rgb(42,42,44); border:1px solid rgb(32,158,199); border-radius:4px;"
    " text-align:left; padding-left:10px; padding-right:18px;}"
    "QPushButton#btn_LightMode:hover{background-color:rgb(52,52,56);}"
    "QPushButton#btn_LightMode:pressed{background-color:rgb(0,122,204);}";
const char* const kLightModeArrowStyle =
    "QLabel#label_LightModeArrow{font-family: Arial; font-size:9px; color:rgb(32,158,199);"
    " background:transparent;}";
const char* const kMbSyncStyle =
    "QLabel#label_MB_Sync {font-family: Arial; color:red; font-size:10px;}";
const char* const kBrightSliderStyle =
    "QSlider#slider_Light::groove:horizontal{height:4px; border-radius:2px;"
    " background:qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 black, stop:1 white);}"
    "QSlider#slider_Light::handle:horizontal{width:10px; height:10px; margin:-3px 0;"
    " border-radius:5px; background:white; border:1px solid rgb(0,122,204);}"
    "QSlider#slider_Light::handle:horizontal:disabled{background:rgb(90,90,90);"
    " border:1px solid rgb(70,70,70);}"
    "QSlider#slider_Light::groove:horizontal:disabled{background:qlineargradient(x1:0, y1:0,"
    " x2:1, y2:0, stop:0 rgb(20,20,20), stop:1 rgb(90,90,90));}";
const char* const kChannelLabelStyle =
    "QLabel#%1{font-family: Arial; font-size:16px; font-weight:bold; color:%2;}"
    "QLabel#%1:disabled{color:rgb(90,90,90);}";
const char* const kChannelSliderStyle =
    "QSlider#%1::groove:horizontal{height:4px; border-radius:2px; background:rgb(70,70,70);}"
    "QSlider#%1::sub-page:horizontal{height:4px; border-radius:2px; background:%2;}"
    "QSlider#%1::handle:horizontal{width:12px; margin:-4px 0; border-radius:6px;"
    " background:%2; border:1px solid rgb(230,230,230);}"
    "QSlider#%1::sub-page:horizontal:disabled{background:rgb(90,90,90);}"
    "QSlider#%1::handle:horizontal:disabled{background:rgb(90,90,90);"
    " border:1px solid rgb(70,70,70);}";
const char* const kChannelEditStyle =
    "QLineEdit#%1{font-family: Arial; font-size:13px; color:white;"
    " background-color:rgb(38,38,40); border:1px solid rgb(75,75,75); border-radius:3px;}"
    "QLineEdit#%1:focus{border:1px solid %2;}"
    "QLineEdit#%1:disabled{color:rgb(100,100,100); border:1px solid rgb(55,55,55);}";
const char* const kSwatchStyle =
    "QLabel#label_ColorSwatch{font-family: Arial; font-size:12px; color:%1;"
    " background-color:rgb(%2,%3,%4); border:1px solid rgb(90,90,90); border-radius:4px;}";
const char* const kSwitchLabelStyle =
    "QLabel#label_Switch{font-family: Arial; font-size:14px; color:white;}";
const char* const kApplyStyle =
    "QPushButton#btn_Apply{font-family: Arial; font-size:15px; color:white;"
    " background-color:rgb(0,122,204); border:none; border-radius:20px;}"
    "QPushButton#btn_Apply:hover{background-color:rgb(32,158,199);}"
    "QPushButton#btn_Apply:pressed{background-color:rgb(0,95,160);}";
const char* const kDefaultStyle =
    "QPushButton#btn_Default{font-family: Arial; font-size:%1px; color:rgb(220,220,220);"
    " background-color:transparent; border:1px solid rgb(32,158,199); border-radius:20px;}"
    "QPushButton#btn_Default:hover{background-color:rgba(32,158,199,40);}"
    "QPushButton#btn_Default:pressed{background-color:rgba(0,122,204,90);}";
const char* const kEditButtonStyle =
    "QPushButton#%1{font-family: Arial; font-size:12px; color:rgb(220,220,220);"
    " background-color:rgb(42,42,44); border:1px solid rgb(80,80,80); border-radius:4px;}"
    "QPushButton#%1:hover{border:1px solid rgb(32,158,199);}"
    "QPushButton#%1:pressed{background-color:rgb(0,122,204);}";
const char* const kEditApplyStyle =
    "QPushButton#btn_Edit_Apply{font-family: Arial; font-size:12px; color:white;"
    " background-color:rgb(0,122,204); border:none; border-radius:4px;}"
    "QPushButton#btn_Edit_Apply:hover{background-color:rgb(32,158,199);}";
const char* const kProfileStyle =
    "QPushButton{font-family: Arial; font-size:%1px; color:rgb(170,170,170);"
    " background-color:rgb(40,40,42); border:1px solid rgb(62,62,62); border-radius:4px;}"
    "QPushButton:hover{color:white; border:1px solid rgb(90,90,90);}"
    "QPushButton:checked{color:white; background-color:rgba(0,122,204,70);"
    " border:1px solid rgb(32,158,199);}"
    "QPushButton:disabled{color:rgb(90,90,90); border:1px solid rgb(50,50,50);}"
    "QPushButton:checked:disabled{background-color:rgba(0,122,204,30);"
    " border:1px solid rgb(40,80,100);}";
const char* const kRowButtonStyle =
    "QPushButton{font-family: Arial; font-size:13px; color:rgb(160,160,160);"
    " background-color:rgb(42,42,44); border:1px solid rgb(70,70,70); border-radius:15px;}"
    "QPushButton:hover{color:white; border:1px solid rgb(32,158,199);}"
    "QPushButton:checked{color:white; background-color:rgb(0,122,204);"
    " border:1px solid rgb(32,158,199);}"
    "QPushButton:disabled{color:rgb(80,80,80); background-color:rgb(36,36,38);"
    " border:1px solid rgb(52,52,52);}";
const char* const kMarkerStyle =
    "QPushButton{font-family: Arial; font-size:16px; color:rgb(150,150,150);"
    " background:transparent; border:none;}"
    "QPushButton:checked{color:rgba(0,0,0,0); background-color:rgba(32,158,199,45);"
    " border:1px solid rgb(32,158,199); border-radius:15px;}";
const char* const kPreviewLabelStyle =
    "QLabel#label_Preview{font-family: Arial; font-size:16px; color:rgb(200,200,200);}";
const char* const kWellStyle =
    "QLabel{background-color:rgba(0,122,204,38); border:none; border-radius:6px;}";
const char* const kDeckStyle =
    "QWidget#widget_Lighting_Control{background-color:rgba(255,255,255,7);"
    " border-top:1px solid rgba(255,255,255,22);}";

inline QString styled(const char* pattern, const QString& a)
{
    return QString::fromLatin1(pattern).arg(a);
}

inline QString styled(const char* pattern, const QString& a, const QString& b)
{
    return QString::fromLatin1(pattern).arg(a, b);
}

inline int redOf(COLORREF color)
{
    return static_cast<int>(color & 0xFF);
}

inline int greenOf(COLORREF color)
{
    return static_cast<int>((color >> 8) & 0xFF);
}

inline int blueOf(COLORREF color)
{
    return static_cast<int>((color >> 16) & 0xFF);
}

} // namespace LightingLook
