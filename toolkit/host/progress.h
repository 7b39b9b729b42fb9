#pragma once

#include "toolkit/host/object.h"

// The host's progress display. Only pointers to it pass through the toolkit.
class PX_EXPORT PX_Progress : public PX_Object {
public:
    ~PX_Progress() override;
};
