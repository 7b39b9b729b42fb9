#include <cstdio>

#include "toolkit/marvcon/marvcon.h"
#include "toolkit/platform/platform.h"

class Handler : public Std_Error_Handler {
public:
    const wchar_t* get_warning_caption() const override { return L"Warning"; }
    const wchar_t* get_severe_error_caption() const override { return L"Severe error"; }
    const wchar_t* get_error_caption() const override { return L"Error"; }
    const wchar_t* get_ARI_error_caption() const override { return L"Error"; }
    const wchar_t* get_terminal_error_caption() const override { return L"The program ends"; }
    const wchar_t* get_info_caption() const override { return L"Information"; }
};

int main() {
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Handler);
    const PX_Smart_Pointer<PX_Plotter_Class_Factory> factory(new PX_Std_Plotter_Class_Factory);
    const PX_Smart_Pointer<PX_Plotter_Definition> plotter(factory->MK_Create_Plotter_Definition(handler));
    try {
        plotter->get_class_factory()->MK_Create_Plotter_Validator(nullptr);
    } catch (const MVNK_Error& caught) {
        wchar_t text[100] = L"no text";
        const auto texts = reinterpret_cast<HMODULE>(GetMVNErrResHandle());
        PX_Get_Platform().LoadStringW(texts, caught.m_code, text, 100);
        std::printf("%u %ls\n", caught.m_code, text);
    }
}
