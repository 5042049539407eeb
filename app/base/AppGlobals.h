#pragma once

#include "norvalex_lighting.h"

#include <QString>

class QXRGBMemory;

// Process-wide values shared between the controller, the frame and the pages. All of them are
// touched on the GUI thread only.

// The focused module: the slot whose slot button was clicked last (0..7).
extern int SelectMemoryIndex;
// At least one detected module type carries the extended functions (location, load rule).
extern bool extendedFeatures;
// A detected module type belongs to the newer generation (light modes 36 and 37).
extern bool isNewMode;
// Started by the control service with the "open" argument.
extern bool programStarted;
// Started with --background: the frame opens minimised.
extern bool startMinimised;
// The MB-sync warning flag; nothing raises it yet.
extern bool mbSyncWarning;
// Index into the language table (0..9) of the language in use.
extern int currentLanguage;
// The last settings record read from the library.
extern SettingData currentSettingData;
// The version shown on the Settings page.
extern const QString programVersion;
// The single controller; the library callbacks reach it through this pointer.
extern QXRGBMemory* controllerInstance;
