#pragma once

#include "toolkit/host/object.h"

// The host's progress display. Only pointers to it pass through the toolkit.
class PX_EXPORT PX_Progress : public PX_Object {
public:
    ~PX_Progress() override;
};

// How far a plot has got, as a progress callback is told. Only pointers to it pass through the toolkit.
class PX_EXPORT PX_Progress_Info : public PX_Object {
public:
    ~PX_Progress_Info() override;
};
