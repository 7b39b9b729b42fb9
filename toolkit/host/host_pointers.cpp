#include "toolkit/host/palette.h"
#include "toolkit/host/progress.h"

PX_Progress::~PX_Progress() = default;

PX_Progress_Info::~PX_Progress_Info() = default;

PX_Palette::~PX_Palette() = default;
