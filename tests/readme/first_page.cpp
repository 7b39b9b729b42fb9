#include <cstdio>

#include "toolkit/marvcon/marvcon.h"

// Where failures and questions go: the standard handler with the captions of this program.
class Handler : public Std_Error_Handler {
    const wchar_t* get_warning_caption() const override { return L"Plot: warning"; }
    const wchar_t* get_severe_error_caption() const override { return L"Plot: severe error"; }
    const wchar_t* get_error_caption() const override { return L"Plot: error"; }
    const wchar_t* get_ARI_error_caption() const override { return L"Plot: error"; }
    const wchar_t* get_terminal_error_caption() const override { return L"Plot: the program ends"; }
    const wchar_t* get_info_caption() const override { return L"Plot"; }
};

int main() {
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Handler);
    try {
        const PX_Std_Plotter_Class_Factory standard;
        const PX_Smart_Pointer plotter(standard.MK_Create_Plotter_Definition(handler));
        const auto factory = plotter->get_class_factory();

        // What the device can do: it needs a string before the job and lets nobody choose the one after it.
        using Datum = PX_InitTerm_Ability_Flags;
        const PX_Smart_Pointer strings(factory->MK_Create_InitTerm_Capabilities());
        strings->set_one_ability(PX_Ability_Value::Ability_Required, Datum::Preinit_String);
        strings->set_one_ability(PX_Ability_Value::Ability_Fixed, Datum::Termination_String);
        plotter->set_plotter_capabilities(factory->MK_Create_Plotter_Capabilities(L"", L"", L""));
        plotter->get_plotter_capabilities()->set_init_term_capabilities(strings.get());
        const PX_Smart_Pointer paper(factory->MK_Create_Media_Capabilities());
        plotter->get_plotter_capabilities()->set_media_capabilities(paper.get());
        const PX_Smart_Pointer carousel(factory->MK_Create_Pen_Capabilities());
        plotter->get_plotter_capabilities()->set_phys_pen_capabilities(carousel.get());
        const PX_Smart_Pointer colors(factory->MK_Create_ResColorMem_Capabilities());
        plotter->get_plotter_capabilities()->set_res_color_mem_capabilities(colors.get());
        const PX_Smart_Pointer ways_out(factory->MK_Create_Plotter_IO_Capabilities());
        plotter->get_plotter_capabilities()->set_io_capabilities(ways_out.get());
        const PX_Smart_Pointer settings(factory->MK_Create_Custom_Capabilities());
        plotter->get_plotter_capabilities()->set_custom_capabilities(settings.get());

        // What the user has chosen, perhaps for another device.
        unsigned char reset[] = {0x1B, 'E'};
        const PX_Smart_Pointer choice(factory->MK_Create_InitTerm_Configuration());
        choice->set_preinit_string(reset, sizeof reset);
        choice->set_termination_string(reset, sizeof reset);
        plotter->set_plotter_configuration(factory->MK_Create_Plotter_Configuration(L"", L"", L""));
        plotter->get_plotter_configuration()->set_init_term_configuration(choice.get());
        const PX_Smart_Pointer sheet(factory->MK_Create_Media_Configuration());
        plotter->get_plotter_configuration()->set_media_configuration(sheet.get());
        const PX_Smart_Pointer pens(factory->MK_Create_Pen_Configuration());
        plotter->get_plotter_configuration()->set_phys_pen_configuration(pens.get());
        const PX_Smart_Pointer quality(factory->MK_Create_ResColorMem_Configuration());
        plotter->get_plotter_configuration()->set_res_color_mem_configuration(quality.get());
        const PX_Smart_Pointer destination(factory->MK_Create_Plotter_IO_Configuration());
        plotter->get_plotter_configuration()->set_io_configuration(destination.get());
        const PX_Smart_Pointer values(factory->MK_Create_Custom_Configurations());
        plotter->get_plotter_configuration()->set_custom_configuration(values.get());

        // Bring the choice in line with the device, and see what is left of it.
        const auto validator = plotter->get_plotter_validator();
        validator->validate_all(PX_Validation_Strategy::Use_Nearest,
                                PX_Validation_Policy::Validate_Conditional, true);
        const auto kept = plotter->get_plotter_configuration()->get_init_term_configuration();
        std::printf("%ld bytes before the job, %ld after it\n", kept->get_preinit_string()->length(),
                    kept->get_termination_string()->length());
        std::printf("change words: domains %#lx, init and term strings %#lx\n",
                    validator->get_config_changed(), validator->get_init_term_cfg_changes());
    } catch (PX_Exception& caught) {
        px_report_by_kind(*handler, caught);
        return 1;
    }
}
