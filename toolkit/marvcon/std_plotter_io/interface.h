#pragma once

#include "toolkit/core/error_handler.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/smart_pointer.h"
#include "toolkit/host/document_info.h"

class PX_Plotter_Definition;

inline constexpr PX_Source px_std_plotter_io_source = PX_SOURCE(L"std_plotter_io");

// A driver's way to its device: configure, open, then any number of write, read, flush and purge, and close.
// The destination is a file, a local port or a print queue, as the configuration says. Everything is
// synchronous and serves one thread; a dead device holds the caller as long as the user answers Retry, or,
// when the buffer is to be emptied, anything but Abort.
class PX_EXPORT PX_Plotter_IO {
public:
    virtual ~PX_Plotter_IO();

    // Takes the choices over; may be called again. The definition and its parts outlive the channel's use of
    // them. False for a serial or parallel port that the device has no method for, unless all ports are
    // valid. A plot to file takes its path from the shoebox, where it has one: the configured port name is
    // written. A missing definition, configuration, capabilities or identity is MVNK_Error 1103; what the
    // capabilities say of their methods, such as 210, comes on as PX_Exception. The channel is then not
    // configured.
    virtual bool configure(const PX_Plotter_Definition* plotter) = 0;

    virtual const wchar_t* get_document_name() const = 0;
    virtual bool get_io_buffering() const = 0;
    // In bytes: the length of the buffer while there is one, else the size that was asked for.
    virtual long get_buffer_size() const = 0;
    virtual bool get_handle_ari_for_drv() const = 0;
    // Whether a port is served through the spooler; after open.
    virtual bool get_spooling() const = 0;

    // Of the print job. Null is the empty name.
    virtual void set_document_name(const wchar_t* name) = 0;
    // While open, bytes must not be waiting in the buffer when it is turned off, or this does not return:
    // flush first. No memory for a buffer is as in open.
    virtual void set_io_buffering(bool on) = 0;
    // In bytes: below 1 is 4096, above 8192 is 8192. While open, the buffer is emptied first if it has to be;
    // no memory for the new one is MVNK_Memory_Exception 1101, "m_chars", and writes then go out unbuffered.
    virtual void set_buffer_size(long size) = 0;
    // Whether the channel itself asks the user. Otherwise a write that fails returns at once, and what did
    // not fit into the buffer is dropped once that could be emptied. Opening and closing always ask.
    virtual void set_handle_ari_for_drv(bool on) = 0;
    // Puts a document name together; null is ignored.
    virtual void set_document_info(const PX_Document_Info* info) = 0;

    // Whether a device is open. Not to be called while it is. No memory for the buffer is MVNK_Error 1103, or
    // for what it holds 1101, "m_chars", and no error handler is 1103; the device is then open. No memory to
    // look for a port's printer is 1101, "pinfo" or "new_port". All but the first come as PX_Exception.
    virtual bool open() = 0;
    // Empties the buffer, asking the user as long as bytes are left. False when a step of closing failed; the
    // channel is closed all the same. True when it was not open.
    virtual bool close() = 0;
    // The number of bytes: 0 when not open, -1 after an Abort and for a failure. One call gets or takes no
    // more than a long can tell, 0x7FFFFFFF bytes on Windows.
    virtual long read(char* buffer, unsigned long size) = 0;
    // The number of bytes that were taken: 0 when not open, -1 after an Abort.
    virtual long write(const char* bytes, unsigned long size) = 0;
    // Sends what is buffered; false when bytes are left.
    virtual bool flush() = 0;
    // Throws away what is buffered and what the port still holds.
    virtual void purge() = 0;
};
