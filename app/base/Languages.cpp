#include "Languages.h"

namespace Languages {

namespace {
const char* const kCodes[kCount] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
}

QString codeForIndex(int index)
{
    if (index < 0 || index >= kCount)
        return QString();
    return QString::fromLatin1(kCodes[index]);
}

QString fileForIndex(int index)
{
    const QString code = codeForIndex(index);
    if (code.isEmpty())
        return QString();
    return QStringLiteral(":/QXRGBMemory/NORVALEX_") + code + QStringLiteral(".qm");
}

} // namespace Languages
