#pragma once

#include "LightingLibrary.h"
#include "norvalex_lighting.h"

#include <QList>
#include <QMainWindow>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <functional>

class Main_View;
class QTimer;
class QTranslator;
class Widget_LocationPolicy;

// The program's one controller: owns the frame, calls the lighting library, polls the hardware
// data every second and turns page requests into library calls and answers. It never appears
// on screen; its window title is what a second instance looks for.
class QXRGBMemory : public QMainWindow
{
    Q_OBJECT

public:
    // `libraryPath` names the lighting library to load; empty loads "NORVALEX_Lighting".
    explicit QXRGBMemory(const QString& libraryPath = QString(), QWidget* parent = nullptr);
    ~QXRGBMemory() override;

    void setProgramStart(bool started);
    void changeLanguage(int index);
    void receiveRefreshView();
    // The 0x8301/0x8302/0x8303 handling shared by nativeEvent and the POSIX message listener.
    void handleNativeMessage(unsigned message, quintptr wParam, qintptr lParam);
    static void nativeMessageHandler(void* context, unsigned message, std::uintptr_t wParam,
                                     std::intptr_t lParam);

    Main_View* mainView() const { return m_mainView; }
    Widget_LocationPolicy* locationPolicy() const { return m_locationPolicy; }
    QTimer* pollTimer() const { return m_pollTimer; }
    QTranslator* translator() const { return m_translator; }
    bool isInitDone() const { return m_initDone; }
    // The time source of the freshness rule (seconds since the epoch, truncated to 32 bits).
    void setClock(std::function<quint32()> clock);
    // Replaces the Control-executable launcher (tests count launches instead).
    void setControlLauncher(std::function<void()> launcher);

signals:
    void setSystemData(HWData*);
    void setSystemData1(HWData);
    void setHWData(HWData);
    void updatePreview(int, COLORREF*);
    void updatePreviewList(QList<COLORREF*>);
    void setRGB(int, COLORREF*, COLORREF, float*, float);
    void setLighting(int, int, int, int, bool);
    void setSlotNum(int, int);
    void setMemorySlotNumber(int, int*);
    void setMemoryLEDNumber(int, int*);
    void setNotiData(NotiEventData);
    void setProfile(int);
    void setSettingData(SettingData);
    void updateLanguage();
    void updateViewData();
    void setQXModuleType(QStringList);

public slots:
    void closeUI();
    void requestUpdateData();
    void requestUpdate_SoftwareRGB();
    void finishEffect(MemoryModuleData*);
    void changeRGBColor(int slot, COLORREF* rgb, COLORREF singleRGB, float* bright,
                        float singleBright);
    void changeLightMode(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void requestSetRGB();
    void requestSetLighting();
    void changeMemorySlotNumber(int count, int* order);
    void slot_NotiData(NotiEventData data);
    void requestSetSlotNum();
    void requestSetLEDNum();
    void requestNotiData();
    void select_Profile(int profile);
    void requestSetProfile();
    void changeSettingData(SettingData data);
    void requestSettingData();
    void LocationWarningCheck(bool ok);

protected:
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    void loadLibrary(const QString& libraryPath);
    void connectFrame();
    // Hands a library callback to the GUI thread unless it already runs there.
    // Runs a handler at once on the GUI thread. From another thread it is handed over, with at
    // most one hand-off of each kind waiting: a handler that runs later reads the newest state.
    static void runOnGuiThread(std::atomic<bool>& pending, void (QXRGBMemory::*handler)());
    static void onLightModeEvent(int32_t value);
    static void onPreviewEvent();

    Main_View* m_mainView = nullptr;
    QTimer* m_pollTimer = nullptr;
    bool m_restartTried = false;
    QTranslator* m_translator = nullptr;
    bool m_initDone = false;
    Widget_LocationPolicy* m_locationPolicy = nullptr;
    QList<COLORREF*> m_softwareRGB;

    LightingLibrary m_library;
    std::function<quint32()> m_clock;
    std::function<void()> m_controlLauncher;
    // Set while a hand-off waits in the GUI thread's queue, so events never pile up.
    static std::atomic<bool> s_refreshPending;
    static std::atomic<bool> s_previewPending;
};
