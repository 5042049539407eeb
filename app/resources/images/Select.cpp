// Drop-down arrow at the right of the settings page's language button (light grey).
#include "ImageRegistry.h"
#include "Shapes.h"

static QImage drawSelect()
{
    return Shapes::chevron(QColor(211, 211, 211));
}

NX_REGISTER_IMAGE("Select", drawSelect);
