#include "Lighting_View.h"

#include "AppGlobals.h"
#include "ChannelValidator.h"
#include "LedAreaSelection.h"
#include "LightModeTable.h"
#include "Log.h"
#include "Memory_RGB_View.h"
#include "Palette_draw_rect.h"
#include "RGB_Palette.h"
#include "SwitchButton.h"
#include "Widget_Light_Mode_View.h"
#include "Widget_Preview.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSlider>
#include <QStandardItemModel>

#include <algorithm>
#include <initializer_list>

namespace {

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

// Profiles and the slot-order editor in the left column, below the frame's menu. The editor's
// buttons follow the profiles after a gap; in Edit mode Apply takes the Edit button's place and
// Cancel stands below it.
constexpr int kProfileX = 10;
constexpr int kProfileTop = kMenuBottom + 3;
constexpr int kProfilePitch = 35;
constexpr QSize kProfileSize(80, 30);
constexpr int kEditGap = 20;
constexpr int kEditTop = kProfileTop + (Lighting_View::ProfileCount - 1) * kProfilePitch +
                         kProfileSize.height() + kEditGap;
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

LanguageFonts fontsForLanguage(int language)
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

QString styled(const char* pattern, const QString& a)
{
    return QString::fromLatin1(pattern).arg(a);
}

QString styled(const char* pattern, const QString& a, const QString& b)
{
    return QString::fromLatin1(pattern).arg(a, b);
}

int redOf(COLORREF color)
{
    return static_cast<int>(color & 0xFF);
}

int greenOf(COLORREF color)
{
    return static_cast<int>((color >> 8) & 0xFF);
}

int blueOf(COLORREF color)
{
    return static_cast<int>((color >> 16) & 0xFF);
}

// Adds a translated item that remembers its English key, so a language change can renew it.
void addKeyedItem(QComboBox* combo, const QString& key)
{
    combo->addItem(Lighting_View::tr(qPrintable(key)), key);
}

void retranslateCombo(QComboBox* combo)
{
    for (int i = 0; i < combo->count(); ++i) {
        const QString key = combo->itemData(i).toString();
        if (!key.isEmpty())
            combo->setItemText(i, Lighting_View::tr(qPrintable(key)));
    }
}

// A small arrow at the right end of a combo; it dims with the combo.
void addComboArrow(QComboBox* combo)
{
    auto* arrow = new QLabel(QStringLiteral("\u25BC"), combo);
    arrow->setObjectName(QStringLiteral("label_ComboArrow"));
    arrow->setStyleSheet(QString::fromLatin1(kComboArrowStyle));
    arrow->setAlignment(Qt::AlignCenter);
    arrow->setGeometry(combo->width() - kComboArrowWidth, 0, kComboArrowWidth, combo->height());
    arrow->setAttribute(Qt::WA_TransparentForMouseEvents);
}

// Appends an item with an empty text that the drop-down never shows; selecting it tells the user
// that the selected modules disagree.
void appendHiddenEmptyItem(QComboBox* combo)
{
    combo->addItem(QString());
    const int row = combo->count() - 1;
    if (auto* view = qobject_cast<QListView*>(combo->view()))
        view->setRowHidden(row, true);
    // Not enabled either, so the arrow keys on the closed combo step over it.
    if (auto* model = qobject_cast<QStandardItemModel*>(combo->model())) {
        if (QStandardItem* item = model->item(row))
            item->setFlags(item->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
    }
}

} // namespace

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

    widget_Lighting_Control = new QWidget(this);
    widget_Lighting_Control->setObjectName(QStringLiteral("widget_Lighting_Control"));
    widget_Lighting_Control->setAttribute(Qt::WA_StyledBackground);
    widget_Lighting_Control->setStyleSheet(QString::fromLatin1(kDeckStyle));
    widget_Lighting_Control->setGeometry(kDeckRect);

    createModeControls(widget_Lighting_Control);
    createColorControls(widget_Lighting_Control);
    createSwitchAndActions(widget_Lighting_Control);
    createStripArea();
    createStrips();
    createRowButtons();
    createProfileButtons();
    createEditButtons();

    widget_Light_Mode_View =
        new Widget_Light_Mode_View(kLightModeListRect.width(), kLightModeListRect.height(), this);
    widget_Light_Mode_View->move(kLightModeListRect.topLeft());
    widget_Light_Mode_View->setLightModeMap(lightModeMap);
    widget_Light_Mode_View->hide();
    // A click on the mode button must not pass the focus on to the page while the list holds
    // it: the list would close and the click would open it again.
    btn_LightMode->setFocusProxy(widget_Light_Mode_View);

    palette_draw_rect = new Palette_draw_rect(this);
    palette_draw_rect->setGeometry(0, 0, kPageWidth, kPageHeight);
    palette_draw_rect->setAttribute(Qt::WA_TransparentForMouseEvents);
    palette_draw_rect->hide();

    label_DragSlot = new QLabel(this);
    label_DragSlot->setObjectName(QStringLiteral("label_DragSlot"));
    label_DragSlot->setAttribute(Qt::WA_TransparentForMouseEvents);
    label_DragSlot->setStyleSheet(QStringLiteral("background:transparent;"));
    label_DragSlot->hide();

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

// ----- construction ---------------------------------------------------------------------------

void Lighting_View::buildLightModeMap()
{
    lightModeMap.clear();
    for (int mode : LightModeTable::modeValues(isNewMode))
        lightModeMap.insert(mode, tr(LightModeTable::modeKey(mode)));
}

void Lighting_View::createModeControls(QWidget* deck)
{
    btn_LightMode = new QPushButton(tr("Flow"), deck);
    btn_LightMode->setObjectName(QStringLiteral("btn_LightMode"));
    btn_LightMode->setGeometry(kLightModeRect);
    // Without focus of its own the button leaves the focus with the open list, so a second click
    // closes the list instead of reopening it.
    btn_LightMode->setFocusPolicy(Qt::NoFocus);
    btn_LightMode->setStyleSheet(QString::fromLatin1(kLightModeButtonStyle));

    label_LightModeArrow = new QLabel(QStringLiteral("\u25BC"), btn_LightMode);
    label_LightModeArrow->setObjectName(QStringLiteral("label_LightModeArrow"));
    label_LightModeArrow->setStyleSheet(QString::fromLatin1(kLightModeArrowStyle));
    label_LightModeArrow->setAlignment(Qt::AlignCenter);
    label_LightModeArrow->setGeometry(kLightModeRect.width() - kModeArrowRight - kModeArrowWidth, 0,
                                      kModeArrowWidth, kLightModeRect.height());
    label_LightModeArrow->setAttribute(Qt::WA_TransparentForMouseEvents);

    label_MB_Sync = new QLabel(tr("MB_Sync_Warning_Content"), deck);
    label_MB_Sync->setObjectName(QStringLiteral("label_MB_Sync"));
    label_MB_Sync->setStyleSheet(QString::fromLatin1(kMbSyncStyle));
    label_MB_Sync->setWordWrap(true);
    label_MB_Sync->setGeometry(kLightModeRect.right() + 1 + kMbSyncGap,
                               kLightModeRect.top() - kMbSyncGap, kMbSyncSize.width(),
                               kMbSyncSize.height());
    label_MB_Sync->hide();

    label_colorMode = new QLabel(tr("Color Mode"), deck);
    label_colorMode->setObjectName(QStringLiteral("label_colorMode"));
    label_colorMode->setGeometry(kColorModeLabelRect);

    comboBox_ColorMode = new QComboBox(deck);
    comboBox_ColorMode->setObjectName(QStringLiteral("comboBox_ColorMode"));
    comboBox_ColorMode->setGeometry(kColorModeComboRect);
    comboBox_ColorMode->setStyleSheet(
        styled(kComboStyle, comboBox_ColorMode->objectName(), QString::number(kComboFont)));
    for (const QString& key : LightModeTable::colorModeKeys())
        addKeyedItem(comboBox_ColorMode, key);
    addComboArrow(comboBox_ColorMode);

    line_ColorMode = new QLabel(deck);
    line_ColorMode->setObjectName(QStringLiteral("line_ColorMode"));
    line_ColorMode->setStyleSheet(QString::fromLatin1(kUnderlineStyle));
    line_ColorMode->setGeometry(kColorModeComboRect.left(), kColorModeComboRect.bottom() + 1,
                                kColorModeComboRect.width(), kUnderlineHeight);

    label_ligheSpeed = new QLabel(tr("Light Speed"), deck);
    label_ligheSpeed->setObjectName(QStringLiteral("label_ligheSpeed"));
    label_ligheSpeed->setGeometry(kSpeedLabelRect);

    comboBox_LightSpeed = new QComboBox(deck);
    comboBox_LightSpeed->setObjectName(QStringLiteral("comboBox_LightSpeed"));
    comboBox_LightSpeed->setGeometry(kSpeedComboRect);
    for (const QString& key : LightModeTable::speedKeys())
        addKeyedItem(comboBox_LightSpeed, key);
    addComboArrow(comboBox_LightSpeed);

    line_LightSpeed = new QLabel(deck);
    line_LightSpeed->setObjectName(QStringLiteral("line_LightSpeed"));
    line_LightSpeed->setStyleSheet(QString::fromLatin1(kUnderlineStyle));
    line_LightSpeed->setGeometry(kSpeedComboRect.left(), kSpeedComboRect.bottom() + 1,
                                 kSpeedComboRect.width(), kUnderlineHeight);
}

void Lighting_View::createColorControls(QWidget* deck)
{
    rgb_Palette = new RGB_Palette(deck);
    rgb_Palette->setObjectName(QStringLiteral("rgb_Palette"));
    rgb_Palette->move(kPalettePos);

    label_ColorSwatch = new QLabel(deck);
    label_ColorSwatch->setObjectName(QStringLiteral("label_ColorSwatch"));
    label_ColorSwatch->setAlignment(Qt::AlignCenter);
    label_ColorSwatch->setGeometry(kSwatchRect);

    const int left = kDeckWidth - kRgbRight;
    const char* const colors[] = {kRed, kGreen, kBlue};
    const char* const names[] = {"R", "G", "B"};
    QLabel** labels[] = {&label_R_Value, &label_G_Value, &label_B_Value};
    QSlider** sliders[] = {&slider_R_Value, &slider_G_Value, &slider_B_Value};
    QLineEdit** edits[] = {&lineEdit_R_Value, &lineEdit_G_Value, &lineEdit_B_Value};
    const int initial[] = {kDefaultRed, 0, 0};
    for (int c = 0; c < 3; ++c) {
        const QString channel = QString::fromLatin1(names[c]);
        const QString color = QString::fromLatin1(colors[c]);
        const int top = kRgbTops[c];

        QLabel* label = new QLabel(channel, deck);
        label->setObjectName(QStringLiteral("label_%1_Value").arg(channel));
        label->setStyleSheet(styled(kChannelLabelStyle, label->objectName(), color));
        label->setAlignment(Qt::AlignCenter);
        label->setGeometry(QRect(QPoint(left, top), kRgbLabelSize));
        *labels[c] = label;

        QSlider* slider = new QSlider(Qt::Horizontal, deck);
        slider->setObjectName(QStringLiteral("slider_%1_Value").arg(channel));
        slider->setRange(0, kChannelMax);
        slider->setSingleStep(1);
        slider->setPageStep(1);
        slider->setValue(initial[c]);
        slider->setStyleSheet(styled(kChannelSliderStyle, slider->objectName(), color));
        slider->setGeometry(left + kRgbSliderX, top + kRgbSliderInset, kRgbSliderWidth,
                            kRgbLabelSize.height() - 2 * kRgbSliderInset);
        *sliders[c] = slider;

        QLineEdit* edit = new QLineEdit(QString::number(initial[c]), deck);
        edit->setObjectName(QStringLiteral("lineEdit_%1_Value").arg(channel));
        edit->setValidator(new ChannelValidator(0, kChannelMax, edit));
        edit->setAlignment(Qt::AlignCenter);
        edit->setStyleSheet(styled(kChannelEditStyle, edit->objectName(), color));
        edit->setGeometry(QRect(QPoint(left + kRgbEditX, top), kRgbEditSize));
        edit->installEventFilter(this);
        *edits[c] = edit;
    }

    label_Brightness = new QLabel(tr("Brightness"), deck);
    label_Brightness->setObjectName(QStringLiteral("label_Brightness"));
    label_Brightness->setStyleSheet(
        styled(kCaptionStyle, label_Brightness->objectName(), QString::number(kBrightLabelFont)));
    const int brightTop = kDeckRect.height() - kBrightBottom;
    label_Brightness->setGeometry(kDeckWidth - kBrightRight,
                                  brightTop - kBrightLabelGap - kBrightLabelHeight,
                                  kBrightSize.width(), kBrightLabelHeight);

    slider_Light = new QSlider(Qt::Horizontal, deck);
    slider_Light->setObjectName(QStringLiteral("slider_Light"));
    slider_Light->setRange(0, kBrightSteps);
    slider_Light->setSingleStep(1);
    slider_Light->setPageStep(1);
    slider_Light->setValue(kBrightSteps);
    slider_Light->setStyleSheet(QString::fromLatin1(kBrightSliderStyle));
    slider_Light->setGeometry(QRect(QPoint(kDeckWidth - kBrightRight, brightTop), kBrightSize));
}

void Lighting_View::createSwitchAndActions(QWidget* deck)
{
    label_TurnLight = new QLabel(tr("Light Switch"), deck);
    label_TurnLight->setObjectName(QStringLiteral("label_TurnLight"));
    label_TurnLight->setGeometry(kTurnLightLabelRect);

    switchButton = new SwitchButton(kSwitchRect.width(), kSwitchRect.height(), deck);
    switchButton->setObjectName(QStringLiteral("switchButton"));
    switchButton->move(kSwitchRect.topLeft());
    switchButton->setChecked(true);

    label_Switch = new QLabel(tr("ON"), deck);
    label_Switch->setObjectName(QStringLiteral("label_Switch"));
    label_Switch->setStyleSheet(QString::fromLatin1(kSwitchLabelStyle));
    label_Switch->setGeometry(kSwitchLabelRect);

    btn_Apply = new QPushButton(tr("Apply"), deck);
    btn_Apply->setObjectName(QStringLiteral("btn_Apply"));
    btn_Apply->setStyleSheet(QString::fromLatin1(kApplyStyle));
    btn_Apply->setGeometry(kApplyRect);

    btn_Default = new QPushButton(tr("Default"), deck);
    btn_Default->setObjectName(QStringLiteral("btn_Default"));
    btn_Default->setGeometry(kDefaultRect);
}

void Lighting_View::createStripArea()
{
    widget_memory_Control = new QWidget(this);
    widget_memory_Control->setObjectName(QStringLiteral("widget_memory_Control"));
    widget_memory_Control->setGeometry(kStripAreaFew);

    gridLayout_Memory = new QGridLayout;
    gridLayout_Memory->setContentsMargins(kStripGridMargin, kStripGridMargin, kStripGridMargin,
                                          kStripGridMargin);
    gridLayout_Memory->setSpacing(kStripGridSpacing);

    // Column markers stand behind the strips' slot buttons, one per column.
    for (int column = 0; column < SlotCount; ++column) {
        QPushButton* marker = new QPushButton(QString::number(column + 1), widget_memory_Control);
        marker->setObjectName(QStringLiteral("btn_Slots"));
        marker->setCheckable(true);
        marker->setFocusPolicy(Qt::NoFocus);
        marker->setStyleSheet(QString::fromLatin1(kMarkerStyle));
        marker->setGeometry(kMarkerXMany[column], kMarkerY, kMarkerSize, kMarkerSize);
        btn_Slots[column] = marker;
    }
}

void Lighting_View::createStrips()
{
    for (int i = 0; i < SlotCount; ++i) {
        // The strip's backdrop while the slots are being rearranged.
        slotLabel[i] = new QLabel(widget_memory_Control);
        slotLabel[i]->setObjectName(QStringLiteral("slotLabel"));
        slotLabel[i]->setStyleSheet(QString::fromLatin1(kWellStyle));
        slotLabel[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
        slotLabel[i]->hide();

        Memory_RGB_View* strip = new Memory_RGB_View(widget_memory_Control);
        strip->setSlotNumber(i);
        strip->installEventFilter(this);
        memoryRGBView[i] = strip;

        connect(strip, &Memory_RGB_View::SelectMemSlot, this, &Lighting_View::slot_SelectMemSlot);
        // One connection per strip: a pick runs receivePaletteValue once for every strip, and
        // repeating the same colour changes nothing.
        connect(rgb_Palette, &RGB_Palette::pressRGB, this, &Lighting_View::receivePaletteValue);
        connect(this, &Lighting_View::changeBright, strip, &Memory_RGB_View::slot_ChangeBright);
        connect(this, &Lighting_View::changeColorMode, strip,
                &Memory_RGB_View::slot_ChangeColorMode);
        connect(this, &Lighting_View::sendDefault, strip, &Memory_RGB_View::slot_Default);
        connect(this, &Lighting_View::sendSelected, strip, &Memory_RGB_View::slot_Selected);
        connect(this, &Lighting_View::pressRGB, strip, &Memory_RGB_View::pressRGB);

        slotAnimation[i] = new QPropertyAnimation(strip, "geometry", this);
        slotAnimation[i]->setDuration(kSwapDurationMs);

        gridLayout_Memory->addWidget(strip, 0, i);
        strip->hide();
    }
    widget_memory_Control->setLayout(gridLayout_Memory);

    label_Preview = new QLabel(tr("Preview"), this);
    label_Preview->setObjectName(QStringLiteral("label_Preview"));
    label_Preview->setStyleSheet(QString::fromLatin1(kPreviewLabelStyle));
    label_Preview->setGeometry(QRect(kPreviewLabelFew, kPreviewLabelSize));

    widget_Preview = new Widget_Preview(this);
    widget_Preview->setObjectName(QStringLiteral("widget_Preview"));
    widget_Preview->setGeometry(QRect(kPreviewFew, kPreviewSize));
    connect(this, &Lighting_View::sendUpdatePreviewList, widget_Preview,
            &Widget_Preview::updatePreviewList, Qt::DirectConnection);
}

void Lighting_View::createRowButtons()
{
    for (int row = 0; row < LedRows; ++row) {
        QPushButton* button = new QPushButton(QString(QChar('A' + row)), this);
        button->setObjectName(QStringLiteral("btn_SelectHorizontal"));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setStyleSheet(QString::fromLatin1(kRowButtonStyle));
        button->resize(kRowButtonSize, kRowButtonSize);
        button->hide();
        btn_SelectHorizontal[row] = button;
    }
    placeRowButtons();
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
        button->setFocusPolicy(Qt::NoFocus);
        button->setGeometry(
            QRect(QPoint(kProfileX, kProfileTop + id * kProfilePitch), kProfileSize));
        buttonGroup_Profile->addButton(button, id);
        btn_Profile[id] = button;
    }
    btn_Profile[0]->setChecked(true);
}

void Lighting_View::createEditButtons()
{
    btn_Edit = new QPushButton(tr("Edit"), this);
    btn_Edit->setObjectName(QStringLiteral("btn_Edit"));
    btn_Edit->setStyleSheet(styled(kEditButtonStyle, btn_Edit->objectName()));
    btn_Edit->setMinimumSize(kEditMinimum);
    btn_Edit->setGeometry(kEditRect);

    btn_Edit_Apply = new QPushButton(tr("Apply"), this);
    btn_Edit_Apply->setObjectName(QStringLiteral("btn_Edit_Apply"));
    btn_Edit_Apply->setStyleSheet(QString::fromLatin1(kEditApplyStyle));
    btn_Edit_Apply->setMinimumSize(kEditMinimum);
    btn_Edit_Apply->setGeometry(kEditApplyRect);
    btn_Edit_Apply->hide();

    btn_Edit_Cancel = new QPushButton(tr("Cancel"), this);
    btn_Edit_Cancel->setObjectName(QStringLiteral("btn_Edit_Cancel"));
    btn_Edit_Cancel->setStyleSheet(styled(kEditButtonStyle, btn_Edit_Cancel->objectName()));
    btn_Edit_Cancel->setMinimumSize(kEditMinimum);
    btn_Edit_Cancel->setGeometry(kEditCancelRect);
    btn_Edit_Cancel->hide();
}

void Lighting_View::connectControls()
{
    connect(widget_Light_Mode_View, &Widget_Light_Mode_View::selectLightMode, this,
            &Lighting_View::currentLightModeIndex);
    connect(comboBox_ColorMode, qOverload<int>(&QComboBox::activated), this,
            &Lighting_View::currentColorModeIndex);
    connect(comboBox_LightSpeed, qOverload<int>(&QComboBox::activated), this,
            &Lighting_View::currentLightSpeedIndex);
    connect(slider_Light, &QSlider::valueChanged, this, &Lighting_View::changeSliderBright);

    connect(slider_R_Value, &QSlider::valueChanged, this, &Lighting_View::slot_R_Value);
    connect(slider_R_Value, &QSlider::sliderReleased, this, &Lighting_View::slot_LineEdit_RValue);
    connect(slider_G_Value, &QSlider::valueChanged, this, &Lighting_View::slot_G_Value);
    connect(slider_G_Value, &QSlider::sliderReleased, this, &Lighting_View::slot_LineEdit_GValue);
    connect(slider_B_Value, &QSlider::valueChanged, this, &Lighting_View::slot_B_Value);
    connect(slider_B_Value, &QSlider::sliderReleased, this, &Lighting_View::slot_LineEdit_BValue);
    connect(lineEdit_R_Value, &QLineEdit::returnPressed, this,
            &Lighting_View::slot_LineEdit_RValue);
    connect(lineEdit_G_Value, &QLineEdit::returnPressed, this,
            &Lighting_View::slot_LineEdit_GValue);
    connect(lineEdit_B_Value, &QLineEdit::returnPressed, this,
            &Lighting_View::slot_LineEdit_BValue);

    connect(switchButton, &SwitchButton::sigClicked, this, &Lighting_View::slot_TurnOn_Switch);
    for (QPushButton* row : btn_SelectHorizontal)
        connect(row, &QPushButton::released, this, &Lighting_View::slot_SelectHorizontal);
    for (QPushButton* profile : btn_Profile)
        connect(profile, &QPushButton::released, this, &Lighting_View::slot_Profile);

    connect(btn_LightMode, &QPushButton::clicked, this, &Lighting_View::slotLightMode);
    connect(btn_Apply, &QPushButton::clicked, this, &Lighting_View::slotApply);
    connect(btn_Default, &QPushButton::clicked, this, &Lighting_View::slotDefault);
    connect(btn_Edit, &QPushButton::clicked, this, &Lighting_View::slotEdit);
    connect(btn_Edit_Apply, &QPushButton::clicked, this, &Lighting_View::slotEdit_Apply);
    // Released, not clicked: leaving the page emits it to cancel an unfinished edit.
    connect(btn_Edit_Cancel, &QPushButton::released, this, &Lighting_View::slotEdit_Cancel);

    // The swatch follows the three channels.
    for (QSlider* channel : {slider_R_Value, slider_G_Value, slider_B_Value})
        connect(channel, &QSlider::valueChanged, this, &Lighting_View::showColorSwatch);
    showColorSwatch();
}

void Lighting_View::showColorSwatch()
{
    const int r = slider_R_Value->value();
    const int g = slider_G_Value->value();
    const int b = slider_B_Value->value();
    // Dark text on light colours, light text on dark ones.
    const bool light = (r * 299 + g * 587 + b * 114) / 1000 > kSwatchLightLimit;
    label_ColorSwatch->setStyleSheet(QString::fromLatin1(kSwatchStyle)
                                         .arg(QLatin1String(light ? "black" : "white"))
                                         .arg(r)
                                         .arg(g)
                                         .arg(b));
    label_ColorSwatch->setText(QStringLiteral("#%1%2%3")
                                   .arg(r, 2, 16, QLatin1Char('0'))
                                   .arg(g, 2, 16, QLatin1Char('0'))
                                   .arg(b, 2, 16, QLatin1Char('0'))
                                   .toUpper());
}

void Lighting_View::applyLanguageFonts()
{
    const LanguageFonts fonts = fontsForLanguage(currentLanguage);
    btn_Default->setStyleSheet(QString::fromLatin1(kDefaultStyle).arg(fonts.defaultButton));
    label_colorMode->setStyleSheet(styled(kCaptionStyle, label_colorMode->objectName(),
                                          QString::number(fonts.colorModeLabel)));
    label_ligheSpeed->setStyleSheet(
        styled(kCaptionStyle, label_ligheSpeed->objectName(), QString::number(fonts.speedLabel)));
    label_TurnLight->setStyleSheet(styled(kCaptionStyle, label_TurnLight->objectName(),
                                          QString::number(fonts.turnLightLabel)));
    const int speedCombo = currentLanguage == kLanguageRussian ? kSpeedComboSmall : kComboFont;
    comboBox_LightSpeed->setStyleSheet(
        styled(kComboStyle, comboBox_LightSpeed->objectName(), QString::number(speedCombo)));
    const int profileFont = currentLanguage == kLanguageJapanese ? kProfileFontSmall : kProfileFont;
    for (QPushButton* profile : btn_Profile)
        profile->setStyleSheet(QString::fromLatin1(kProfileStyle).arg(profileFont));
}

// ----- light-mode rule --------------------------------------------------------------------------

void Lighting_View::checkLightingRule(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::checkLightingRule" << lightMode;
    const LightModeTable::Rule rule = LightModeTable::rule(lightMode);

    comboBox_ColorMode->clear();
    colorModeMap.clear();
    for (QWidget* entry : std::initializer_list<QWidget*>{
             slider_R_Value, slider_G_Value, slider_B_Value, lineEdit_R_Value, lineEdit_G_Value,
             lineEdit_B_Value, label_R_Value, label_G_Value, label_B_Value})
        entry->setEnabled(rule.colorEntryEnabled);

    const int groupItems = rule.colorItems.size() - (rule.randomAdded ? 1 : 0);
    for (int i = 0; i < groupItems; ++i) {
        colorModeMap.insert(tr(qPrintable(rule.colorItems.at(i))), colorModeMap.size());
        addKeyedItem(comboBox_ColorMode, rule.colorItems.at(i));
    }
    qCDebug(lcPanel) << rule.groupDiagnostic;
    slider_Light->setDisabled(!rule.brightnessEnabled);

    if (rule.randomAdded) {
        colorModeMap.insert(tr(qPrintable(rule.colorItems.last())), colorModeMap.size());
        addKeyedItem(comboBox_ColorMode, rule.colorItems.last());
        qCDebug(lcPanel) << "Add Random";
    }
    comboBox_ColorMode->setEnabled(rule.colorComboEnabled);
    appendHiddenEmptyItem(comboBox_ColorMode);

    comboBox_LightSpeed->clear();
    for (const QString& key : LightModeTable::speedKeys())
        addKeyedItem(comboBox_LightSpeed, key);
    appendHiddenEmptyItem(comboBox_LightSpeed);

    if (rule.speedFixed) {
        comboBox_LightSpeed->setCurrentIndex(LightModeTable::FixedSpeed);
        comboBox_LightSpeed->setEnabled(false);
        return;
    }
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i)) {
            comboBox_LightSpeed->setCurrentIndex(memoryData[i].lightSpeed);
            break;
        }
    }
    comboBox_LightSpeed->setEnabled(true);
}

// ----- shared steps -----------------------------------------------------------------------------

bool Lighting_View::isEditMode() const
{
    return btn_Edit->isHidden();
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
    return colorModeStandMap[comboBox_ColorMode->currentText()];
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

void Lighting_View::setBrightnessSlider(float bright)
{
    // Multiplied in single precision so that every value sent as n / 10 comes back as n.
    slider_Light->setValue(static_cast<int>(bright * static_cast<float>(kBrightSteps)));
}

void Lighting_View::applyMbSyncRule(int lightMode)
{
    if (mbSyncWarning && lightMode == kMbSyncMode) {
        qCDebug(lcPanel) << "label_MB_Sync->setHidden(false)";
        label_MB_Sync->setHidden(false);
        // The warning reaches over the colour wheel; it must not be painted under it.
        label_MB_Sync->raise();
    } else {
        qCDebug(lcPanel) << "label_MB_Sync->setHidden(true)";
        label_MB_Sync->setHidden(true);
    }
}

void Lighting_View::showSwitchState(bool on)
{
    switchButton->setChecked(on);
    label_Switch->setText(on ? tr("ON") : tr("OFF"));
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

    if (!sameMode) {
        btn_LightMode->setText(QString());
        comboBox_ColorMode->clear();
        comboBox_ColorMode->setEnabled(false);
        comboBox_LightSpeed->clear();
        comboBox_LightSpeed->setEnabled(false);
        return;
    }

    const MemoryModuleData& focused = memoryData[SelectMemoryIndex];
    checkLightingRule(focused.lightMode);
    btn_LightMode->setText(lightModeName(focused.lightMode));
    comboBox_ColorMode->setCurrentIndex(colorComboIndexFor(focused.colorMode));
    comboBox_LightSpeed->setCurrentIndex(focused.lightSpeed);

    bool colorModesDiffer = false;
    bool speedsDiffer = false;
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i) || !memoryRGBView[i]->available)
            continue;
        colorModesDiffer = colorModesDiffer || memoryData[i].colorMode != focused.colorMode;
        speedsDiffer = speedsDiffer || memoryData[i].lightSpeed != focused.lightSpeed;
    }
    if (colorModesDiffer)
        comboBox_ColorMode->setCurrentText(QString());
    if (speedsDiffer)
        comboBox_LightSpeed->setCurrentText(QString());
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
    slider_R_Value->setValue(redOf(color));
    slider_G_Value->setValue(greenOf(color));
    slider_B_Value->setValue(blueOf(color));
}

void Lighting_View::updateRowButtons()
{
    for (int row = 0; row < LedRows; ++row) {
        int strips = 0;
        bool allChecked = true;
        for (const Memory_RGB_View* strip : memoryRGBView) {
            if (strip->isHidden() || !strip->available)
                continue;
            ++strips;
            allChecked = allChecked && strip->btn_Led[row]->isChecked();
        }
        btn_SelectHorizontal[row]->setChecked(strips > 0 && allChecked);
    }
}

// The outline of the selected strips: one box per strip, standing on a common base line, as a
// single polygon.
void Lighting_View::rebuildSelectArea()
{
    QVector<QRect> boxes;
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && !memoryRGBView[i]->isHidden())
            boxes.append(
                stripRect(i).adjusted(-kSelectPadX, -kSelectPadTop, kSelectPadX, kSelectPadBottom));
    }
    selectAreaPointList.clear();
    if (boxes.isEmpty())
        return;
    std::sort(boxes.begin(), boxes.end(),
              [](const QRect& a, const QRect& b) { return a.left() < b.left(); });
    int base = 0;
    for (const QRect& box : boxes)
        base = std::max(base, box.bottom());
    for (const QRect& box : boxes) {
        selectAreaPointList << QPoint(box.left(), base) << box.topLeft() << box.topRight()
                            << QPoint(box.right(), base);
    }
}

void Lighting_View::placeRowButtons()
{
    const QRect area = widget_memory_Control->geometry();
    const int x = area.right() + 1 + kRowButtonGap;
    for (int row = 0; row < LedRows; ++row) {
        QPushButton* button = btn_SelectHorizontal[row];
        if (maxLEDNum == kFiveLeds) {
            button->move(x, kRowTop + kRowPitchFiveLeds * row);
            button->setVisible(row < kFiveLeds);
        } else if (maxLEDNum == kEightLeds) {
            button->move(x, kRowTop + kRowPitchEightLeds * row);
            button->show();
        } else {
            button->move(x, button->y() ? button->y() : kRowTop + kRowPitchEightLeds * row);
        }
    }
}

// Puts each column's marker on the strip standing in that column.
void Lighting_View::placeMarkers()
{
    for (const Memory_RGB_View* strip : memoryRGBView) {
        const int column = strip->slotPosition;
        if (column < 0 || column >= SlotCount || strip->isHidden())
            continue;
        if (strip->x() != 0 && strip->y() != 0) {
            btn_Slots[column]->move(strip->pos());
            btn_Slots[column]->lower();
        }
    }
}

void Lighting_View::relayoutStrips()
{
    widget_memory_Control->setLayout(gridLayout_Memory);
    gridLayout_Memory->invalidate();
    gridLayout_Memory->activate();
}

void Lighting_View::readdStrip(int slot, int column)
{
    Memory_RGB_View* strip = memoryRGBView[slot];
    gridLayout_Memory->removeWidget(strip);
    gridLayout_Memory->addWidget(strip, 0, column);
}

void Lighting_View::setEditControlsEnabled(bool enabled)
{
    for (QPushButton* row : btn_SelectHorizontal) {
        if (!enabled)
            row->setChecked(false);
        row->setEnabled(enabled);
    }
    for (QPushButton* profile : btn_Profile)
        profile->setEnabled(enabled);
}

// Leaves Edit mode without touching the order: strips, rows and profiles usable again.
void Lighting_View::leaveEditMode()
{
    btn_Edit->show();
    btn_Edit_Cancel->hide();
    btn_Edit_Apply->hide();
    for (int i = 0; i < SlotCount; ++i) {
        slotAnimation[i]->stop();
        memoryRGBView[i]->setEnabled(true);
        memoryRGBView[i]->setEdited(false);
        slotLabel[i]->hide();
    }
    setEditControlsEnabled(true);
    label_DragSlot->hide();
}

void Lighting_View::finishEditMode()
{
    leaveEditMode();
    relayoutStrips();
    placeMarkers();
    for (QPushButton* marker : btn_Slots)
        marker->lower();
    update();
}

QRect Lighting_View::stripRect(int slot) const
{
    const Memory_RGB_View* strip = memoryRGBView[slot];
    return QRect(widget_memory_Control->pos() + strip->pos(), strip->size());
}

// Inclusive on all four edges: the right edge is left + width, the bottom edge top + height.
bool Lighting_View::stripContains(int slot, const QPoint& pos) const
{
    const QRect rect = stripRect(slot);
    return pos.x() >= rect.left() && pos.x() <= rect.left() + rect.width() &&
           pos.y() >= rect.top() && pos.y() <= rect.top() + rect.height();
}

QPoint Lighting_View::ledCorner(int slot, int led) const
{
    const Memory_RGB_View* strip = memoryRGBView[slot];
    return widget_memory_Control->pos() + strip->pos() + strip->btn_Led[led]->pos();
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
        if (!btn_LightMode->text().isEmpty()) {
            module.lightMode = currentLightMode;
            if (!comboBox_ColorMode->currentText().isEmpty())
                module.colorMode = colorModeOfComboText();
            if (!comboBox_LightSpeed->currentText().isEmpty())
                module.lightSpeed = comboBox_LightSpeed->currentIndex();
        }
        qCDebug(lcPanel) << "UI-->changeBright ==" << slider_Light->value();
        emit changeBright(static_cast<float>(slider_Light->value() / 10.0));
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

    btn_Edit->hide();
    btn_Edit_Cancel->show();
    btn_Edit_Apply->show();
    setEditControlsEnabled(false);
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = memoryRGBView[i];
        strip->btn_MemorySlot->setChecked(false);
        for (QPushButton* led : strip->btn_Led)
            led->setChecked(false);
        strip->setEnabled(false);
        strip->setEdited(true);
        if (!strip->isHidden()) {
            slotLabel[i]->setGeometry(
                strip->geometry().adjusted(-kWellMargin, -kWellMargin, kWellMargin, kWellMargin));
            slotLabel[i]->show();
            slotLabel[i]->lower();
        }
    }
    for (QPushButton* marker : btn_Slots) {
        marker->setChecked(false);
        marker->lower();
    }
    rebuildSelectArea();
    update();
}

void Lighting_View::slotEdit_Cancel()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Cancel";
    leaveEditMode();
    const int count = qBound(0, slotNumber, static_cast<int>(SlotCount));
    for (int i = 0; i < count; ++i) {
        memoryRGBView[i]->slotPosition = savedOrder[i];
        readdStrip(i, savedOrder[i]);
    }
    relayoutStrips();
    placeMarkers();
    for (QPushButton* marker : btn_Slots)
        marker->lower();
    update();
}

void Lighting_View::slotEdit_Apply()
{
    qCDebug(lcPanel) << "Lighting_View::slotEdit_Apply";
    finishEditMode();
    int order[SlotCount];
    for (int i = 0; i < SlotCount; ++i)
        order[i] = memoryRGBView[i]->slotPosition;
    emit changeMemorySlotNumber(SlotCount, order);
    widget_Preview->setSlotsOrder(SlotCount, order);
    widget_Preview->update();
}

void Lighting_View::slotDefault()
{
    qCDebug(lcPanel) << "Lighting_View::slotDefault";
    emit changeBright(1.0f);
    for (int i = 0; i < SlotCount; ++i) {
        if (!isSlotChecked(i))
            continue;
        comboBox_LightSpeed->setCurrentIndex(LightModeTable::FixedSpeed);
        emit changeColorMode(i, memoryData[i].colorMode);
    }
    emit sendDefault();
}

void Lighting_View::currentLightModeIndex(int lightMode)
{
    qCDebug(lcPanel) << "Lighting_View::currentLightModeIndex" << lightMode;
    currentLightMode = lightMode;
    btn_LightMode->setText(lightModeName(lightMode));
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
    setBrightnessSlider(moduleBrightness(SelectMemoryIndex));
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
            QPushButton* marker = btn_Slots[strip->slotPosition];
            marker->setChecked(strip->btn_MemorySlot->isChecked());
            marker->lower();
        }
    }

    showSelectedControls();
    for (int i = 0; i < SlotCount; ++i) {
        if (isSlotChecked(i) && memoryRGBView[i]->available) {
            showSwitchState(memoryData[i].lightingOff == 0);
            break;
        }
    }
    rebuildSelectArea();
    updateRowButtons();
    showModuleColor(SelectMemoryIndex);
    update();
}

void Lighting_View::slot_TurnOn_Switch(bool on)
{
    qCDebug(lcPanel) << "Lighting_View::slot_TurnOn_Switch" << on;
    label_Switch->setText(on ? tr("ON") : tr("OFF"));
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

    const bool checked = button->isChecked();
    for (Memory_RGB_View* strip : memoryRGBView) {
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

void Lighting_View::changeSliderBright(int value)
{
    qCDebug(lcPanel) << "Lighting_View::changeSliderBright" << value;
    emit changeBright(static_cast<float>(value / 10.0));
}

void Lighting_View::slotLightMode()
{
    qCDebug(lcPanel) << "Lighting_View::slotLightMode";
    if (widget_Light_Mode_View->isHidden()) {
        widget_Light_Mode_View->show();
        widget_Light_Mode_View->raise();
        widget_Light_Mode_View->setFocus(Qt::PopupFocusReason);
    } else if (widget_Light_Mode_View->hasFocus()) {
        widget_Light_Mode_View->clearFocus();
    } else {
        widget_Light_Mode_View->hide();
    }
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
    lineEdit_R_Value->setText(QString::number(value));
}

void Lighting_View::slot_G_Value(int value)
{
    qCDebug(lcPanel) << "Lighting_View::slot_G_Value" << value;
    lineEdit_G_Value->setText(QString::number(value));
}

void Lighting_View::slot_B_Value(int value)
{
    qCDebug(lcPanel) << "Lighting_View::slot_B_Value" << value;
    lineEdit_B_Value->setText(QString::number(value));
}

void Lighting_View::slot_LineEdit_RValue()
{
    commitLineEdit(lineEdit_R_Value, slider_R_Value);
}

void Lighting_View::slot_LineEdit_GValue()
{
    commitLineEdit(lineEdit_G_Value, slider_G_Value);
}

void Lighting_View::slot_LineEdit_BValue()
{
    commitLineEdit(lineEdit_B_Value, slider_B_Value);
}

void Lighting_View::commitLineEdit(QLineEdit* lineEdit, QSlider* slider)
{
    qCDebug(lcPanel) << "Lighting_View::commitLineEdit" << lineEdit->objectName()
                     << lineEdit->text();
    slider->setValue(lineEdit->text().toInt());
    lineEdit->clearFocus();
    sendColorEntry();
}

void Lighting_View::sendColorEntry()
{
    const COLORREF r = static_cast<COLORREF>(lineEdit_R_Value->text().toInt()) & 0xFF;
    const COLORREF g = static_cast<COLORREF>(lineEdit_G_Value->text().toInt()) & 0xFF;
    const COLORREF b = static_cast<COLORREF>(lineEdit_B_Value->text().toInt()) & 0xFF;
    emit pressRGB(r | g << 8 | b << 16);
}

void Lighting_View::receivePaletteValue(COLORREF color)
{
    qCDebug(lcPanel) << "Lighting_View::receivePaletteValue" << color;
    slider_R_Value->setValue(redOf(color));
    slider_G_Value->setValue(greenOf(color));
    slider_B_Value->setValue(blueOf(color));
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
        btn_LightMode->setText(lightModeName(lightMode));
        currentLightMode = lightMode;
        checkLightingRule(lightMode);
        comboBox_LightSpeed->setCurrentIndex(lightSpeed);
        comboBox_ColorMode->setCurrentIndex(colorComboIndexFor(colorMode));
        showSwitchState(!turnOff);
        const Memory_RGB_View* strip = memoryRGBView[slot];
        float bright = 1.0f;
        if (colorMode == LightModeTable::ColorRgb)
            bright = strip->ledBright[0];
        else if (colorMode == LightModeTable::ColorSingle)
            bright = strip->singleBright;
        setBrightnessSlider(bright);
        applyMbSyncRule(lightMode);
    }
    emit changeColorMode(slot, colorMode);
}

void Lighting_View::setMemorySlots(int slotCount, int availableCount)
{
    qCDebug(lcPanel) << "Lighting_View::setMemorySlots" << slotCount << availableCount;
    for (Memory_RGB_View* strip : memoryRGBView) {
        gridLayout_Memory->removeWidget(strip);
        strip->hide();
    }
    slotNumber = slotCount;
    availableSlotNumber = availableCount;
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = memoryRGBView[i];
        if (i < slotCount)
            strip->show();
        strip->setDisable(i < availableCount);
        // Making a strip available shows all eight LEDs; a known 5-LED module hides its surplus.
        if (memoryData[i].ledNum == kFiveLeds || memoryData[i].ledNum == kEightLeds)
            strip->setLEDNumber(memoryData[i].ledNum);
    }

    if (slotCount < kFewSlotsLimit) {
        widget_memory_Control->setGeometry(kStripAreaFew);
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
        widget_memory_Control->setGeometry(kStripAreaMany);
        label_Preview->move(kPreviewLabelMany);
        for (int column = 0; column < SlotCount; ++column) {
            btn_Slots[column]->move(kMarkerXMany[column], kMarkerY);
            btn_Slots[column]->show();
            btn_Slots[column]->lower();
        }
        widget_Preview->move(kPreviewMany);
    } else {
        widget_memory_Control->setGeometry(QRect());
    }
    widget_Preview->setSlotNum(slotCount);
    widget_Preview->setModuleNum(availableCount);

    // Every strip goes back into its column.
    for (int i = 0; i < SlotCount; ++i) {
        const int column = memoryRGBView[i]->slotPosition;
        readdStrip(i, column >= 0 && column < SlotCount ? column : i);
    }
    relayoutStrips();
    placeMarkers();
    placeRowButtons();
    rebuildSelectArea();
    widget_Preview->update();
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
        for (int i = 0; i < placed; ++i) {
            const int column = order[i] >= 0 && order[i] < SlotCount ? order[i] : i;
            memoryRGBView[i]->slotPosition = column;
            readdStrip(i, column);
        }
        relayoutStrips();
        int first = 0;
        for (int i = 0; i < placed; ++i) {
            if (memoryRGBView[i]->slotPosition == 0) {
                first = i;
                break;
            }
        }
        slot_SelectMemSlot(first);
    }

    widget_Preview->setSlotsOrder(placed, order);
    placeMarkers();
    widget_Preview->update();
    update();
}

void Lighting_View::setMemoryLEDNumber(int count, int* ledNumbers)
{
    qCDebug(lcPanel) << "Lighting_View::setMemoryLEDNumber" << count;
    if (!ledNumbers)
        return;
    const int modules = qBound(0, count, static_cast<int>(SlotCount));
    for (int i = 0; i < modules; ++i) {
        memoryData[i].ledNum = ledNumbers[i];
        memoryRGBView[i]->setLEDNumber(ledNumbers[i]);
        maxLEDNum = std::max(maxLEDNum, ledNumbers[i]);
    }
    placeRowButtons();
    widget_Preview->setLEDNum(modules, ledNumbers);
    widget_Preview->update();
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

    if (!btn_LightMode->text().isEmpty())
        btn_LightMode->setText(lightModeName(currentLightMode));
    label_MB_Sync->setText(tr("MB_Sync_Warning_Content"));
    label_colorMode->setText(tr("Color Mode"));
    label_ligheSpeed->setText(tr("Light Speed"));
    label_TurnLight->setText(tr("Light Switch"));
    label_Brightness->setText(tr("Brightness"));
    label_Switch->setText(switchButton->isChecked() ? tr("ON") : tr("OFF"));
    btn_Apply->setText(tr("Apply"));
    btn_Default->setText(tr("Default"));
    btn_Edit->setText(tr("Edit"));
    btn_Edit_Cancel->setText(tr("Cancel"));
    btn_Edit_Apply->setText(tr("Apply"));
    label_Preview->setText(tr("Preview"));
    for (int id = 0; id < ProfileCount; ++id)
        btn_Profile[id]->setText(tr("Profile") + QLatin1Char(' ') + QString::number(id + 1));

    retranslateCombo(comboBox_ColorMode);
    retranslateCombo(comboBox_LightSpeed);
    colorModeMap.clear();
    for (int i = 0; i < comboBox_ColorMode->count(); ++i) {
        if (!comboBox_ColorMode->itemData(i).toString().isEmpty())
            colorModeMap.insert(comboBox_ColorMode->itemText(i), i);
    }
    applyLanguageFonts();
}

// ----- mouse: area selection and slot dragging
// ----------------------------------------------------

void Lighting_View::mousePressEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (isEditMode()) {
        pressInEditMode(pos);
        return;
    }
    if (LedAreaSelection::startsBand(pos)) {
        allselectDragging = true;
        allselect_start_x = pos.x() - palette_draw_rect->x();
        allselect_start_y = pos.y() - palette_draw_rect->y();
    }
    if (LedAreaSelection::clearsSelection(pos)) {
        for (QPushButton* row : btn_SelectHorizontal)
            row->setChecked(false);
        for (Memory_RGB_View* strip : memoryRGBView) {
            for (QPushButton* led : strip->btn_Led) {
                led->setChecked(false);
                strip->slot_SelectLED();
            }
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
                    emit sendSelected(i, stripContains(i, pos));
            }
            return;
        }
    }
    if (isEditMode() || !allselectDragging)
        return;

    palette_draw_rect->show();
    palette_draw_rect->raise();
    allselectDragging = true;
    const QPoint held = LedAreaSelection::clampToArea(pos);
    const QPoint end = LedAreaSelection::clampDragEnd(held - palette_draw_rect->pos());
    allselect_end_x = end.x();
    allselect_end_y = end.y();
    qCDebug(lcPanel) << "posX:" << pos.x() << ", posY:" << pos.y();
    qCDebug(lcPanel) << "palette_draw_rect->pos().x():" << palette_draw_rect->pos().x()
                     << ", palette_draw_rect->pos().y():" << palette_draw_rect->pos().y();
    qCDebug(lcPanel) << "allselect_end_x : " << allselect_end_x
                     << ", allselect_end_y : " << allselect_end_y;
    palette_draw_rect->setRect(allselect_start_x, allselect_start_y,
                               allselect_end_x - allselect_start_x,
                               allselect_end_y - allselect_start_y);
}

void Lighting_View::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (!label_DragSlot->isHidden()) {
        label_DragSlot->hide();
        if (isEditMode())
            dropStrip(pos);
    }
    if (!palette_draw_rect->isHidden())
        palette_draw_rect->hide();
    if (allselectDragging)
        selectLedsInBand(pos);

    allselectDragging = false;
    allselect_start_x = pos.x() - palette_draw_rect->x();
    allselect_start_y = pos.y() - palette_draw_rect->y();
    update();
}

void Lighting_View::pressInEditMode(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (memoryRGBView[i]->isHidden())
            continue;
        if (stripContains(i, pos)) {
            pickUpStrip(i, pos);
            return;
        }
    }
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
    label_DragSlot->move(pos.x(), stripRect(slot).top());
    label_DragSlot->raise();
    label_DragSlot->show();
}

void Lighting_View::dropStrip(const QPoint& pos)
{
    for (int i = 0; i < SlotCount; ++i) {
        if (memoryRGBView[i]->isHidden())
            continue;
        if (stripContains(i, pos))
            swapStrips(dragSlotIndex, i);
        emit sendSelected(i, false);
    }
}

void Lighting_View::swapStrips(int dragged, int target)
{
    qCDebug(lcPanel) << "Lighting_View::swapStrips" << dragged << target;
    if (dragged < 0 || dragged >= SlotCount)
        return;
    Memory_RGB_View* draggedStrip = memoryRGBView[dragged];
    Memory_RGB_View* targetStrip = memoryRGBView[target];
    const QRect draggedFrom = draggedStrip->geometry();
    const QRect targetFrom = targetStrip->geometry();

    std::swap(draggedStrip->slotPosition, targetStrip->slotPosition);
    readdStrip(dragged, draggedStrip->slotPosition);
    readdStrip(target, targetStrip->slotPosition);
    relayoutStrips();

    QPropertyAnimation* draggedMove = slotAnimation[dragged];
    draggedMove->stop();
    draggedMove->setKeyValueAt(0.0, draggedFrom);
    draggedMove->setKeyValueAt(1.0, QRect(targetFrom.topLeft(), draggedFrom.size()));
    QPropertyAnimation* targetMove = slotAnimation[target];
    if (targetMove != draggedMove) {
        targetMove->stop();
        targetMove->setKeyValueAt(0.0, targetFrom);
        targetMove->setKeyValueAt(1.0, QRect(draggedFrom.topLeft(), targetFrom.size()));
    }
    draggedMove->start();
    if (targetMove != draggedMove)
        targetMove->start();
    slotLabel[dragged]->lower();
    slotLabel[target]->lower();
}

void Lighting_View::selectLedsInBand(const QPoint& releasePos)
{
    const QPoint end = LedAreaSelection::clampToArea(releasePos) - palette_draw_rect->pos();
    allselect_end_x = end.x();
    allselect_end_y = end.y();
    const QPoint start(allselect_start_x, allselect_start_y);
    const LedAreaSelection::Direction direction = LedAreaSelection::direction(start, end);
    qCDebug(lcPanel) << "Lighting_View::selectLedsInBand direction" << direction;

    // Band coordinates are page coordinates: the band widget stands at the page's origin.
    const QPoint bandOrigin = palette_draw_rect->pos();
    for (int i = 0; i < SlotCount; ++i) {
        Memory_RGB_View* strip = memoryRGBView[i];
        if (!strip->available)
            continue;
        for (int led = 0; led < Memory_RGB_View::LedCount; ++led) {
            QPushButton* button = strip->btn_Led[led];
            const QPoint corner = ledCorner(i, led) - bandOrigin;
            if (button->isChecked() || !LedAreaSelection::contains(direction, start, end, corner))
                continue;
            button->setChecked(true);
            if (memoryData[i].colorMode == LightModeTable::ColorSingle ||
                memoryData[i].colorMode == LightModeTable::ColorOff) {
                for (QPushButton* other : strip->btn_Led)
                    other->setChecked(true);
            }
            strip->slot_SelectLED();
        }
    }
}

// ----- painting and the colour entry fields
// -------------------------------------------------------

void Lighting_View::paintEvent(QPaintEvent* /*event*/)
{
    if (selectAreaPointList.isEmpty())
        return;
    QPainter painter(this);
    const int middle = widget_memory_Control->width() / 2;
    QLinearGradient outline(middle, 0, middle, height());
    outline.setColorAt(0.0, kOutlineTop);
    outline.setColorAt(1.0, kFieldBottom);
    QLinearGradient field(middle, 0, middle, height());
    field.setColorAt(0.0, kFieldTop);
    field.setColorAt(1.0, kFieldBottom);

    painter.setBrush(field);
    painter.setPen(
        QPen(QBrush(outline), kOutlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawPolygon(selectAreaPointList, Qt::OddEvenFill);
}

bool Lighting_View::eventFilter(QObject* watched, QEvent* event)
{
    QLineEdit* const edits[] = {lineEdit_R_Value, lineEdit_G_Value, lineEdit_B_Value};
    QSlider* const sliders[] = {slider_R_Value, slider_G_Value, slider_B_Value};
    for (int c = 0; c < 3; ++c) {
        if (watched != edits[c])
            continue;
        if (event->type() == QEvent::FocusIn) {
            qCDebug(lcPanel) << edits[c]->objectName() << "FocusIn";
        } else if (event->type() == QEvent::FocusOut) {
            qCDebug(lcPanel) << qPrintable(edits[c]->objectName() + QStringLiteral(" FocusOut"));
            // An entry that was not confirmed with Return is discarded.
            edits[c]->setText(QString::number(sliders[c]->value()));
        }
        return QWidget::eventFilter(watched, event);
    }

    // A strip's backdrop follows the strip while it moves.
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        for (int i = 0; i < SlotCount; ++i) {
            if (watched == memoryRGBView[i] && slotLabel[i]) {
                slotLabel[i]->setGeometry(memoryRGBView[i]->geometry().adjusted(
                    -kWellMargin, -kWellMargin, kWellMargin, kWellMargin));
                break;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}
