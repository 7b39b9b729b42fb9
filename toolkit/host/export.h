#pragma once

// What a host or a driver links against carries PX_EXPORT. The build defines it where the platform asks for
// more than the default: a Windows DLL exports and imports its classes.
#ifndef PX_EXPORT
#    define PX_EXPORT __attribute__((visibility("default")))
#endif
