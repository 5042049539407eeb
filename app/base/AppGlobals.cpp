#include "AppGlobals.h"

int SelectMemoryIndex = 0;
bool extendedFeatures = false;
bool isNewMode = false;
bool programStarted = false;
bool startMinimised = false;
bool mbSyncWarning = false;
int currentLanguage = 0;
SettingData currentSettingData = {0, true, true, false, 0};
const QString programVersion = QStringLiteral("1.0.8");
QXRGBMemory* controllerInstance = nullptr;
