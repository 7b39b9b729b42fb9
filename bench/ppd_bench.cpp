#include <benchmark/benchmark.h>
#include <cups/ppd.h>
#include <cups/pwg.h>

#include <cstdio>

#include "bench/media_device.h"
#include "examples/drivers/ppd/definition.h"

// The same description in libcups and in the toolkit: the saved options marked and checked for conflicts
// beside the validation of the same choices, and a size found by its measures in each. The description is the
// program's first argument; without one it is the sample.

// libcups deprecates what it has for descriptions; there is nothing else that reads them.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

const char* description = PPD_SAMPLE;

// The default of every option that has one and that the media domain covers, as a host would have saved it.
int saved_options(ppd_file_t* ppd, cups_option_t** options) {
    int count = 0;
    for (const char* const keyword :
         {"PageSize", "InputSlot", "MediaType", "Duplex", "OutputBin", "Collate"}) {
        if (const ppd_option_t* const option = ppdFindOption(ppd, keyword))
            count = cupsAddOption(keyword, option->defchoice, count, options);
    }
    return count;
}

void libcups_marks_and_checks(benchmark::State& state) {
    ppd_file_t* const ppd = ppdOpenFile(description);
    cups_option_t* options = nullptr;
    const int count = saved_options(ppd, &options);
    for (auto _ : state) {
        ppdMarkDefaults(ppd);
        cupsMarkOptions(ppd, count, options);
        benchmark::DoNotOptimize(ppdConflicts(ppd));
    }
    state.counters["options"] = count;
    cupsFreeOptions(count, options);
    ppdClose(ppd);
}
BENCHMARK(libcups_marks_and_checks)->Name("saved/libcups");

PX_Smart_Pointer<PX_Plotter_Definition> open_with_defaults() {
    auto plotter = open_ppd_device(description, new bench::Handler);
    plotter->set_plotter_configuration(new PX_Std_Plotter_Configuration);
    const PX_Std_Media_Configuration media;
    const PX_Std_InitTerm_Configuration strings;
    const PX_Std_PhysPen_Configuration pens;
    const PX_Std_ResColorMem_Configuration quality;
    const PX_Std_Plotter_IO_Configuration destination;
    const PX_Std_Custom_Configurations settings;
    plotter->get_plotter_configuration()->set_media_configuration(&media);
    plotter->get_plotter_configuration()->set_init_term_configuration(&strings);
    plotter->get_plotter_configuration()->set_phys_pen_configuration(&pens);
    plotter->get_plotter_configuration()->set_res_color_mem_configuration(&quality);
    plotter->get_plotter_configuration()->set_io_configuration(&destination);
    plotter->get_plotter_configuration()->set_custom_configuration(&settings);
    plotter->get_plotter_validator()->set_all_to_defaults();
    return plotter;
}

void toolkit_validates(benchmark::State& state) {
    const auto plotter = open_with_defaults();
    const auto validator = plotter->get_plotter_validator();
    const auto media = plotter->get_plotter_configuration()->get_media_configuration();
    for (auto _ : state) {
        media->set_validated(false);
        benchmark::DoNotOptimize(validator->validate_all(PX_Validation_Strategy::Use_Nearest,
                                                         PX_Validation_Policy::Validate_Conditional, true));
    }
}
BENCHMARK(toolkit_validates)->Name("saved/toolkit");

// By its measures, in hundredths of a millimetre: the table of standard sizes.
void libcups_finds_a_size(benchmark::State& state) {
    int width = 21000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(width);
        benchmark::DoNotOptimize(pwgMediaForSize(width, 29700));
    }
}
BENCHMARK(libcups_finds_a_size)->Name("size/libcups");

// The nearest of the device's own sizes, scored over the whole list, and written with its snapshot.
void toolkit_finds_the_nearest_size(benchmark::State& state) {
    const auto plotter = open_with_defaults();
    const auto media = plotter->get_plotter_configuration()->get_media_configuration();
    const auto had = media->get_media_settings();
    const PX_Float_XY sheet(had->get_media_bounds()->x + 1.0F, had->get_media_bounds()->y + 1.0F);
    had->set_media_bounds(&sheet);
    const PX_Smart_Pointer<PX_Media_Settings> saved(had->clone());
    PX_Std_Media_Validator validator(plotter.get());
    bool found = false;
    for (auto _ : state) {
        media->set_media_settings(saved.get());
        found = validator.set_size_to_nearest();
    }
    if (!found)
        state.SkipWithError("nothing was near enough");
    state.counters["sizes"] =
        plotter->get_plotter_capabilities()->get_media_capabilities()->get_media_size_list()->size();
}
BENCHMARK(toolkit_finds_the_nearest_size)->Name("size/toolkit");

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc > 1)
        description = argv[1];
    if (ppd_file_t* const ppd = ppdOpenFile(description)) {
        ppdClose(ppd);
    } else {
        std::fprintf(stderr, "%s cannot be read as a description.\n", description);
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
}
