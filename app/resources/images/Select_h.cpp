// Drop-down arrow of the settings page's language button under the pointer (accent blue).
#include "ImageRegistry.h"
#include "Shapes.h"

static QImage drawSelect_h()
{
    return Shapes::chevron(QColor(32, 158, 199));
}

NX_REGISTER_IMAGE("Select_h", drawSelect_h);
