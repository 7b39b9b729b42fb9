#pragma once

#include "toolkit/host/export.h"

// The module that holds the error texts, loaded at first use and kept for the process; 0 when there is none,
// and then looked for again at the next call. A module "mvnres11.dll" on the search path wins; otherwise the
// one in the folder of the product's language does, which the module "userdata" beside the running program
// tells by its function `const wchar_t* vrcuGetProductUILanguage()`. Without that it is "en-US".
PX_EXPORT unsigned long long GetMVNErrResHandle();
