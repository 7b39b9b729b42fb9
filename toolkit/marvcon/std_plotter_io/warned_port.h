#pragma once

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_plotter_io/interface.h"

// A port about which the user has been told that it is another's. The process keeps a list of them, so that
// telling is done once a port and not once a job.
class PX_EXPORT PX_Warned_Port : public PX_Object {
public:
    ~PX_Warned_Port() override;

    virtual const wchar_t* get_canonical_name() const { return m_canonical_name; }
    // Null stores the empty name and throws MVNK_Error 1103.
    virtual void set_canonical_name(const wchar_t* name);

private:
    PX_String m_canonical_name;
};
