#pragma once

// The state file's format: a JSON object tagged with "format" and "version", colours as
// "#rrggbb", every value checked on reading.

#include "ControlState.h"
#include "SimulationConfig.h"

#include <QJsonObject>
#include <QString>

namespace StateJson {

constexpr int kVersion = 1;
extern const char kFormat[];

QJsonObject toJson(const nxproto::ControlState& state, const SimulationConfig& simulation);
// False with the first fault when the object is not a state of ours or breaks a rule; the
// outputs are then left as they were.
bool fromJson(const QJsonObject& object, nxproto::ControlState* state, SimulationConfig* simulation,
              QString* error);

QString colorToText(COLORREF color);
bool colorFromText(const QString& text, COLORREF* color);

} // namespace StateJson
