#include "QXRGBMemory.h"

#include "AppGlobals.h"
#include "DefaultRecords.h"
#include "Languages.h"
#include "Lighting_View.h"
#include "Log.h"
#include "Main_View.h"
#include "Platform.h"
#include "PreviewDemand.h"
#include "Startup.h"
#include "Widget_LocationPolicy.h"

#include <QApplication>
#include <QDateTime>
#include <QThread>
#include <QTimer>
#include <QTranslator>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

constexpr int kPollIntervalMs = 1000;
constexpr quint32 kStaleAfterSeconds = 10;

quint32 systemClock()
{
    return static_cast<quint32>(QDateTime::currentMSecsSinceEpoch() / 1000);
}

} // namespace

std::atomic<bool> QXRGBMemory::s_refreshPending{false};
std::atomic<bool> QXRGBMemory::s_previewPending{false};

QXRGBMemory::QXRGBMemory(const QString& libraryPath, QWidget* parent)
    : QMainWindow(parent), m_clock(systemClock), m_controlLauncher(Startup::startControl)
{
    controllerInstance = this;

    if (Startup::isDebugMode()) {
        Log::install();
        qCDebug(lcPanel) << "Debug模式啟動";
        qCDebug(lcPanel) << "======================START================" << programVersion
                         << "======================";
    }

    m_translator = new QTranslator(this);
    QCoreApplication::removeTranslator(m_translator);
    if (m_translator->load(Languages::fileForIndex(0)))
        QCoreApplication::installTranslator(m_translator);

    setGeometry(QRect());
    hide();
    setWindowTitle(QStringLiteral("NORVALEX RGB Base"));

    m_controlLauncher();
    loadLibrary(libraryPath);

    m_mainView = new Main_View();
    // Minimised before the first show, so that the window manager maps it iconic at once.
    if (startMinimised)
        m_mainView->setWindowState(Qt::WindowMinimized);
    m_mainView->show();
    connectFrame();

    m_pollTimer = new QTimer(this);
    connect(m_pollTimer, &QTimer::timeout, this, &QXRGBMemory::requestUpdateData);
    m_pollTimer->start(kPollIntervalMs);

    // A preview coming on screen shows the colours of now, not those of its last frame.
    connect(&PreviewDemand::instance(), &PreviewDemand::wanted, this,
            &QXRGBMemory::requestUpdate_SoftwareRGB, Qt::QueuedConnection);

    // The preview signals are already among the frame's connections; a second pair would deliver
    // every preview frame twice.

    m_locationPolicy = new Widget_LocationPolicy();
    m_locationPolicy->hide();
}

QXRGBMemory::~QXRGBMemory()
{
    // Callbacks that arrive from now on find no controller and only log.
    controllerInstance = nullptr;
    m_library.RegisterUIEventLightModeFunc(nullptr);
    m_library.RegisterUIPreviewEventFunc(nullptr);
    delete m_locationPolicy;
    delete m_mainView;
}

void QXRGBMemory::loadLibrary(const QString& libraryPath)
{
    if (!m_library.load(libraryPath)) {
        qCDebug(lcPanel) << "bbbbb" << m_library.errorString();
        Platform::messageBox(L"SharedDll Init Failure", L"Error",
                             Platform::MessageIcon::Exclamation);
        return;
    }
    qCDebug(lcPanel) << "aaaaa";
    const QStringList missing = m_library.missingFunctions();
    if (!missing.isEmpty())
        qWarning() << "lighting library lacks" << missing;
    m_library.SharedDLL_init();
    m_library.RegisterUIEventLightModeFunc(&QXRGBMemory::onLightModeEvent);
    m_library.RegisterUIPreviewEventFunc(&QXRGBMemory::onPreviewEvent);
    for (int index = 0; index < NX_MODULE_COUNT; ++index) {
        // The calls are made whether or not the line goes anywhere.
        const int32_t slotNumber = m_library.GetValueMemorySlotNumber(index);
        qCDebug(lcPanel) << "GetValueMemorySlotNumber{" << index << "):" << slotNumber;
    }
}

void QXRGBMemory::connectFrame()
{
    Main_View* frame = m_mainView;
    const auto direct = Qt::DirectConnection;
    connect(this, &QXRGBMemory::setSystemData, frame, &Main_View::setSystemData, direct);
    connect(this, &QXRGBMemory::setSystemData1, frame, &Main_View::setSystemData1, direct);
    connect(this, &QXRGBMemory::setHWData, frame, &Main_View::setHWData, direct);
    connect(frame, &Main_View::slot_Close, this, &QXRGBMemory::closeUI);
    connect(this, &QXRGBMemory::setSlotNum, frame, &Main_View::setSlotNumber, direct);
    connect(this, &QXRGBMemory::setQXModuleType, frame, &Main_View::setQXModuleType, direct);
    connect(frame, &Main_View::changeColor, this, &QXRGBMemory::changeRGBColor, direct);
    connect(frame, &Main_View::changeLightMode, this, &QXRGBMemory::changeLightMode, direct);
    connect(this, &QXRGBMemory::setRGB, frame, &Main_View::setRGB, direct);
    connect(frame, &Main_View::requestSetRGB, this, &QXRGBMemory::requestSetRGB, direct);
    connect(frame, &Main_View::requestSetProfile, this, &QXRGBMemory::requestSetProfile, direct);
    connect(this, &QXRGBMemory::setLighting, frame, &Main_View::setLighting, direct);
    connect(frame, &Main_View::requestSetLighting, this, &QXRGBMemory::requestSetLighting, direct);
    connect(frame, &Main_View::changeMemorySlotNumber, this, &QXRGBMemory::changeMemorySlotNumber,
            direct);
    connect(this, &QXRGBMemory::setMemorySlotNumber, frame, &Main_View::setMemorySlotNumber,
            direct);
    connect(this, &QXRGBMemory::setMemoryLEDNumber, frame, &Main_View::setMemoryLEDNumber, direct);
    connect(frame, &Main_View::requestSetSlotNum, this, &QXRGBMemory::requestSetSlotNum, direct);
    connect(frame, &Main_View::requestSetLEDNum, this, &QXRGBMemory::requestSetLEDNum, direct);
    connect(frame, &Main_View::select_Profile, this, &QXRGBMemory::select_Profile, direct);
    connect(this, &QXRGBMemory::setProfile, frame, &Main_View::setProfile, direct);
    connect(frame, &Main_View::sendNotiData, this, &QXRGBMemory::slot_NotiData, direct);
    connect(frame, &Main_View::requestNotiData, this, &QXRGBMemory::requestNotiData, direct);
    connect(this, &QXRGBMemory::setNotiData, frame, &Main_View::setNotiData, direct);
    connect(frame, &Main_View::changeSettingData, this, &QXRGBMemory::changeSettingData, direct);
    connect(frame, &Main_View::requestSettingData, this, &QXRGBMemory::requestSettingData, direct);
    connect(this, &QXRGBMemory::setSettingData, frame, &Main_View::setSettingData, direct);
    connect(this, &QXRGBMemory::updateLanguage, frame, &Main_View::updateLanguage_MainView, direct);
    connect(this, &QXRGBMemory::updateViewData, frame, &Main_View::updateViewData, direct);
    connect(this, &QXRGBMemory::updatePreview, frame, &Main_View::updatePreview, direct);
    connect(this, &QXRGBMemory::updatePreviewList, frame, &Main_View::updatePreviewList, direct);
}

void QXRGBMemory::setClock(std::function<quint32()> clock)
{
    m_clock = std::move(clock);
}

void QXRGBMemory::setControlLauncher(std::function<void()> launcher)
{
    m_controlLauncher = std::move(launcher);
}

// --- library callbacks --------------------------------------------------------------------------

void QXRGBMemory::runOnGuiThread(std::atomic<bool>& pending, void (QXRGBMemory::*handler)())
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!app || QThread::currentThread() == app->thread()) {
        if (controllerInstance)
            (controllerInstance->*handler)();
        return;
    }
    if (pending.exchange(true))
        return;
    QMetaObject::invokeMethod(
        app,
        [&pending, handler]() {
            pending = false;
            if (controllerInstance)
                (controllerInstance->*handler)();
        },
        Qt::QueuedConnection);
}

void QXRGBMemory::onLightModeEvent(int32_t value)
{
    qCDebug(lcPanel) << "oryControl::my_receive" << value;
    runOnGuiThread(s_refreshPending, &QXRGBMemory::receiveRefreshView);
}

void QXRGBMemory::onPreviewEvent()
{
    // Frames that no preview on screen would show cost nothing, unless their lines are logged.
    if (!PreviewDemand::instance().isWanted() && !lcPanel().isDebugEnabled())
        return;
    qCDebug(lcPanel) << "receivePreview_Event"
                     << QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    runOnGuiThread(s_previewPending, &QXRGBMemory::requestUpdate_SoftwareRGB);
}

void QXRGBMemory::receiveRefreshView()
{
    qCDebug(lcPanel) << "QXRGBMemory::receiveRefreshView()";
    if (m_mainView)
        m_mainView->updateViewData();
}

// --- slots --------------------------------------------------------------------------------------

void QXRGBMemory::closeUI()
{
    qCDebug(lcPanel) << "closeUI";
    QCoreApplication::quit();
}

void QXRGBMemory::requestUpdateData()
{
    const HWData hw = m_library.GetValueHWData();
    qCDebug(lcPanel) << "QXRGBMemory::requestUpdateData memoryCount = " << hw.memoryCount
                     << hw.updateTime << hw.slotCount;

    if (!m_initDone) {
        if (hw.memoryCount >= 0 && hw.slotCount >= 0) {
            emit setSlotNum(hw.slotCount, hw.memoryCount);
            QStringList types;
            for (const MemoryModuleData& module : hw.memoryData)
                types << QString::fromLatin1(module.modelCode,
                                             int(qstrnlen(module.modelCode, NX_TEXT_LEN)));
            emit setQXModuleType(types);
            m_initDone = true;
        }
        const SettingData settings = m_library.GetSettingValue();
        currentSettingData = settings;
        changeLanguage(settings.languageIndex);
        emit updateLanguage();
    } else if (hw.memoryCount == 0 || hw.slotCount == 0) {
        qCDebug(lcPanel) << "QXRGBMemory::requestUpdateData count dropped to 0, initDone = false";
        m_initDone = false;
    }

    const quint32 now = m_clock();
    const quint32 age = now - hw.updateTime;
    const bool fresh = age < kStaleAfterSeconds && hw.memoryCount >= 1;
    if (fresh) {
        emit setHWData(hw);
        m_restartTried = false;
        return;
    }
    emit setHWData(DefaultRecords::hwData());
    if (!m_restartTried) {
        m_restartTried = true;
        m_controlLauncher();
    }
}

void QXRGBMemory::requestUpdate_SoftwareRGB()
{
    qCDebug(lcPanel) << "requestUpdate_SoftwareRGB";
    m_softwareRGB.clear();
    for (int slot = 0; slot < NX_MODULE_COUNT; ++slot)
        m_softwareRGB.append(m_library.GetValueSoftwareRGB(slot));
    emit updatePreviewList(m_softwareRGB);
}

void QXRGBMemory::finishEffect(MemoryModuleData*)
{
    qCDebug(lcPanel) << "QXRGBMemory::finishEffect";
}

void QXRGBMemory::changeRGBColor(int slot, COLORREF* rgb, COLORREF singleRGB, float* bright,
                                 float singleBright)
{
    qCDebug(lcPanel) << "QXRGBMemory::changeColor" << slot << (singleRGB & 0xFF)
                     << ((singleRGB >> 8) & 0xFF) << ((singleRGB >> 16) & 0xFF);
    // The library takes the brightness array before the single colour.
    m_library.SetValueRGB(slot, rgb, bright, singleRGB, singleBright, 8);
}

void QXRGBMemory::changeLightMode(int slot, int lightMode, int colorMode, int lightSpeed,
                                  bool turnOff)
{
    qCDebug(lcPanel) << "QXRGBMemory::changeLightMode:" << slot << lightMode << colorMode
                     << lightSpeed << turnOff;
    if (lightMode == 31 && !m_library.GetSettingValue().currentLocation) {
        m_locationPolicy->retranslate();
        m_locationPolicy->show();
        m_locationPolicy->raise();
        m_locationPolicy->activateWindow();
        // Made anew on every such choice: n choices make one answer arrive n times.
        connect(m_locationPolicy, &Widget_LocationPolicy::sendPushOK, this,
                &QXRGBMemory::LocationWarningCheck);
    }
    m_library.SetValueLighting(slot, lightMode, colorMode, lightSpeed, turnOff);
}

void QXRGBMemory::LocationWarningCheck(bool ok)
{
    qCDebug(lcPanel) << "QXRGBMemory::LocationWarningCheck" << ok;
    SettingData settings = m_library.GetSettingValue();
    settings.currentLocation = ok;
    m_library.SetSettingValue(settings);
}

void QXRGBMemory::changeMemorySlotNumber(int count, int* order)
{
    if (lcPanel().isDebugEnabled()) {
        QDebug line = QMessageLogger().debug(lcPanel());
        line << " QXRGBMemory::changeMemorySlotNumber" << count;
        for (int i = 0; i < NX_MODULE_COUNT; ++i)
            line << order[i];
    }
    m_library.SetSlotNumber(count, order);
}

void QXRGBMemory::requestSetSlotNum()
{
    qCDebug(lcPanel) << "QXRGBMemory::requestSetSlotNum";
    int order[NX_MODULE_COUNT] = {0, 1, 2, 3, 4, 5, 6, 7};
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        order[i] = m_library.GetValueMemorySlotNumber(i);
        const int32_t again = m_library.GetValueMemorySlotNumber(i);
        qCDebug(lcPanel) << "GetValueMemorySlotNumber(" << i << "):" << again;
    }
    if (m_mainView && m_mainView->lighting_View)
        m_mainView->lighting_View->setMemorySlotNumber(NX_MODULE_COUNT, order);
}

void QXRGBMemory::requestSetLEDNum()
{
    int leds[NX_MODULE_COUNT] = {};
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        const int32_t logged = m_library.GetValueHWData().memoryData[i].ledNum;
        qCDebug(lcPanel) << "LEDNUM[" << i << "]:" << logged;
        leds[i] = m_library.GetValueHWData().memoryData[i].ledNum;
    }
    emit setMemoryLEDNumber(NX_MODULE_COUNT, leds);
}

void QXRGBMemory::requestSetLighting()
{
    qCDebug(lcPanel) << "QXRGBMemory::requestSetLighting()";
    for (int slot = 0; slot < NX_MODULE_COUNT; ++slot) {
        const bool turnOff = m_library.GetValueTurnOff(slot);
        const int lightSpeed = m_library.GetValueLightSpeed(slot);
        const int colorMode = m_library.GetValueColorMode(slot);
        const int lightMode = m_library.GetValueLightMode(slot);
        emit setLighting(slot, lightMode, colorMode, lightSpeed, turnOff);
    }
}

void QXRGBMemory::requestSetRGB()
{
    qCDebug(lcPanel) << "QXRGBMemory::requestSetRGB";
    for (int slot = 0; slot < NX_MODULE_COUNT; ++slot) {
        const float singleBright = m_library.GetValueSingleBright(slot);
        float* bright = m_library.GetValueBright(slot);
        const COLORREF singleRGB = m_library.GetValueSingleRGB(slot);
        COLORREF* rgb = m_library.GetValueRGB(slot);
        emit setRGB(slot, rgb, singleRGB, bright, singleBright);
    }
}

void QXRGBMemory::requestSetProfile()
{
    const int32_t logged = m_library.GetProfile();
    qCDebug(lcPanel) << " QXRGBMemory::requestSetProfile" << logged;
    emit setProfile(m_library.GetProfile());
}

void QXRGBMemory::select_Profile(int profile)
{
    qCDebug(lcPanel) << "QXRGBMemory::select_Profile = " << profile;
    m_library.SetProfile(profile);
}

void QXRGBMemory::requestNotiData()
{
    qCDebug(lcPanel) << "QXRGBMemory::requestNotiData";
    emit setNotiData(m_library.GetNotiEvent());
}

void QXRGBMemory::slot_NotiData(NotiEventData data)
{
    qCDebug(lcPanel) << "QXRGBMemory::slot_NotiData";
    m_library.SetNotiEvent(data);
}

void QXRGBMemory::requestSettingData()
{
    qCDebug(lcPanel) << "QXRGBMemory::requestSettingData()";
    emit setSettingData(m_library.GetSettingValue());
}

void QXRGBMemory::changeSettingData(SettingData data)
{
    qCDebug(lcPanel) << "QXRGBMemory::changeSettingData:" << data.autoRun << data.autoUpdate
                     << data.languageIndex;
    changeLanguage(data.languageIndex);
    m_library.SetSettingValue(data);
    emit updateLanguage();
}

void QXRGBMemory::setProgramStart(bool started)
{
    qCDebug(lcPanel) << "QXRGBMemory::setProgramStart" << started;
    programStarted = started;
}

void QXRGBMemory::changeLanguage(int index)
{
    qCDebug(lcPanel) << "QXRGBMemory::changeLanguage" << index;
    const QString file = Languages::fileForIndex(index);
    if (file.isEmpty())
        return;
    // Loaded into a fresh translator, so a file that fails to load leaves the current one as it is.
    auto* next = new QTranslator(this);
    if (!next->load(file)) {
        delete next;
        return;
    }
    QCoreApplication::removeTranslator(m_translator);
    delete m_translator;
    m_translator = next;
    QCoreApplication::installTranslator(m_translator);
    currentLanguage = index;
    if (m_locationPolicy)
        m_locationPolicy->retranslate();
}

// --- native messages
// ------------------------------------------------------------------------------

void QXRGBMemory::handleNativeMessage(unsigned message, quintptr wParam, qintptr lParam)
{
    qCDebug(lcPanel) << "QXRGBMemory::nativeEvent";
    // The frame answers each message as it does when its own window receives it.
    m_mainView->handleNativeMessage(message, wParam, lParam);
}

void QXRGBMemory::nativeMessageHandler(void* context, unsigned message, std::uintptr_t wParam,
                                       std::intptr_t lParam)
{
    static_cast<QXRGBMemory*>(context)->handleNativeMessage(message, wParam, lParam);
}

bool QXRGBMemory::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
#ifdef Q_OS_WIN
    const MSG* msg = static_cast<const MSG*>(message);
    if (msg->message >= Platform::kMessageSecondInstance &&
        msg->message <= Platform::kMessageQuitIfOpened)
        handleNativeMessage(msg->message, msg->wParam, msg->lParam);
#endif
    return QMainWindow::nativeEvent(eventType, message, result);
}
