#include "toolkit/core/caps_name.h"

PX_Caps_Name_List_Object::~PX_Caps_Name_List_Object() = default;
