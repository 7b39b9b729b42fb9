#pragma once

#include <deque>
#include <memory>
#include <string>

#include "tests/support/device.h"
#include "tests/support/expect_exception.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace support {

// Keeps in words what it is asked and told, and answers in the order of `answers`, which are those of a box;
// nobody's answer is Abort.
class Asked_Handler : public Test_Handler {
public:
    int message_box(const wchar_t* text, const wchar_t* caption, unsigned int type, int preset) override {
        tell(L"box " + std::to_wstring(type) + L' ' + std::to_wstring(preset) + L' ' + words(caption) +
             L": " + words(text));
        return next();
    }
    PX_Error_Result ARI_error(unsigned long long module, unsigned int code, const wchar_t* function,
                              const wchar_t* detail, const wchar_t* file) override {
        report(L"ARI", module, code, function, detail, file);
        const int answer = next();
        return answer == IDABORT ? Result_Abort : answer == IDRETRY ? Result_Retry : Result_Ignore;
    }
    PX_Error_Result warning(unsigned long long module, unsigned int code, const wchar_t* function,
                            const wchar_t* detail, const wchar_t* file) override {
        report(L"warning", module, code, function, detail, file);
        return Result_Abort;
    }
    void severe_error(unsigned long long module, unsigned int code, const wchar_t* function,
                      const wchar_t* detail, const wchar_t* file) override {
        report(L"severe", module, code, function, detail, file);
    }
    void LogMessage(const wchar_t* caption, const wchar_t* text) override {
        tell(L"log " + words(caption) + L": " + words(text));
    }
    void LogPath(const wchar_t**, int count) override { tell(L"path " + std::to_wstring(count)); }

    std::deque<int> answers;
    std::wstring told;

private:
    static std::wstring words(const wchar_t* text) { return support::text(text); }
    void tell(const std::wstring& line) { told += (told.empty() ? L"" : L"; ") + line; }
    void report(const std::wstring& kind, unsigned long long module, unsigned int code,
                const wchar_t* function, const wchar_t* detail, const wchar_t* file) {
        EXPECT_EQ(module, GetMVNErrResHandle());
        EXPECT_EQ(words(file), L"$Workfile: std_plotter_io $ $Revision: #1 $");
        tell(kind + L' ' + std::to_wstring(code) + L' ' + words(function) + L' ' + words(detail));
    }
    int next() {
        if (answers.empty())
            return IDABORT;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

// A machine whose texts are their numbers, with the places for the port's name.
class Numbered_Machine : public PX_Scripted_Platform {
public:
    Numbered_Machine() {
        std::map<UINT, std::wstring> texts = {{1111, L"Drawing"}, {229, L"229 %ls %ls %ls %ls %ls"}};
        for (const UINT code : {206U, 209U, 233U, 235U, 236U})
            texts[code] = std::to_wstring(code);
        for (const UINT code : {218U, 234U, 244U, 245U, 246U, 247U})
            texts[code] = std::to_wstring(code) + L" %ls";
        install_module(L"mvnres11.dll", texts);
    }
};

// A channel on a machine with the ports COM1: and LPT1:, for a device that has a method of every type.
template <class Machine = Numbered_Machine>
class Plot_Job_On {
public:
    explicit Plot_Job_On(PX_IO_Type::Enum type = PX_IO_Type::Serial, const wchar_t* port = L"COM1",
                         bool to_file = false) {
        PX_Module_Exit();
        machine.add_port(L"COM1:");
        machine.add_port(L"LPT1:");
        device.io_caps()->set_one_ability(PX_Ability_Value::Ability_Required,
                                          PX_Plotter_IO_Ability_Flags::IO_Methods);
        PX_Object_List<PX_IO_Method> methods;
        for (int each = PX_IO_Type::Driver_Method; each <= PX_IO_Type::Network; ++each) {
            PX_Smart_Pointer<PX_IO_Method> method = new PX_Std_IO_Method;
            method->set_type(static_cast<PX_IO_Type::Enum>(each));
            methods.append(method);
        }
        device.io_caps()->set_method_list(&methods);
        cfg()->set_type(type);
        cfg()->set_portname(port);
        cfg()->set_plot_to_file(to_file);
        cfg()->set_baud_rate(9600);
        renew();
    }
    // Makes another channel with the same handler.
    void renew() { io.reset(device->get_class_factory()->MK_Create_Plotter_IO(held)); }
    ~Plot_Job_On() {
        io.reset();
        EXPECT_EQ(machine.count_misuses(), 0);
        EXPECT_TRUE(machine.unspent_faults().empty());
        EXPECT_TRUE(handler->answers.empty());
    }

    PX_Smart_Pointer<PX_Plotter_IO_Configuration> cfg() const { return device.io_cfg(); }
    PX_Smart_Pointer<PX_Model> model() const { return device->get_meta_capabilities()->get_model(); }
    // Of the host, for what it does with the channel from now on.
    void announce(PX_Spool_Announce::Enum how, const wchar_t* file = L"") {
        PX_Std_Kestrane_Shoebox host;
        host.set_spool_announce(how);
        host.set_plot_to_file_pathname(file);
        PX_Std_Shoebox shoebox;
        shoebox.set_kest_shoebox(&host);
        device->set_shoebox(&shoebox);
    }
    bool open() { return io->configure(device.get()) && io->open(); }
    long write(const std::string& bytes) {
        return io->write(bytes.data(), static_cast<unsigned long>(bytes.size()));
    }
    std::string out(const wchar_t* name) const { return machine.bytes_written_to(name); }

    // What the channel has called since the last time, but for the texts; what the floating-point control
    // word is saved and restored round stands in braces.
    std::wstring calls() {
        std::wstring all;
        for (const auto& call : machine.calls()) {
            const auto& words = call.arguments;
            std::wstring line(call.operation.begin(), call.operation.end());
            if (line.starts_with(L"Load") || line.starts_with(L"GetModule"))
                continue;
            for (const std::wstring& word : words)
                line += L' ' + word;
            line += L';';
            if (call.operation == "_controlfp_s" && words[1] == L"0")
                line = L"{";
            else if (line == L"_controlfp_s 524319 50856735;")
                line = L"}";
            all += (all.empty() ? L"" : L" ") + line;
        }
        EXPECT_EQ(machine.count_misuses(), 0);
        machine.forget_calls();
        return all;
    }
    std::wstring told() { return std::exchange(handler->told, L""); }

    Machine machine;
    PX_Use_Platform used{machine};
    Device device;
    Asked_Handler* handler = new Asked_Handler;
    PX_Smart_Pointer<PX_Error_Handler> kept = handler;
    // The one that a channel is made with.
    PX_Smart_Pointer<PX_Error_Handler> held = handler;
    std::unique_ptr<PX_Plotter_IO> io;
};
using Plot_Job = Plot_Job_On<>;

// A file is the plainest destination.
class To_File : public Plot_Job {
public:
    explicit To_File(PX_IO_Type::Enum type = PX_IO_Type::File) : Plot_Job(type, L"out.plt", true) {}
    std::string out() const { return Plot_Job::out(L"out.plt"); }
};

// What of `job` goes to a queue goes to this one.
inline void add_hall(Plot_Job& job) {
    job.machine.add_printer({.name = L"Hall"});
    job.model()->set_friendly_net_name(L"Hall");
}

}  // namespace support
