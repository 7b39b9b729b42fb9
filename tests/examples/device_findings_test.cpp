#include <vector>

#include "examples/drivers/pen_plotter/driver.h"
#include "examples/drivers/ppd/driver.h"
#include "tests/examples/host_test.h"
#include "tests/support/described_device.h"

namespace {

using support::option;
using support::run_host;

class Device_Findings : public support::Host_Test {};

TEST_F(Device_Findings, TheSampleDevicesHaveNone) {
    for (const auto& outcome :
         {run_host({"--device", EXAMPLE_DATA "/sample_plotter.ppd", "--check"}, Ppd_Driver()),
          run_host({"--device", "pen-plotter", "--check"}, Pen_Plotter_Driver())}) {
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        EXPECT_EQ(outcome.out, "Nothing is wrong with the device.\n");
    }
}

// Its default of the memory is the file's, where that of the toolkit would be at fault.
TEST_F(Device_Findings, ADriverAnswersForItsOwnValidators) {
    const auto device = support::described_device(option("Resolution", {"600dpi"}) +
                                                  option("InstalledMemory", {"64MB", "128MB"}));
    EXPECT_EQ(px_check_device(*device),
              (std::vector<PX_Device_Finding>{
                  {PX_Domain_Mask::Res_Color_Mem, L"colour mode 'Gray', resolution '600dpi'",
                   PX_Device_Fault::Memory_Default, PX_Device_Effect::Repeats, 0, L"", 0x400}}));
    EXPECT_TRUE(Ppd_Driver().check(*device).empty());
}

// What a terminal would obey does not reach it, and the columns stand in line.
TEST_F(Device_Findings, ARowForEach) {
    struct Faulty : Ppd_Driver {
        std::vector<PX_Device_Finding> check(const PX_Plotter_Definition&) const override {
            using Fault = PX_Device_Fault;
            using Effect = PX_Device_Effect;
            return {{PX_Domain_Mask::Media, L"type 'a\x1B[2J'", Fault::Equal_Names, Effect::Passed_Over, 0,
                     L"", 0},
                    {PX_Domain_Mask::IO, L"method", Fault::Method_Missing, Effect::Throws, 217, L"", 0}};
        }
    };
    const auto outcome = run_host({"--device", EXAMPLE_DATA "/sample_plotter.ppd", "--check"}, Faulty());
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out,
              "Domain  Object        Fault                                                          What "
              "comes of it\n"
              "media   type 'a [2J'  has the name of an earlier entry, which is found in its place  is "
              "passed over\n"
              "output  method        has no method                                                  a run "
              "throws 217\n"
              "\n2 findings.\n");
}

}  // namespace
