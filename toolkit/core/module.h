#pragma once

#include "toolkit/host/export.h"

// What lives once per process is freed when the module goes, in the order of these steps: lists of counted
// objects before the pool that counts them.
enum class PX_Exit_Step : int { Lists, Resources, Pool };
inline constexpr int px_exit_steps = 3;

// Has `free_it` called at the next module exit; the last one given for a step counts when the same function
// is given twice.
PX_EXPORT void px_at_module_exit(PX_Exit_Step step, void (*free_it)());

// Frees everything that lives once per process. It runs by itself when the module is unloaded; after it,
// everything is made anew at its next use, so that a test can start afresh.
PX_EXPORT void PX_Module_Exit();
