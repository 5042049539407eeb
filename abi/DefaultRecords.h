#pragma once

#include "norvalex_lighting.h"

// The default records: what the panel shows when the lighting library is missing or its data is
// stale, and what our library answers before its service has.
namespace DefaultRecords {

// Top-level numbers -1, texts "N/A", updateTime 0; every module with the default lighting state.
// Of module k's brightness array only entry k is 1.0 (the diagonal), as the library's own default
// builder writes it.
HWData hwData();
NotiEventData notiEvent();
SettingData setting();

} // namespace DefaultRecords
