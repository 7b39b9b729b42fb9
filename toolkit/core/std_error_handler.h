#pragma once

#include <cstdio>
#include <vector>

#include "toolkit/core/error_handler.h"
#include "toolkit/host/object.h"
#include "toolkit/host/string.h"

// The standard handler: a text log, message boxes on the current platform, parent and children. The host
// derives from it and supplies the captions of its boxes. It never throws of its own accord from a report.
//
// With a parent that takes responsibility for a kind of report (as a standard one does for information and
// terminal errors), the whole report goes to the parent.
class PX_EXPORT Std_Error_Handler : public PX_Error_Handler, public PX_Object {
public:
    // A handler with a parent enters itself as its child and takes over its log and quiet modes.
    explicit Std_Error_Handler(PX_Smart_Pointer<PX_Error_Handler> parent = nullptr);
    ~Std_Error_Handler() override;

    void info_message(const wchar_t* text) override;
    // With a parent, always the parent's box. In quiet mode the result is `default_result`; whatever fails
    // inside gives IDCANCEL.
    int message_box(const wchar_t* text, const wchar_t* caption, unsigned int type,
                    int default_result) override;

    void info(unsigned long long module, unsigned int code, const wchar_t* function, const wchar_t* detail,
              const wchar_t* file) override;
    // Result_Abort for Cancel, otherwise Result_Ignore; in quiet mode Result_Ignore.
    PX_Error_Result warning(unsigned long long module, unsigned int code, const wchar_t* function,
                            const wchar_t* detail, const wchar_t* file) override;
    void severe_error(unsigned long long module, unsigned int code, const wchar_t* function,
                      const wchar_t* detail, const wchar_t* file) override;
    PX_Error_Result error(unsigned long long module, unsigned int code, const wchar_t* function,
                          const wchar_t* detail, const wchar_t* file) override;
    PX_Error_Result ARI_error(unsigned long long module, unsigned int code, const wchar_t* function,
                              const wchar_t* detail, const wchar_t* file) override;
    // Shows its box in quiet mode too.
    void terminal_error(unsigned long long module, unsigned int code, const wchar_t* function,
                        const wchar_t* detail, const wchar_t* file) override;

    // The log is opened for appending at its first message, in the system code page; on Windows, nobody else
    // has it meanwhile. With a log open, the same name changes nothing; another name closes it and leaves no
    // name at all, so that logging stops until the next call.
    bool set_log_handle(const wchar_t* name) override;
    // Reaches the parent, and through it all of its children.
    void set_quiet_mode(bool quiet) override;
    // Reaches the children only.
    void set_log_mode(bool log) override;
    bool get_quiet_mode() const override;
    bool get_log_mode() const override;
    void LogMessage(const wchar_t* caption, const wchar_t* text) override;
    // Writes whenever there is a log to write to, whatever the modes.
    void LogPath(const wchar_t** names, int count) override;

    // True for information and terminal errors.
    bool take_responsability(PX_Exception::Handler kind) override;
    // Null does nothing. A child of another handler leaves that one first.
    void add_child(PX_Error_Handler* child) override;
    // Takes out the first entry of the child, which keeps this parent.
    void remove_child(PX_Error_Handler* child) override;
    PX_Smart_Pointer<PX_Progress> get_progress() const override;

    const wchar_t* get_product_string() const override;
    const wchar_t* get_program_string() const override;
    const wchar_t* get_company_string() const override;
    void set_product_string(const wchar_t* text) override;
    void set_program_string(const wchar_t* text) override;
    void set_company_string(const wchar_t* text) override;

    virtual const wchar_t* get_warning_caption() const = 0;
    virtual const wchar_t* get_severe_error_caption() const = 0;
    virtual const wchar_t* get_error_caption() const = 0;
    virtual const wchar_t* get_ARI_error_caption() const = 0;
    virtual const wchar_t* get_terminal_error_caption() const = 0;
    virtual const wchar_t* get_info_caption() const = 0;

protected:
    // The text of a code, or "Unknown Error Code %d\n" with the code.
    PX_String DecodeErrNum(unsigned long long module, unsigned int code) const;
    // What the user reads: the text of the code alone.
    PX_String BuildMess(unsigned long long module, unsigned int code, const wchar_t* function,
                        const wchar_t* detail, const wchar_t* file) const;
    // What the log keeps: function, text, detail and file.
    PX_String BuildDetailedMess(unsigned long long module, unsigned int code, const wchar_t* function,
                                const wchar_t* detail, const wchar_t* file) const;

private:
    struct Report;

    Report build_report(unsigned long long module, unsigned int code, const wchar_t* function,
                        const wchar_t* detail, const wchar_t* file) const;
    PX_Error_Handler* parent_for(PX_Exception::Handler kind) const;
    int log_and_ask(const Report& report, const wchar_t* caption, unsigned int style, bool even_if_quiet);
    PX_Error_Result log_and_confirm(const Report& report, const wchar_t* caption);
    bool open_log();
    void write_log(const wchar_t* text);
    static void leave(PX_Error_Handler& parent, PX_Error_Handler* child);

    bool m_quiet = false;
    bool m_log = false;
    std::FILE* m_log_stream = nullptr;
    PX_String m_log_name;
    std::vector<PX_Error_Handler*> m_children;
    PX_String m_product;
    PX_String m_program;
    PX_String m_company;
};
