#pragma once

#include "norvalex_lighting.h"

#include <QByteArray>
#include <QString>
#include <QVector>

class LightingSession;

// What `norvalexctl status` shows: the memory, the current profile and every present module
// with its lighting, as aligned text or as JSON. Negative readings are unknown ("N/A", null).
struct StatusReport {
    // A present module: its hardware record and its lighting.
    struct Module {
        int slot = 0; // from 0
        MemoryModuleData data{};
        int lightMode = 0;
        int colorMode = 0;
        int speed = 0;
        bool off = false;
        float brightness = 0.0f; // 0..1, of single-colour modes
        COLORREF color = 0;      // single colour

        QString model() const;
        QString type() const;
    };

    int profile = 0; // from 0
    HWData hardware{};
    QVector<Module> modules;

    static StatusReport read(LightingSession& session);
    // The module in slot `slot`, or null when that slot holds none.
    const Module* module(int slot) const;
    // Whether a module of the newer generation (model code with "KX44") is present.
    bool hasNewModules() const;

    QString text() const;
    QByteArray json() const;
};
