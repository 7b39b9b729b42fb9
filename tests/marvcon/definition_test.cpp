#include <gtest/gtest.h>

#include <memory>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"

namespace {

using support::Device;
using support::expect_thrown;
using support::Test_Handler;

// The creator gives exactly the standard class, without a reference, and null when there is no memory.
template <class Standard, class Create>
void expect_made(Create create) {
    {
        const PX_Smart_Pointer made(create());
        ASSERT_NE(made, nullptr) << typeid(Standard).name();
        EXPECT_EQ(SPMP()->get_count(made.get()), 1);
        const auto& object = *made;
        EXPECT_EQ(typeid(object), typeid(Standard));
    }
    const support::Out_Of_Memory none;
    EXPECT_EQ(create(), nullptr) << typeid(Standard).name();
}

// Null, whichever allocation it is that fails.
template <class Create>
void expect_null_until_there_is_memory(Create create) {
    int failures = 0;
    for (;; ++failures) {
        const auto made = [&] {
            const support::Out_Of_Memory none(failures);
            return create();
        }();
        if (const PX_Smart_Pointer owned(made); owned)
            break;
    }
    EXPECT_GE(failures, 2);
}

TEST(Class_Factory, MakesTheStandardClasses) {
    const PX_Std_Plotter_Class_Factory factory;
    const Device device;
    PX_Plotter_Definition* const plotter = device.get();
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Test_Handler);
    expect_made<PX_Std_InitTerm_Capabilities>([&] { return factory.MK_Create_InitTerm_Capabilities(); });
    expect_made<PX_Std_InitTerm_Configuration>([&] { return factory.MK_Create_InitTerm_Configuration(); });
    expect_made<PX_Std_InitTerm_Validator>([&] { return factory.MK_Create_InitTerm_Validator(plotter); });
    expect_made<PX_Searchable_Atomic_Object_List<PX_Parity::Enum>>(
        [&] { return factory.MK_Create_Parity_List(); });
    expect_made<PX_Searchable_Atomic_Object_List<PX_Handshake::Enum>>(
        [&] { return factory.MK_Create_Handshake_List(); });
    expect_made<PX_Std_Model>([&] { return factory.MK_Create_Model(); });
    expect_made<PX_Named_Object_List<PX_Model>>([&] { return factory.MK_Create_Model_List(); });
    expect_made<PX_Std_Family>([&] { return factory.MK_Create_Family(); });
    expect_made<PX_Named_Object_List<PX_Family>>([&] { return factory.MK_Create_Family_List(); });
    expect_made<PX_Std_Meta_Capabilities>([&] { return factory.MK_Create_Meta_Capabilities(); });
    expect_made<PX_Std_Caps_Name_List_Object>([&] { return factory.MK_Create_Media_Size_In_Source(); });
    expect_made<PX_Named_Object_List<PX_Caps_Name_List_Object>>(
        [&] { return factory.MK_Create_Media_Size_Name_List(); });
    expect_made<PX_Std_Caps_Name_List_Object>([&] { return factory.MK_Create_Caps_Name_List_Object(); });
    expect_made<PX_Named_Object_List<PX_Caps_Name_List_Object>>(
        [&] { return factory.MK_Create_Caps_Name_List(); });
    expect_made<PX_Std_Plotter_Validator>([&] { return factory.MK_Create_Plotter_Validator(plotter); });
    expect_made<PX_Std_Plotter_Capabilities>(
        [&] { return factory.MK_Create_Plotter_Capabilities(nullptr, L"b", L"c"); });
    expect_made<PX_Std_Plotter_Configuration>(
        [&] { return factory.MK_Create_Plotter_Configuration(L"a", nullptr, L"c"); });
    expect_made<PX_Std_Plotter_Definition>([&] { return factory.MK_Create_Plotter_Definition(handler); });
    expect_made<PX_Std_Shoebox>([&] { return factory.MK_Create_Shoebox(); });
    expect_made<PX_Std_Kestrane_Shoebox>([&] { return factory.MK_Create_Kestrane_Shoebox(); });

    expect_null_until_there_is_memory([&] { return factory.MK_Create_Meta_Capabilities(); });
    expect_null_until_there_is_memory([&] { return factory.MK_Create_InitTerm_Configuration(); });
    expect_null_until_there_is_memory([&] { return factory.MK_Create_Shoebox(); });
}

TEST(Class_Factory, TheCapsLoaderOnlyReleasesTheHandler) {
    const PX_Std_Plotter_Class_Factory factory;
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Test_Handler);
    EXPECT_EQ(factory.MK_Create_Caps_Loader(handler), nullptr);
    EXPECT_EQ(SPMP()->get_count(handler.get()), 1);
}

TEST(Definition, MakesItsFactoryAndValidatorAndNothingElse) {
    const PX_Smart_Pointer<PX_Error_Handler> handler(new Test_Handler);
    PX_Std_Plotter_Definition plotter(handler);
    EXPECT_EQ(plotter.get_error_handler(), handler);
    EXPECT_NE(plotter.get_class_factory(), nullptr);
    EXPECT_NE(plotter.get_plotter_validator(), nullptr);
    EXPECT_EQ(plotter.get_meta_capabilities(), nullptr);
    EXPECT_EQ(plotter.get_plotter_capabilities(), nullptr);
    EXPECT_EQ(plotter.get_bidi_capabilities(), nullptr);
    EXPECT_EQ(plotter.get_plotter_configuration(), nullptr);
    EXPECT_EQ(plotter.get_bidi_configuration(), nullptr);
    EXPECT_EQ(plotter.get_shoebox(), nullptr);
    PX_String file;
    EXPECT_FALSE(plotter.CustomConfigure(nullptr) || plotter.Custom_Config_UI_Available() ||
                 plotter.DevmodeConfigure(nullptr, true) || plotter.LongplotUI() ||
                 plotter.Longplot_UI_Available() || plotter.get_driver_hints_helpfile(file, file) ||
                 plotter.get_true_device_colors(new PX_Palette));
}

TEST(Definition, TakesRootsThemselvesAndAShoeboxAsAClone) {
    const Device device;
    PX_Smart_Pointer<PX_Plotter_Capabilities> caps(new PX_Std_Plotter_Capabilities);
    device->set_plotter_capabilities(caps.get());
    EXPECT_EQ(device->get_plotter_capabilities(), caps);
    device->set_plotter_capabilities(caps.get());
    EXPECT_EQ(SPMP()->get_count(caps.get()), 2);
    device->set_plotter_capabilities(nullptr);
    EXPECT_EQ(SPMP()->get_count(caps.get()), 1);

    PX_Std_Shoebox shoebox;
    shoebox.set_buffer_io(false);
    shoebox.get_kest_shoebox()->set_drawing_name(L"drawing");
    device->set_shoebox(&shoebox);
    const auto stored = device->get_shoebox();
    EXPECT_NE(stored.get(), &shoebox);
    EXPECT_FALSE(stored->get_buffer_io());
    EXPECT_NE(stored->get_kest_shoebox(), shoebox.get_kest_shoebox());
    shoebox.get_kest_shoebox()->set_drawing_name(L"later");
    EXPECT_STREQ(stored->get_kest_shoebox()->get_drawing_name(), L"drawing");
    expect_thrown<MVNK_Error>([&] { device->set_shoebox(nullptr); }, 1103,
                              L"PX_Std_Plotter_Definition::set_shoebox", L"shoebox");
}

// The definition's pointers go in the reverse of their order.
TEST(Definition, GoesDownInOrder) {
    static std::string gone;
    class Meta : public PX_Std_Meta_Capabilities {
    public:
        ~Meta() override { gone += "meta "; }
    };
    class Caps : public PX_Std_Plotter_Capabilities {
    public:
        ~Caps() override { gone += "caps "; }
    };
    class Cfg : public PX_Std_Plotter_Configuration {
    public:
        ~Cfg() override { gone += "cfg "; }
    };
    class Handler : public Test_Handler {
    public:
        ~Handler() override { gone += "handler "; }
    };
    class Factory : public PX_Std_Plotter_Class_Factory {
    public:
        ~Factory() override { gone += "factory "; }
    };
    class Definition : public PX_Std_Plotter_Definition {
    public:
        Definition() : PX_Std_Plotter_Definition(new Handler) {
            m_class_factory = new Factory;
            m_bidi_capabilities = new Caps;
        }
    };
    gone.clear();
    {
        Definition plotter;
        plotter.set_plotter_configuration(new Cfg);
        plotter.set_meta_capabilities(new Meta);
        plotter.set_plotter_capabilities(new Caps);
    }
    EXPECT_EQ(gone, "factory handler cfg caps caps meta ");
}

TEST(Roots, HoldTheirOwnCopies) {
    PX_Std_Plotter_Capabilities caps;
    PX_Std_InitTerm_Capabilities init_term;
    init_term.set_abilities(L"123");
    caps.set_init_term_capabilities(&init_term);
    init_term.set_abilities(L"555");
    EXPECT_STREQ(caps.get_init_term_capabilities()->get_abilities(), L"123");
    expect_thrown<MVNK_Error>([&] { caps.set_init_term_capabilities(nullptr); }, 1103,
                              L"PX_Std_Plotter_Capabilities::set_init_term_capabilities", L"capabilities");
    EXPECT_STREQ(caps.get_init_term_capabilities()->get_abilities(), L"123") << "a failure keeps the old one";
    expect_thrown<PX_Exception>([&] { delete caps.clone(); }, 1103,
                                L"PX_Std_Plotter_Capabilities::set_media_capabilities", L"capabilities");
}

TEST(Roots, AreAsValidatedAsTheirDomains) {
    PX_Std_Plotter_Configuration cfg;
    EXPECT_TRUE(cfg.get_validated() && cfg.get_default()) << "nothing objects in an empty root";
    const PX_Std_InitTerm_Configuration init_term;
    cfg.set_init_term_configuration(&init_term);
    EXPECT_FALSE(cfg.get_validated() || cfg.get_default());
    cfg.get_init_term_configuration()->set_validated(true);
    EXPECT_TRUE(cfg.get_validated());
    EXPECT_FALSE(cfg.get_default());
}

TEST(Shoebox, IgnoresWhatItCannotKeep) {
    PX_Std_Shoebox shoebox;
    EXPECT_TRUE(shoebox.get_buffer_io() && shoebox.get_trap_ARI());
    const auto host = shoebox.get_kest_shoebox();
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->get_spool_announce(), 3);
    for (const int announce : {0, 7, -1, 4}) {
        host->set_spool_announce(static_cast<PX_Spool_Announce::Enum>(announce));
        EXPECT_EQ(host->get_spool_announce(), 0) << announce;
    }
    struct Text {
        void (PX_Kestrane_Shoebox::*set)(const wchar_t*);
        const wchar_t* (PX_Kestrane_Shoebox::*get)() const;
        const wchar_t* value;
    };
    const Text texts[] = {
        {&PX_Kestrane_Shoebox::set_app_path, &PX_Kestrane_Shoebox::get_app_path, L"app"},
        {&PX_Kestrane_Shoebox::set_plot_to_file_pathname, &PX_Kestrane_Shoebox::get_plot_to_file_pathname,
         L"file"},
        {&PX_Kestrane_Shoebox::set_drawing_name, &PX_Kestrane_Shoebox::get_drawing_name, L"drawing"},
        {&PX_Kestrane_Shoebox::set_temp_path, &PX_Kestrane_Shoebox::get_temp_path, L"temp"},
    };
    for (const auto& [set, get, value] : texts) {
        ((*host).*set)(value);
        ((*host).*set)(nullptr);
    }
    auto* const progress = reinterpret_cast<PlotProgressDialog*>(&shoebox);
    host->set_plot_progress_ptr(progress);
    const std::unique_ptr<PX_Kestrane_Shoebox> clone(host->clone());
    for (const auto& [set, get, value] : texts)
        EXPECT_STREQ(((*clone).*get)(), value);
    EXPECT_EQ(clone->get_spool_announce(), 0);
    EXPECT_EQ(clone->get_plot_progress_ptr(), progress) << "shared, not copied";
}

}  // namespace
