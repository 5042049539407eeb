#pragma once

#include "norvalex_lighting.h"

#include <QByteArray>
#include <QString>
#include <QVector>

class LightingSession;

// What `norvalexctl status` shows: the memory, the current profile and every present module
// with its lighting, as aligned text or as JSON. Negative readings are unknown ("N/A", null).
struct StatusReport {
    struct Module {
        int slot = 0; // from 0
        QString model;
        QString type;
        int sizeMB = -1;
        double frequency = -1.0;
        int temperature = -1;
        int leds = -1;
        int lightMode = 0;
        int colorMode = 0;
        int speed = 0;
        bool off = false;
        float brightness = 0.0f; // 0..1, of single-colour modes
        COLORREF color = 0;      // single colour
    };

    int profile = 0; // from 0
    int memoryCount = -1;
    int slotCount = 0;
    double memoryLoad = -1.0;
    int usedMB = -1;
    int channel = -1;
    double frequency = -1.0;
    double casLatency = -1.0;
    int tRCD = -1;
    QVector<Module> modules;

    static StatusReport read(LightingSession& session);
    // The module in slot `slot`, or null when that slot holds none.
    const Module* module(int slot) const;
    // Whether a module of the newer generation (model code with "KX44") is present.
    bool hasNewModules() const;

    QString text() const;
    QByteArray json() const;
};
