#pragma once

#include "norvalex_lighting.h"

#include <cstdint>

#include <QList>
#include <QStringList>
#include <QWidget>

class Clean_View;
class Information_View;
class Lighting_View;
class Loading_View;
class Noti_View;
class QButtonGroup;
class QCloseEvent;
class QLabel;
class QPushButton;
class Setting_View;

// The visible frameless window: background, logo, page menu, window buttons and the page area.
// It creates each page the first time it is chosen and relays every page signal to the
// controller and every controller signal to the pages.
class Main_View : public QWidget
{
    Q_OBJECT

public:
    // Button-group ids of the menu entries (3 is not used).
    enum MenuId { MenuInfo = 0, MenuLighting = 1, MenuNoti = 2, MenuSetting = 4 };

    explicit Main_View(QWidget* parent = nullptr);
    ~Main_View() override;

    // Private window messages: quit, bring to front, quit when started by the control service.
    void handleNativeMessage(unsigned message, quintptr wParam, qintptr lParam);

    // Pages, each null until first shown.
    Information_View* information_View = nullptr;
    Lighting_View* lighting_View = nullptr;
    Noti_View* noti_View = nullptr;
    Clean_View* clean_View = nullptr;
    Setting_View* setting_View = nullptr;

    Loading_View* loading_View = nullptr;

    QWidget* widget_Menu = nullptr;
    QPushButton* btn_Info = nullptr;
    QPushButton* btn_Lighting = nullptr;
    QPushButton* btn_Noti = nullptr;
    QPushButton* btn_Setting = nullptr;
    QButtonGroup* buttonGroup_Menu = nullptr;
    QLabel* label_Logo = nullptr;
    QLabel* label_MenuBar_Image = nullptr;
    QPushButton* btn_Close = nullptr;
    QPushButton* btn_Min = nullptr;

signals:
    void setSystemData(HWData* data);
    void setSystemData1(HWData data);
    void changeColor(int slot, COLORREF* rgb, COLORREF singleRGB, float* bright,
                     float singleBright);
    void setHWData(HWData data);
    void updatePreview(int slot, COLORREF* rgb);
    void updatePreviewList(QList<COLORREF*> list);
    void changeLightMode(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void setRGB(int slot, COLORREF* rgb, COLORREF singleRGB, float* bright, float singleBright);
    void requestSetRGB();
    void requestSetLighting();
    void setLighting(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void slot_Close();
    void changeMemorySlotNumber(int count, int* order);
    void sendNotiData(NotiEventData data);
    void setMemorySlotNumber(int count, int* order);
    void setMemoryLEDNumber(int count, int* ledNum);
    void requestSetSlotNum();
    void requestSetLEDNum();
    void requestNotiData();
    void setNotiData(NotiEventData data);
    void select_Profile(int profile);
    void setProfile(int profile);
    void requestSetProfile();
    void changeSettingData(SettingData data);
    void requestSettingData();
    void setSettingData(SettingData data);
    void updateLanguage();

public slots:
    void slot_show_Info();
    void slot_show_Lighting();
    void slot_show_Noti();
    void slot_show_Clean();
    void slot_show_Setting();
    void slot_show_Menu();
    void setSlotNumber(int slotCount, int memoryCount);
    void updateLanguage_MainView();
    void updateViewData();
    void setQXModuleType(QStringList list);

protected:
    // A close from the window manager (Alt+F4, the taskbar) ends the panel like btn_Close.
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;
    // From the frame itself (focus taken by a click on it), Tab starts at the menu and
    // Shift+Tab at the close button.
    bool focusNextPrevChild(bool next) override;

private:
    static void receivePlatformMessage(void* context, unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam);

    void createMenu();
    void createWindowButtons();
    QPushButton* createMenuButton(const char* name, MenuId id);
    void applyMenuTexts();
    void placeMenuBar();
    // Hides every existing page except `keep` and cancels an unfinished slot edit.
    void leaveOtherPages(QWidget* keep);
    // Keeps the menu and the loading overlay above a page that was just created.
    void raiseChrome();
    void placeWindowButtonsLast();

    void createInformationPage();
    void createLightingPage();
    void createNotiPage();
    void createCleanPage();
    void createSettingPage();

    bool dragging = false;
    qint32 pressX = 0;
    qint32 pressY = 0;
    qint32 slotCount = 0;
    qint32 memoryCount = 0;
    void* messageListener = nullptr;
};
