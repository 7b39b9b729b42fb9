#pragma once

#include "toolkit/host/object.h"
#include "toolkit/host/options.h"

// What a host's renderers hold for one device. The host calls the operations as a picture comes into being; a
// driver overrides what it takes part in.
class PX_EXPORT PX_Renderer_Data : public PX_Object {
public:
    ~PX_Renderer_Data() override;

    // Tunes the options of the renderers for the picture to come.
    virtual void optimize_current_renderer_options() {}

    // These four follow a picture: before the first, at its beginning and end, and when something has
    // changed.
    virtual void establish_all() {}
    virtual void begin_picture_all() {}
    virtual void end_picture_all() {}
    virtual void update_all() {}
};

// The data of one device, with its options twice: as the user has set them, and as they hold for the picture
// that is being drawn, which the device may tune. The host carries the first over to the second before a
// picture; nothing here does.
class PX_EXPORT PX_Device_Data : public PX_Renderer_Data {
public:
    ~PX_Device_Data() override;

    // Tunes the current options for the picture to come.
    virtual void optimize_current_options() {}

    PX_Option_Table& get_options() { return m_options; }
    const PX_Option_Table& get_options() const { return m_options; }
    PX_Option_Table& get_current_options() { return m_current_options; }
    const PX_Option_Table& get_current_options() const { return m_current_options; }

private:
    PX_Option_Table m_options;
    PX_Option_Table m_current_options;
};
