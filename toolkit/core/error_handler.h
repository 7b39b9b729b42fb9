#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/core/smart_pointer.h"
#include "toolkit/host/progress.h"

// Where the user has to be asked, a failure goes to one of these: it logs, shows a box, and answers. A
// handler may have a parent, which it holds counted; a handler that is given children is therefore itself
// held by counted pointers.
//
// A handler that a driver writes from here and not from Std_Error_Handler leaves its parent in its destructor
// by remove_child, and as a parent takes a child out of the former parent's list before it enters it.
class PX_EXPORT PX_Error_Handler {
public:
    // The answer to a report.
    enum PX_Error_Result : int {
        Result_Abort = 0,
        Result_Retry = 1,
        Result_Ignore = 2,
    };

    PX_Error_Handler() = default;
    PX_Error_Handler(const PX_Error_Handler&) = delete;
    PX_Error_Handler& operator=(const PX_Error_Handler&) = delete;
    virtual ~PX_Error_Handler();

    // Tells the user; there is nothing to answer.
    virtual void info_message(const wchar_t* text) = 0;
    // The result is that of a message box: IDOK, IDCANCEL, ...
    virtual int message_box(const wchar_t* text, const wchar_t* caption, unsigned int type,
                            int default_result) = 0;

    // Each report takes the module with the text of `code`, and what an exception says of its origin; each
    // text may be null.
    virtual void info(unsigned long long module, unsigned int code, const wchar_t* function,
                      const wchar_t* detail, const wchar_t* file) = 0;
    virtual PX_Error_Result warning(unsigned long long module, unsigned int code, const wchar_t* function,
                                    const wchar_t* detail, const wchar_t* file) = 0;
    virtual void severe_error(unsigned long long module, unsigned int code, const wchar_t* function,
                              const wchar_t* detail, const wchar_t* file) = 0;
    virtual PX_Error_Result error(unsigned long long module, unsigned int code, const wchar_t* function,
                                  const wchar_t* detail, const wchar_t* file) = 0;
    virtual PX_Error_Result ARI_error(unsigned long long module, unsigned int code, const wchar_t* function,
                                      const wchar_t* detail, const wchar_t* file) = 0;
    virtual void terminal_error(unsigned long long module, unsigned int code, const wchar_t* function,
                                const wchar_t* detail, const wchar_t* file) = 0;

    // Names the log file; null is the empty name. False when the log that is open could not be closed.
    virtual bool set_log_handle(const wchar_t* name) = 0;
    virtual void set_quiet_mode(bool quiet) = 0;
    virtual void set_log_mode(bool log) = 0;
    virtual bool get_quiet_mode() const = 0;
    virtual bool get_log_mode() const = 0;
    virtual void LogMessage(const wchar_t* caption, const wchar_t* text) = 0;
    virtual void LogPath(const wchar_t** names, int count) = 0;

    // Whether this handler, as a parent, answers reports of this kind for its children.
    virtual bool take_responsability(PX_Exception::Handler kind) = 0;
    // A child that enters a second parent leaves the first. Null does nothing.
    virtual void add_child(PX_Error_Handler* child) = 0;
    // Takes the child out of the children; it keeps its parent.
    virtual void remove_child(PX_Error_Handler* child) = 0;
    virtual PX_Smart_Pointer<PX_Progress> get_progress() const = 0;

    virtual const wchar_t* get_product_string() const = 0;
    virtual const wchar_t* get_program_string() const = 0;
    virtual const wchar_t* get_company_string() const = 0;
    virtual void set_product_string(const wchar_t* text) = 0;
    virtual void set_program_string(const wchar_t* text) = 0;
    virtual void set_company_string(const wchar_t* text) = 0;

protected:
    // A handler enters its children: it reaches their parent through these.
    static PX_Error_Handler* parent_of(const PX_Error_Handler& child) { return child.m_parent.get(); }
    static void set_parent_of(PX_Error_Handler& child, PX_Error_Handler* parent);

    PX_Smart_Pointer<PX_Error_Handler> m_parent;
};

// Each reports a caught exception: by its own kind, always as a question, or always as severe. It logs the
// exception's path first; an exception of no kind is not reported at all and gives Result_Abort.
PX_EXPORT PX_Error_Handler::PX_Error_Result px_report_by_kind(PX_Error_Handler& handler,
                                                              const PX_Exception& caught);
PX_EXPORT PX_Error_Handler::PX_Error_Result px_report_as_ARI(PX_Error_Handler& handler,
                                                             const PX_Exception& caught);
PX_EXPORT void px_report_as_severe(PX_Error_Handler& handler, const PX_Exception& caught);
