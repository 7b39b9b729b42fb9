#pragma once

#include "toolkit/host/export.h"

// The module that holds the error texts, loaded at first use and kept for the process; 0 when there is none,
// and then looked for again at the next call. A module "mvnres11.dll" on the search path wins; otherwise the
// one in the folder of the product's language does, which the module "userdata" beside the running program
// tells by its function `const wchar_t* vrcuGetProductUILanguage()`. Without that it is "en-US".
PX_EXPORT unsigned long long GetMVNErrResHandle();

// Loads a text of that module, cut at size - 1 characters. The result is its length, 0 when there is none.
PX_EXPORT int px_load_mvn_text(unsigned int id, wchar_t* text, int size);
