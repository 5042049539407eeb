#include "LightingDeck.h"

#include "Accessibility.h"
#include "ColorEntry.h"
#include "LightModeTable.h"
#include "LightingLook.h"
#include "Lighting_View.h"
#include "Log.h"
#include "SwitchButton.h"

#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSlider>
#include <QStandardItemModel>

using namespace LightingLook;

namespace {

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

} // namespace

LightingDeck::LightingDeck(QWidget* page)
{
    widget_Lighting_Control = new QWidget(page);
    widget_Lighting_Control->setObjectName(QStringLiteral("widget_Lighting_Control"));
    widget_Lighting_Control->setAttribute(Qt::WA_StyledBackground);
    widget_Lighting_Control->setStyleSheet(QString::fromLatin1(kDeckStyle));
    widget_Lighting_Control->setGeometry(kDeckRect);

    // In this order: the later widgets stand above the earlier ones where they overlap.
    createModeControls(widget_Lighting_Control);
    colorEntry = new ColorEntry(widget_Lighting_Control);
    createBrightness(widget_Lighting_Control);
    createSwitchAndActions(widget_Lighting_Control);
}

void LightingDeck::addKeyedItem(QComboBox* combo, const QString& key)
{
    combo->addItem(Lighting_View::tr(qPrintable(key)), key);
}

void LightingDeck::retranslateCombo(QComboBox* combo)
{
    for (int i = 0; i < combo->count(); ++i) {
        const QString key = combo->itemData(i).toString();
        if (!key.isEmpty())
            combo->setItemText(i, Lighting_View::tr(qPrintable(key)));
    }
}

void LightingDeck::appendHiddenEmptyItem(QComboBox* combo)
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

void LightingDeck::createModeControls(QWidget* deck)
{
    btn_LightMode = new QPushButton(Lighting_View::tr("Flow"), deck);
    btn_LightMode->setObjectName(QStringLiteral("btn_LightMode"));
    btn_LightMode->setGeometry(kLightModeRect);
    // Focus from Tab only: a click leaves the focus with the open list, so a second click closes
    // the list instead of reopening it.
    Accessibility::makeTabReachable(btn_LightMode);
    btn_LightMode->setStyleSheet(QString::fromLatin1(kLightModeButtonStyle));

    label_LightModeArrow = new QLabel(QStringLiteral("\u25BC"), btn_LightMode);
    label_LightModeArrow->setObjectName(QStringLiteral("label_LightModeArrow"));
    label_LightModeArrow->setStyleSheet(QString::fromLatin1(kLightModeArrowStyle));
    label_LightModeArrow->setAlignment(Qt::AlignCenter);
    label_LightModeArrow->setGeometry(kLightModeRect.width() - kModeArrowRight - kModeArrowWidth, 0,
                                      kModeArrowWidth, kLightModeRect.height());
    label_LightModeArrow->setAttribute(Qt::WA_TransparentForMouseEvents);

    label_MB_Sync = new QLabel(Lighting_View::tr("MB_Sync_Warning_Content"), deck);
    label_MB_Sync->setObjectName(QStringLiteral("label_MB_Sync"));
    label_MB_Sync->setStyleSheet(QString::fromLatin1(kMbSyncStyle));
    label_MB_Sync->setWordWrap(true);
    label_MB_Sync->setGeometry(kLightModeRect.right() + 1 + kMbSyncGap,
                               kLightModeRect.top() - kMbSyncGap, kMbSyncSize.width(),
                               kMbSyncSize.height());
    label_MB_Sync->hide();

    label_colorMode = new QLabel(Lighting_View::tr("Color Mode"), deck);
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

    label_ligheSpeed = new QLabel(Lighting_View::tr("Light Speed"), deck);
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

void LightingDeck::createBrightness(QWidget* deck)
{
    label_Brightness = new QLabel(Lighting_View::tr("Brightness"), deck);
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

void LightingDeck::createSwitchAndActions(QWidget* deck)
{
    label_TurnLight = new QLabel(Lighting_View::tr("Light Switch"), deck);
    label_TurnLight->setObjectName(QStringLiteral("label_TurnLight"));
    label_TurnLight->setGeometry(kTurnLightLabelRect);

    switchButton = new SwitchButton(kSwitchRect.width(), kSwitchRect.height(), deck);
    switchButton->setObjectName(QStringLiteral("switchButton"));
    switchButton->move(kSwitchRect.topLeft());
    switchButton->setChecked(true);

    label_Switch = new QLabel(Lighting_View::tr("ON"), deck);
    label_Switch->setObjectName(QStringLiteral("label_Switch"));
    label_Switch->setStyleSheet(QString::fromLatin1(kSwitchLabelStyle));
    label_Switch->setGeometry(kSwitchLabelRect);

    btn_Apply = new QPushButton(Lighting_View::tr("Apply"), deck);
    btn_Apply->setObjectName(QStringLiteral("btn_Apply"));
    btn_Apply->setStyleSheet(QString::fromLatin1(kApplyStyle));
    btn_Apply->setGeometry(kApplyRect);

    btn_Default = new QPushButton(Lighting_View::tr("Default"), deck);
    btn_Default->setObjectName(QStringLiteral("btn_Default"));
    btn_Default->setGeometry(kDefaultRect);

    // On Linux a combo box's name is its current item; its caption is given as its label.
    label_colorMode->setBuddy(comboBox_ColorMode);
    label_ligheSpeed->setBuddy(comboBox_LightSpeed);
    nameControls();
}

void LightingDeck::nameControls()
{
    comboBox_ColorMode->setAccessibleName(label_colorMode->text());
    comboBox_LightSpeed->setAccessibleName(label_ligheSpeed->text());
    slider_Light->setAccessibleName(label_Brightness->text());
    switchButton->setAccessibleName(label_TurnLight->text());
    btn_LightMode->setAccessibleName(Lighting_View::tr("Light Mode"));
}

void LightingDeck::retranslate()
{
    label_MB_Sync->setText(Lighting_View::tr("MB_Sync_Warning_Content"));
    label_colorMode->setText(Lighting_View::tr("Color Mode"));
    label_ligheSpeed->setText(Lighting_View::tr("Light Speed"));
    label_TurnLight->setText(Lighting_View::tr("Light Switch"));
    label_Brightness->setText(Lighting_View::tr("Brightness"));
    showSwitchLabel(switchButton->isChecked());
    btn_Apply->setText(Lighting_View::tr("Apply"));
    btn_Default->setText(Lighting_View::tr("Default"));
    nameControls();
    retranslateCombo(comboBox_ColorMode);
    retranslateCombo(comboBox_LightSpeed);
}

void LightingDeck::applyLanguageFonts(int language)
{
    const LanguageFonts fonts = fontsForLanguage(language);
    btn_Default->setStyleSheet(QString::fromLatin1(kDefaultStyle).arg(fonts.defaultButton));
    label_colorMode->setStyleSheet(styled(kCaptionStyle, label_colorMode->objectName(),
                                          QString::number(fonts.colorModeLabel)));
    label_ligheSpeed->setStyleSheet(
        styled(kCaptionStyle, label_ligheSpeed->objectName(), QString::number(fonts.speedLabel)));
    label_TurnLight->setStyleSheet(styled(kCaptionStyle, label_TurnLight->objectName(),
                                          QString::number(fonts.turnLightLabel)));
    const int speedCombo = language == kLanguageRussian ? kSpeedComboSmall : kComboFont;
    comboBox_LightSpeed->setStyleSheet(
        styled(kComboStyle, comboBox_LightSpeed->objectName(), QString::number(speedCombo)));
}

void LightingDeck::showSwitchState(bool on)
{
    switchButton->setChecked(on);
    showSwitchLabel(on);
}

void LightingDeck::showSwitchLabel(bool on)
{
    label_Switch->setText(on ? Lighting_View::tr("ON") : Lighting_View::tr("OFF"));
}

void LightingDeck::setBrightness(float bright)
{
    // Multiplied in single precision so that every value sent as n / 10 comes back as n.
    slider_Light->setValue(static_cast<int>(bright * static_cast<float>(kBrightSteps)));
}

void LightingDeck::showMbSyncWarning(bool shown)
{
    if (shown) {
        qCDebug(lcPanel) << "label_MB_Sync->setHidden(false)";
        label_MB_Sync->setHidden(false);
        // The warning reaches over the colour wheel; it must not be painted under it.
        label_MB_Sync->raise();
    } else {
        qCDebug(lcPanel) << "label_MB_Sync->setHidden(true)";
        label_MB_Sync->setHidden(true);
    }
}
