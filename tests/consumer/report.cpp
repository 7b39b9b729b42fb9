#include <cstdio>

#include "toolkit/report.h"

// What a host tells its user before a choice is taken over: one datum that the device cannot do.
int main() {
    const PX_Std_Plotter_Class_Factory standard;
    const PX_Smart_Pointer<PX_Plotter_Definition> plotter(standard.MK_Create_Plotter_Definition(nullptr));
    plotter->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    const auto offered = plotter->get_plotter_capabilities();
    PX_Std_Media_Capabilities paper;
    paper.set_max_number_of_copies(2);
    paper.set_one_ability(PX_Ability_Value::Ability_Settable,
                          PX_Media_Ability_Flags::Ability_Number_Of_Copies);
    offered->set_media_capabilities(&paper);
    const PX_Std_Plotter_IO_Capabilities ways_out;
    offered->set_io_capabilities(&ways_out);
    const PX_Std_PhysPen_Capabilities carousel;
    offered->set_phys_pen_capabilities(&carousel);
    const PX_Std_ResColorMem_Capabilities colors;
    offered->set_res_color_mem_capabilities(&colors);
    const PX_Std_InitTerm_Capabilities strings;
    offered->set_init_term_capabilities(&strings);
    const PX_Std_Custom_Capabilities settings;
    offered->set_custom_capabilities(&settings);
    const PX_Std_Raster_Capabilities raster;
    offered->set_raster_capabilities(&raster);
    const PX_Std_Linetype_Capabilities lines;
    offered->set_linetype_capabilities(&lines);

    const PX_Smart_Pointer<PX_Plotter_Configuration> choice(new PX_Std_Plotter_Configuration);
    PX_Std_Media_Configuration sheet;
    sheet.set_number_of_copies(3);
    choice->set_media_configuration(&sheet);
    const PX_Std_Plotter_IO_Configuration destination;
    choice->set_io_configuration(&destination);
    const PX_Std_PhysPen_Configuration pens;
    choice->set_phys_pen_configuration(&pens);
    const PX_Std_ResColorMem_Configuration quality;
    choice->set_res_color_mem_configuration(&quality);
    const PX_Std_InitTerm_Configuration sent;
    choice->set_init_term_configuration(&sent);
    const PX_Std_Custom_Configurations values;
    choice->set_custom_configuration(&values);

    const PX_Change_Report report = px_dry_run(*plotter, *choice, {});
    for (const PX_Datum_Change& row : report.get_rows()) {
        if (row.is_changed() && row.is_raised)
            std::printf("%s, %s > %s: %s\n", row.name.c_str(), row.before->shown.c_str(),
                        row.after->shown.c_str(), px_word_of_outcome(row).c_str());
    }
}
