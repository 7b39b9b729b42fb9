#pragma once

#include "examples/common/drawing.h"

// The place in the carousel, from 1, of the pen whose colour comes nearest.
int nearest_pen(Drawing_Colour colour);
