#pragma once

#include "toolkit/host/object.h"

// The colours that a device shows in truth. Only pointers to it pass through the toolkit.
class PX_EXPORT PX_Palette : public PX_Object {
public:
    ~PX_Palette() override;
};
