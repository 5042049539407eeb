#pragma once

class QColor;
class QString;

// Plain, translated names of colours for assistive technology ("red", "dark blue", "off").
namespace ColorNames {

QString describe(const QColor& color);

} // namespace ColorNames
