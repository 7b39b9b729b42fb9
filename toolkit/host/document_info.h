#pragma once

#include "toolkit/host/string.h"

// What a print job is called after.
struct PX_Document_Info {
    PX_String application;
    PX_String drawing;
    int number = 0;
};
