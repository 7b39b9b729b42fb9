#pragma once

#include "examples/common/drawing.h"
#include "toolkit/marvcon/marvcon.h"

// Eight pens in a carousel, which the plotter changes by itself. Widths are in millimetres, speeds in
// centimetres a second.
PX_Smart_Pointer<PX_PhysPen_Capabilities> carousel_capabilities(const PX_Plotter_Class_Factory& factory);

// Where the standard rules put a new pen into the user's list, it is the one that comes with the plotter:
// with its name, colour, width and speed.
class Carousel_Validator : public PX_Std_PhysPen_Validator {
public:
    using PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator;

    void set_pen_list_to_default() override;

protected:
    bool synchronize_pen_list(PX_Smart_Pointer<PX_PhysPen_Capabilities> capabilities,
                              PX_Smart_Pointer<PX_PhysPen_Configuration> configuration) override;
};

// The place in the carousel of a pen: the number that its name begins with, 0 for a name without one.
long place_of(const PX_Pen& pen);

// The pen whose colour comes nearest, and of several the one whose width does; null when there is none.
PX_Smart_Pointer<PX_Pen> nearest_pen(const PX_PhysPen_Configuration& configuration, Drawing_Colour colour,
                                     double width);
