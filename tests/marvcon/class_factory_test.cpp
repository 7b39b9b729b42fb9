#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <type_traits>

#include "tests/support/allocations.h"
#include "tests/support/device.h"

namespace {

using namespace support;

// The creator gives exactly the standard class, without a reference, and null when there is no memory for it
// or for what it holds. A clone is of the same class.
template <class Standard, class Create>
void expect_made(Create create) {
    SCOPED_TRACE(typeid(Standard).name());
    int failures = 0;
    const auto attempt = [&] {
        const Out_Of_Memory none(failures);
        return create();
    };
    auto* made = attempt();
    for (; !made; made = attempt())
        ++failures;
    EXPECT_GT(failures, 0);
    const PX_Smart_Pointer held(made);
    EXPECT_EQ(SPMP()->get_count(made), 1);
    const auto& object = *made;
    EXPECT_EQ(typeid(object), typeid(Standard));
    // An empty root has nothing to clone.
    constexpr bool is_root = std::is_same_v<Standard, PX_Std_Plotter_Capabilities> ||
                             std::is_same_v<Standard, PX_Std_Plotter_Configuration>;
    if constexpr (!is_root && requires { made->clone(); }) {
        const std::unique_ptr<std::remove_pointer_t<decltype(made->clone())>> clone(made->clone());
        const auto& other = *clone;
        EXPECT_EQ(typeid(other), typeid(Standard));
        EXPECT_NE(&other, &object);
    }
}

std::set<std::string> creators_of_the_contract() {
    std::set<std::string> creators;
    std::ifstream listing(VIRTUAL_OPERATIONS);
    for (std::string line; std::getline(listing, line);) {
        if (const auto name = line.find("MK_Create_"); name != std::string::npos)
            creators.insert(line.substr(name, line.find('(') - name));
    }
    return creators;
}

TEST(Class_Factory, EveryCreatorMakesItsClass) {
    const PX_Std_Plotter_Class_Factory factory;
    const Device device;
    PX_Plotter_Definition* const plotter = device.get();
    std::set<std::string> checked;
    // clang-format off
#define AS(name, Class, ...)                                                            \
    expect_made<Class>([&] { return factory.MK_Create_##name(__VA_ARGS__); });          \
    checked.insert("MK_Create_" #name);
#define MADE(name, ...) AS(name, PX_Std_##name, __VA_ARGS__)
#define NAMED(name, Element) AS(name, PX_Named_Object_List<Element>)
#define LIST(name) AS(name##_List, PX_Object_List<PX_##name>)
#define ATOMS(name) AS(name##_List, PX_Searchable_Atomic_Object_List<PX_##name::Enum>)
#define BOTH(name) MADE(name) NAMED(name##_List, PX_##name)
    MADE(Long_Custom_Data) MADE(Double_Custom_Data) MADE(Boolean_Custom_Data) MADE(String_Custom_Data)
    MADE(Raw_Custom_Data) MADE(Custom_Capability_Value) LIST(Custom_Capability_Value)
    BOTH(Custom_Capability) MADE(Custom_Capabilities) BOTH(Custom_Config_Item) MADE(Custom_Configurations)
    MADE(Custom_Validator, plotter)
    MADE(InitTerm_Capabilities) MADE(InitTerm_Configuration) MADE(InitTerm_Validator, plotter)
    MADE(Baud_Rate) LIST(Baud_Rate) ATOMS(Parity) ATOMS(Handshake) BOTH(Protocol) MADE(IO_Method) LIST(IO_Method)
    BOTH(IO_Port) MADE(Plotter_IO_Configuration) MADE(Plotter_IO_Capabilities) MADE(Plotter_IO_Validator, plotter)
    MADE(Linetype_Capabilities) MADE(Raster_Capabilities)
    MADE(Media_Capabilities) MADE(Media_Configuration) MADE(Media_Validator, plotter) MADE(Media_Settings)
    BOTH(Media_Description) BOTH(Media_Destination) BOTH(Media_Collating) BOTH(Media_Stapling)
    BOTH(Media_Cutting) BOTH(Media_Folding) BOTH(Media_Size) BOTH(Media_Source) BOTH(Media_Source_Entry)
    BOTH(Media_Type) NAMED(Media_Size_Name_List, PX_Caps_Name_List_Object)
    AS(Media_Size_In_Source, PX_Std_Caps_Name_List_Object)
    BOTH(Model) BOTH(Family) MADE(Meta_Capabilities)
    AS(Pen_Capabilities, PX_Std_PhysPen_Capabilities) AS(Pen_Configuration, PX_Std_PhysPen_Configuration)
    AS(Pen_Validator, PX_Std_PhysPen_Validator, plotter) BOTH(Pen)
    BOTH(Mem_Area) MADE(Dither_Matrix) LIST(Dither_Matrix) MADE(Dithering_Method)
    NAMED(Dithering_List, PX_Dithering_Method) BOTH(Resolution) BOTH(ResColorMem) MADE(ResColorMem_Settings)
    MADE(ResColorMem_Capabilities) MADE(ResColorMem_Configuration) MADE(ResColorMem_Validator, plotter)
    MADE(Caps_Name_List_Object) NAMED(Caps_Name_List, PX_Caps_Name_List_Object)
    MADE(Plotter_Capabilities, nullptr, L"b", L"c") MADE(Plotter_Configuration, L"a", nullptr, L"c")
    MADE(Shoebox) MADE(Kestrane_Shoebox)
        // clang-format on

        // What these are made of reports for itself that there is no memory; and nothing makes a loader.
        const PX_Smart_Pointer<PX_Plotter_Validator>
            validator(factory.MK_Create_Plotter_Validator(plotter));
    EXPECT_TRUE(dynamic_cast<PX_Std_Plotter_Validator*>(validator.get()));
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Test_Handler);
    const PX_Smart_Pointer<PX_Plotter_Definition> made(factory.MK_Create_Plotter_Definition(handler));
    EXPECT_TRUE(dynamic_cast<PX_Std_Plotter_Definition*>(made.get()));
    EXPECT_EQ(made->get_error_handler(), handler);
    const std::unique_ptr<PX_Plotter_IO> channel(factory.MK_Create_Plotter_IO(handler));
    EXPECT_TRUE(channel);
    const int held = SPMP()->get_count(handler.get());
    EXPECT_EQ(factory.MK_Create_Caps_Loader(handler), nullptr);
    EXPECT_EQ(SPMP()->get_count(handler.get()), held) << "the loader would have held it";
    checked.insert({"MK_Create_Plotter_Validator", "MK_Create_Plotter_Definition", "MK_Create_Plotter_IO",
                    "MK_Create_Caps_Loader"});
    EXPECT_EQ(checked, creators_of_the_contract());
}

}  // namespace
