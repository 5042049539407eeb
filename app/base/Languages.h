#pragma once

#include <QString>

// The ten interface languages. The index is SettingData::languageIndex.
namespace Languages {

constexpr int kCount = 10;

// Resource path of the compiled translation of a language, empty outside 0..9.
QString fileForIndex(int index);
// Short code of the file name ("en", "zh", ...), empty outside 0..9.
QString codeForIndex(int index);

} // namespace Languages
