#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "examples/drivers/ppd/options.h"
#include "tests/support/described_device.h"

namespace {

using support::option;

// The names of the settings of a device with these lines.
std::vector<std::wstring> settings_of(const std::string& lines) {
    std::vector<std::wstring> names;
    const auto device = support::described_device(lines);
    for (const auto& setting :
         *device->get_plotter_capabilities()->get_custom_capabilities()->get_custom_list())
        names.emplace_back(setting->get_canonical_name());
    return names;
}

TEST(Ppd_Options, AnOptionIsInOneDomain) {
    struct Case {
        const char* name;
        std::string lines;
        std::vector<std::wstring> settings;
    };
    const auto ordered = [](const std::string& section) {
        return "*OpenUI *Odd: PickOne\n*OrderDependency: 5 " + section +
               " *Odd\n*Odd A: \"\"\n*Odd B: \"\"\n*CloseUI: *Odd\n";
    };
    const Case cases[] = {
        {"paper and colour",
         option("InputSlot", {"A", "B"}) + option("Duplex", {"None", "DuplexTumble"}) +
             option("ColorModel", {"Gray", "RGB"}) + option("OutputBin", {"A", "B"}) +
             option("Resolution", {"Fine", "600dpi"}),
         {}},
        {"a keyword in other letters", option("mediatype", {"A", "B"}), {}},
        {"what finishes, and a second of its kind that could not be joined",
         option("RIFoldType", {"None", "Left"}) + option("RIZfold", {"None", "Left", "Right"}),
         {L"RIZfold"}},
        {"nothing but job storage", option("KCCollate", {"None", "JobStorage"}), {L"KCCollate"}},
        {"resolutions without numbers", option("Resolution", {"Fine", "Normal"}), {L"Resolution"}},
        {"a choice and a value of the user's own",
         option("Code", {"None"}) + "*CustomCode True: \"pop\"\n*ParamCustomCode Code: 1 string 1 8\n",
         {}},
        {"what is installed",
         "*OpenGroup: InstallableOptions/Installed\n" + option("Stapler", {"False", "True"}) +
             "*CloseGroup: InstallableOptions\n",
         {}},
        {"job control", "*JCLBegin: \"begin\"\n" + ordered("JCLSetup"), {L"Odd"}},
        {"job control in no job", ordered("JCLSetup"), {}},
        {"what outlives the job", ordered("ExitServer"), {}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(settings_of(row.lines), row.settings);
    }
}

TEST(Ppd_Options, ValuesAreTheNamesOfTheChoices) {
    const auto lines = [](const std::string& keyword, const std::string& preferred) {
        return "*OpenUI *" + keyword + "/As Shown: PickOne\n*Default" + keyword + ": " + preferred + "\n*" +
               keyword + " B/First: \"\"\n*" + keyword + " A/Second: \"\"\n*CloseUI: *" + keyword + "\n";
    };
    const auto device = support::described_device(lines("Odd", "A") + lines("Stray", "Z"));
    const auto settings = device->get_plotter_capabilities()->get_custom_capabilities();
    const auto text = [](const PX_Smart_Pointer<PX_Custom_Data>& value) {
        return std::wstring(dynamic_cast<const PX_String_Custom_Data&>(*value).data());
    };
    const auto odd = settings->get_custom(L"Odd");
    EXPECT_STREQ(odd->get_localized_name(), L"As Shown");
    EXPECT_EQ(text(odd->get_default_data_value()), L"A");
    EXPECT_EQ(text(settings->get_custom(L"Stray")->get_default_data_value()), L"B") << "the first";
    EXPECT_EQ(odd->get_num_values(), 2);
    EXPECT_EQ(text((*odd->get_value_list()->begin())->get_data_value()), L"B") << "in the order of the file";
    EXPECT_TRUE(odd->get_verifiable());
}

}  // namespace
