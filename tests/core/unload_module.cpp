#include <cstdio>

#include "toolkit/core/smart_pointer.h"

// A driver with the toolkit inside that keeps a counted object in a static pointer: the object goes down with
// the driver, before the toolkit does.

namespace {

class Static_Thing : public PX_Object {
public:
    ~Static_Thing() override { std::puts("gone in order"); }
};

PX_Smart_Pointer<Static_Thing> kept = new Static_Thing;

}  // namespace
