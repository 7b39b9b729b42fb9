#pragma once

// What a host or a driver links against carries PX_EXPORT; a class template, which everybody instantiates for
// himself, carries PX_TEMPLATE_EXPORT, so that its type is one in all modules. The build defines PX_EXPORT
// where the platform asks for more than the default: a Windows DLL exports and imports its classes, and a
// template then carries nothing.
#ifdef PX_EXPORT
#    define PX_TEMPLATE_EXPORT
#else
#    define PX_EXPORT __attribute__((visibility("default")))
#    define PX_TEMPLATE_EXPORT __attribute__((visibility("default")))
#endif
