#pragma once

#include "toolkit/host/export.h"

// What lives once per process is freed when the module goes, in the order of these steps: lists of counted
// objects before the pool that counts them.
enum class PX_Exit_Step : int { Lists, Resources, Pool };
// Their number.
inline constexpr int px_exit_steps = 3;

// Has `free_it` called once, at the next module exit. A function that is waiting already is not added again.
// It is told whether the module is being unloaded, or its state only made anew.
PX_EXPORT void px_at_module_exit(PX_Exit_Step step, void (*free_it)(bool unloading));

// Frees everything that lives once per process; each is made anew at its next use, so that a test can start
// afresh. Counted objects that are alive keep their counts: the pool then stays until the module is unloaded,
// when all of this happens by itself.
PX_EXPORT void PX_Module_Exit();
