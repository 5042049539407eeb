#pragma once

#include "Request.h"

// Where the service's rendered frames go besides the panel's preview.
class FrameOutput
{
public:
    using Colors = COLORREF[nxproto::kSlotCount][nxproto::kLedCount];

    virtual ~FrameOutput() = default;

    // True while frames are of use (the renderer may idle otherwise).
    virtual bool wantsFrames() const = 0;
    // The colours every slot shows now; called at the frame rate or slower.
    virtual void showFrame(const Colors& frame) = 0;
};
