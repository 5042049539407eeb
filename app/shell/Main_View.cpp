#include "Main_View.h"

#include "Accessibility.h"
#include "AppGlobals.h"
#include "Clean_View.h"
#include "FramePictures.h"
#include "Information_Slots_View.h"
#include "Information_View.h"
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Log.h"
#include "Noti_View.h"
#include "Platform.h"
#include "Setting_View.h"
#include "WindowIconAfterFirstFrame.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#ifdef Q_OS_WIN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#endif

namespace {
constexpr int kFrameWidth = 1000;
constexpr int kFrameHeight = 600;
const char* const kWindowTitle = "NORVALEX RGB";
#ifndef Q_OS_WIN
// The title under which the platform layer delivers this window's messages.
const wchar_t* const kMessageWindowTitle = L"NORVALEX RGB";
#endif

constexpr int kLogoWidth = 146;
constexpr int kLogoHeight = 23;
constexpr int kLogoY = 10;
constexpr int kLogoInset = 40;
const char* const kLogoStyle = "border-image: url(:/QXRGBMemory/Images/QX_Logo.png);";

const char* const kMenuBarStyle =
    "QLabel#label_MenuBar_Image{image: url(:/QXRGBMemory/Images/Menu_Bar.png);}";
// The bar marks the chosen entry from just left of the menu.
constexpr int kMenuBarX = 16;
constexpr int kMenuBarWidth = 4;
constexpr int kMenuBarHeight = 24;

const QRect kMenuRect(30, 70, 156, 218);
constexpr int kMenuButtonWidth = 186;
constexpr int kMenuButtonHeight = 40;
constexpr int kMenuSpacing = 12;

constexpr int kCloseSize = 15;
constexpr int kCloseRightInset = 35;
constexpr int kMinWidth = 18;
constexpr int kMinHeight = 15;
constexpr int kMinRightInset = 60;
constexpr int kWindowButtonY = 15;
const char* const kCloseStyle =
    "QPushButton#btn_Close{border-image: url(:/QXRGBMemory/Images/Close.png);}";
const char* const kMinStyle =
    "QPushButton#btn_Min{border-image: url(:/QXRGBMemory/Images/Min.png);}";

// The window moves only when grabbed in the title strip, left of the window buttons.
constexpr int kTitleStripHeight = 45;
constexpr int kDragRightLimit = 925;

const QRect kInformationRect(200, 80, 800, 510);
const QRect kLightingRect(86, 40, 914, 560);
const QRect kSidePageRect(186, 80, 814, 510);

QString menuButtonStyle(const QString& name)
{
    return QStringLiteral("QPushButton#") % name %
           QStringLiteral("{font-family: Arial; font-size:18px; border:none; color:gray;"
                          "text-align :left;}QPushButton#") %
           name %
           QStringLiteral("::checked {font-family: Arial; font-size:18px; border:none; "
                          "color:white;text-align :left;}");
}
} // namespace

Main_View::Main_View(QWidget* parent) : QWidget(parent)
{
    Accessibility::install();
    setWindowTitle(QString::fromLatin1(kWindowTitle));
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    WindowIconAfterFirstFrame::install(this);
    resize(kFrameWidth, kFrameHeight);
    setObjectName(QStringLiteral("Main_View"));
    setFocusPolicy(Qt::ClickFocus);

    label_Logo = new QLabel(this);
    label_Logo->setObjectName(QStringLiteral("label_Logo"));
    label_Logo->setGeometry((width() - kLogoInset) / 2, kLogoY, kLogoWidth, kLogoHeight);
    label_Logo->setStyleSheet(QString::fromLatin1(kLogoStyle));

    label_MenuBar_Image = new QLabel(this);
    label_MenuBar_Image->setObjectName(QStringLiteral("label_MenuBar_Image"));
    label_MenuBar_Image->setStyleSheet(QString::fromLatin1(kMenuBarStyle));
    label_MenuBar_Image->resize(kMenuBarWidth, kMenuBarHeight);

    createMenu();
    slot_show_Info();
    createWindowButtons();
    placeMenuBar();

    // Last before the loading view, so that its decode has had the page's construction to run.
    QPalette framePalette = palette();
    framePalette.setBrush(QPalette::All, QPalette::Window,
                          QBrush(FramePictures::background(size())));
    setPalette(framePalette);
    setAutoFillBackground(true);

    loading_View = new Loading_View(this);
    loading_View->setGeometry(0, 0, width(), height());
    loading_View->isStartLoading(true);

#ifndef Q_OS_WIN
    // Elsewhere the messages arrive through the platform layer instead of nativeEvent.
    messageListener =
        Platform::listenForMessages(kMessageWindowTitle, &Main_View::receivePlatformMessage, this);
#endif
}

Main_View::~Main_View()
{
    Platform::stopListening(messageListener);
}

void Main_View::receivePlatformMessage(void* context, unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam)
{
    static_cast<Main_View*>(context)->handleNativeMessage(message, wParam, lParam);
}

QPushButton* Main_View::createMenuButton(const char* name, MenuId id)
{
    const QString objectName = QString::fromLatin1(name);
    auto* button = new QPushButton(widget_Menu);
    button->setObjectName(objectName);
    button->setCheckable(true);
    button->setFixedSize(kMenuButtonWidth, kMenuButtonHeight);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(menuButtonStyle(objectName));
    buttonGroup_Menu->addButton(button, id);
    Accessibility::markPageTab(button);
    widget_Menu->layout()->addWidget(button);
    return button;
}

void Main_View::createMenu()
{
    widget_Menu = new QWidget(this);
    widget_Menu->setObjectName(QStringLiteral("Widget_Menu"));
    widget_Menu->setGeometry(kMenuRect);
    auto* layout = new QVBoxLayout(widget_Menu);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kMenuSpacing);

    buttonGroup_Menu = new QButtonGroup(this);
    buttonGroup_Menu->setExclusive(true);
    btn_Info = createMenuButton("btn_Info", MenuInfo);
    btn_Lighting = createMenuButton("btn_Lighting", MenuLighting);
    btn_Noti = createMenuButton("btn_Noti", MenuNoti);
    btn_Setting = createMenuButton("btn_Setting", MenuSetting);
    layout->addStretch(1);
    applyMenuTexts();

    connect(btn_Info, &QPushButton::released, this, &Main_View::slot_show_Info);
    connect(btn_Lighting, &QPushButton::released, this, &Main_View::slot_show_Lighting);
    connect(btn_Noti, &QPushButton::released, this, &Main_View::slot_show_Noti);
    connect(btn_Setting, &QPushButton::released, this, &Main_View::slot_show_Setting);
    btn_Info->setChecked(true);
}

void Main_View::createWindowButtons()
{
    btn_Close = new QPushButton(this);
    btn_Close->setObjectName(QStringLiteral("btn_Close"));
    btn_Close->setGeometry(width() - kCloseRightInset, kWindowButtonY, kCloseSize, kCloseSize);
    btn_Close->setStyleSheet(QString::fromLatin1(kCloseStyle));
    btn_Close->setCursor(Qt::PointingHandCursor);
    Accessibility::makeTabReachable(btn_Close);
    connect(btn_Close, &QPushButton::released, this, &Main_View::slot_Close);

    btn_Min = new QPushButton(this);
    btn_Min->setObjectName(QStringLiteral("btn_Min"));
    btn_Min->setGeometry(width() - kMinRightInset, kWindowButtonY, kMinWidth, kMinHeight);
    btn_Min->setStyleSheet(QString::fromLatin1(kMinStyle));
    btn_Min->setCursor(Qt::PointingHandCursor);
    Accessibility::makeTabReachable(btn_Min);
    connect(btn_Min, &QPushButton::released, this, &QWidget::showMinimized);
    applyMenuTexts();
    placeWindowButtonsLast();
}

void Main_View::applyMenuTexts()
{
    btn_Info->setText(tr("Information"));
    btn_Lighting->setText(tr("Lighting"));
    btn_Noti->setText(tr("Notification"));
    btn_Setting->setText(tr("Settings"));
    if (btn_Close) {
        btn_Close->setAccessibleName(tr("Close"));
        btn_Min->setAccessibleName(tr("Minimize"));
    }
}

void Main_View::placeMenuBar()
{
    QAbstractButton* checked = buttonGroup_Menu->checkedButton();
    if (!checked || checked->isHidden()) {
        label_MenuBar_Image->hide();
        return;
    }
    widget_Menu->layout()->activate();
    const QPoint buttonTop = checked->mapTo(this, QPoint(0, 0));
    label_MenuBar_Image->move(kMenuBarX, buttonTop.y() + (checked->height() - kMenuBarHeight) / 2);
    label_MenuBar_Image->show();
}

void Main_View::leaveOtherPages(QWidget* keep)
{
    QWidget* const pages[] = {information_View, lighting_View, noti_View, clean_View, setting_View};
    for (QWidget* page : pages) {
        if (page && page != keep)
            page->hide();
    }
    // Leaving the slot editor unfinished throws the edit away.
    if (lighting_View && lighting_View->btn_Edit_Cancel->isVisibleTo(lighting_View))
        emit lighting_View->btn_Edit_Cancel->released();
}

void Main_View::raiseChrome()
{
    widget_Menu->raise();
    label_MenuBar_Image->raise();
    if (btn_Close)
        btn_Close->raise();
    if (btn_Min)
        btn_Min->raise();
    if (loading_View)
        loading_View->raise();
    placeWindowButtonsLast();
}

bool Main_View::focusNextPrevChild(bool next)
{
    if (btn_Close && (!focusWidget() || focusWidget() == this)) {
        if (next)
            btn_Info->setFocus(Qt::TabFocusReason);
        else
            btn_Close->setFocus(Qt::BacktabFocusReason);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

void Main_View::placeWindowButtonsLast()
{
    if (!btn_Close || !btn_Min)
        return;
    // The focus chain is a ring in which new pages join at no fixed place. Minimise, close and
    // the menu entries are put one after another behind the logo, which takes no focus; so Tab
    // runs menu, page, minimise, close and back to the menu. (A container as anchor would not
    // do: Qt places after its last focusable child.)
    QWidget* const order[] = {label_Logo,   btn_Min,  btn_Close,  btn_Info,
                              btn_Lighting, btn_Noti, btn_Setting};
    for (size_t i = 1; i < sizeof(order) / sizeof(order[0]); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void Main_View::createInformationPage()
{
    information_View = new Information_View(this);
    information_View->setGeometry(kInformationRect);
    const auto direct = Qt::DirectConnection;
    connect(this, &Main_View::setSystemData, information_View, &Information_View::setSystemData,
            direct);
    connect(this, &Main_View::setSystemData1, information_View, &Information_View::setSystemData1,
            direct);
    connect(this, &Main_View::setHWData, information_View, &Information_View::setHWData, direct);
    connect(this, &Main_View::updateLanguage, information_View,
            &Information_View::updateLanguage_Info, direct);
    raiseChrome();
}

void Main_View::createLightingPage()
{
    lighting_View = new Lighting_View(this);
    lighting_View->setGeometry(kLightingRect);
    const auto direct = Qt::DirectConnection;
    connect(lighting_View, &Lighting_View::changeColor, this, &Main_View::changeColor, direct);
    connect(lighting_View, &Lighting_View::changeLightMode, this, &Main_View::changeLightMode,
            direct);
    connect(lighting_View, &Lighting_View::changeMemorySlotNumber, this,
            &Main_View::changeMemorySlotNumber, direct);
    connect(lighting_View, &Lighting_View::select_Profile, this, &Main_View::select_Profile,
            direct);
    connect(this, &Main_View::updatePreview, lighting_View, &Lighting_View::updatePreview, direct);
    connect(this, &Main_View::updatePreviewList, lighting_View,
            &Lighting_View::sendUpdatePreviewList, direct);
    connect(this, &Main_View::setRGB, lighting_View, &Lighting_View::setRGB, direct);
    connect(this, &Main_View::setLighting, lighting_View, &Lighting_View::setLighting, direct);
    connect(this, &Main_View::setMemorySlotNumber, lighting_View,
            &Lighting_View::setMemorySlotNumber, direct);
    connect(this, &Main_View::setMemoryLEDNumber, lighting_View, &Lighting_View::setMemoryLEDNumber,
            direct);
    connect(this, &Main_View::setProfile, lighting_View, &Lighting_View::slot_setProfile, direct);
    connect(this, &Main_View::updateLanguage, lighting_View,
            &Lighting_View::updateLanguage_Lighting, direct);
    raiseChrome();
}

void Main_View::createNotiPage()
{
    noti_View = new Noti_View(this);
    noti_View->setGeometry(kSidePageRect);
    const auto direct = Qt::DirectConnection;
    connect(noti_View, &Noti_View::sendNotiData, this, &Main_View::sendNotiData, direct);
    connect(this, &Main_View::setNotiData, noti_View, &Noti_View::setNotiData, direct);
    connect(this, &Main_View::updateLanguage, noti_View, &Noti_View::updateLanguage_Noti, direct);
    raiseChrome();
}

void Main_View::createCleanPage()
{
    clean_View = new Clean_View(this);
    clean_View->setGeometry(kSidePageRect);
    connect(this, &Main_View::updateLanguage, clean_View, &Clean_View::updateLanguage_Clean,
            Qt::DirectConnection);
    raiseChrome();
}

void Main_View::createSettingPage()
{
    setting_View = new Setting_View(this);
    setting_View->setGeometry(kSidePageRect);
    const auto direct = Qt::DirectConnection;
    connect(setting_View, &Setting_View::changeSettingData, this, &Main_View::changeSettingData,
            direct);
    connect(this, &Main_View::setSettingData, setting_View, &Setting_View::setSettingData, direct);
    connect(this, &Main_View::updateLanguage, setting_View, &Setting_View::updateLanguage_Setting,
            direct);
    raiseChrome();
}

void Main_View::slot_show_Info()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Info";
    leaveOtherPages(information_View);
    if (!information_View) {
        qCDebug(lcPanel) << "information_View NULL";
        createInformationPage();
    } else {
        qCDebug(lcPanel) << "information_View";
    }
    information_View->show();
    btn_Info->setChecked(true);
    information_View->slotsView()->resetSlotButtons(slotCount);
    placeMenuBar();
}

void Main_View::slot_show_Lighting()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Lighting";
    leaveOtherPages(lighting_View);
    if (!lighting_View) {
        qCDebug(lcPanel) << "lighting_View NULL";
        createLightingPage();
    } else {
        qCDebug(lcPanel) << "lighting_View";
    }
    lighting_View->show();
    btn_Lighting->setChecked(true);
    lighting_View->setMemorySlots(slotCount, memoryCount);
    emit requestSetSlotNum();
    emit requestSetLEDNum();
    emit requestSetRGB();
    emit requestSetLighting();
    emit requestSetProfile();
    emit updateLanguage();
    placeMenuBar();
}

void Main_View::slot_show_Noti()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Noti";
    leaveOtherPages(noti_View);
    if (!noti_View) {
        qCDebug(lcPanel) << "noti_View  NULL";
        createNotiPage();
    } else {
        qCDebug(lcPanel) << "noti_View";
    }
    noti_View->show();
    btn_Noti->setChecked(true);
    emit requestNotiData();
    emit updateLanguage();
    placeMenuBar();
}

void Main_View::slot_show_Clean()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Clean";
    leaveOtherPages(clean_View);
    if (!clean_View) {
        qCDebug(lcPanel) << "clean_View  NULL";
        createCleanPage();
    } else {
        qCDebug(lcPanel) << "clean_View";
    }
    clean_View->show();
}

void Main_View::slot_show_Setting()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Setting";
    leaveOtherPages(setting_View);
    if (!setting_View) {
        qCDebug(lcPanel) << "clean_View  NULL";
        createSettingPage();
    } else {
        qCDebug(lcPanel) << "setting_View";
    }
    setting_View->show();
    btn_Setting->setChecked(true);
    emit requestSettingData();
    placeMenuBar();
}

void Main_View::slot_show_Menu()
{
    qCDebug(lcPanel) << "Main_View::slot_show_Menu";
}

void Main_View::setSlotNumber(int slotCount, int memoryCount)
{
    qCDebug(lcPanel) << "Main_View::setSlotNumber:" << slotCount << memoryCount;
    this->slotCount = slotCount;
    this->memoryCount = memoryCount;
    if (information_View)
        information_View->slotsView()->resetSlotButtons(slotCount);
    if (lighting_View)
        lighting_View->setMemorySlots(slotCount, memoryCount);
    if (memoryCount == 0 && slotCount > 0) {
        loading_View->isStartLoading(false);
        loading_View->show();
        loading_View->isProductWarning(true);
    }
    if (loading_View)
        loading_View->isStartLoading(false);
}

void Main_View::setQXModuleType(QStringList list)
{
    static const char* const supportedCodes[] = {"KX31", "KX44", "KX52", "KX67",
                                                 "KZ71", "KZ72", "KZ73", "KZ74"};
    static const QString newGeneration = QStringLiteral("KX44");

    qCDebug(lcPanel) << "Main_View::setQXModuleType:" << list;
    extendedFeatures = false;
    for (const QString& text : qAsConst(list)) {
        for (const char* code : supportedCodes) {
            if (text.contains(QLatin1String(code))) {
                extendedFeatures = true;
                break;
            }
        }
        if (text.contains(newGeneration)) {
            qCDebug(lcPanel) << "isNewMode == 1";
            isNewMode = true;
        }
    }
    if (!extendedFeatures)
        btn_Lighting->hide();
    placeMenuBar();
}

void Main_View::updateLanguage_MainView()
{
    qCDebug(lcPanel) << "Main_View::updateLanguage_MainView()";
    applyMenuTexts();
    emit updateLanguage();
}

void Main_View::updateViewData()
{
    qCDebug(lcPanel) << "Main_View::updateViewData()";
    if (lighting_View && lighting_View->isVisible()) {
        emit requestSetSlotNum();
        emit requestSetRGB();
        emit requestSetLighting();
        emit requestSetProfile();
    }
    if (noti_View && noti_View->isVisible())
        emit requestNotiData();
    if (setting_View && setting_View->isVisible())
        emit requestSettingData();
}

void Main_View::closeEvent(QCloseEvent* event)
{
    qCDebug(lcPanel) << "Main_View::closeEvent";
    event->accept();
    emit slot_Close();
}

void Main_View::handleNativeMessage(unsigned message, quintptr wParam, qintptr /*lParam*/)
{
    switch (message) {
    case Platform::kMessageQuit:
        QCoreApplication::quit();
        break;
    case Platform::kMessageRaise:
        qCDebug(lcPanel) << "receive 8302";
        show();
        setWindowState(Qt::WindowActive);
        activateWindow();
        break;
    case Platform::kMessageQuitIfOpened:
        if (wParam != 0 && programStarted)
            QCoreApplication::quit();
        break;
    default:
        break;
    }
}

bool Main_View::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
#ifdef Q_OS_WIN
    if (message && eventType == "windows_generic_MSG") {
        const MSG* msg = static_cast<const MSG*>(message);
        handleNativeMessage(msg->message, msg->wParam, msg->lParam);
    }
#endif
    return QWidget::nativeEvent(eventType, message, result);
}

void Main_View::mousePressEvent(QMouseEvent* event)
{
    pressX = event->x();
    pressY = event->y();
    dragging =
        event->button() == Qt::LeftButton && pressY < kTitleStripHeight && pressX < kDragRightLimit;
}

void Main_View::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging)
        move(pos() + event->pos() - QPoint(pressX, pressY));
}

void Main_View::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    dragging = false;
}
