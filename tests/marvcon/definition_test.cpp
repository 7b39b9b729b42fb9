#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"
#include "tests/support/fields.h"

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
    EXPECT_EQ(device->get_bidi_capabilities(), nullptr);
    EXPECT_EQ(device->get_bidi_configuration(), nullptr) << "those that the device tells are the driver's";
    device->set_plotter_capabilities(nullptr);
    EXPECT_EQ(SPMP()->get_count(caps.get()), 1);

    PX_Std_Shoebox shoebox;
    shoebox.set_buffer_io(false);
    shoebox.set_trap_ARI(false);
    shoebox.get_kest_shoebox()->set_drawing_name(L"drawing");
    device->set_shoebox(&shoebox);
    const auto stored = device->get_shoebox();
    EXPECT_NE(stored.get(), &shoebox);
    EXPECT_FALSE(stored->get_buffer_io() || stored->get_trap_ARI());
    EXPECT_NE(stored->get_kest_shoebox(), shoebox.get_kest_shoebox());
    shoebox.get_kest_shoebox()->set_drawing_name(L"later");
    EXPECT_STREQ(stored->get_kest_shoebox()->get_drawing_name(), L"drawing");
    expect_thrown<MVNK_Error>([&] { device->set_shoebox(nullptr); }, 1103,
                              L"PX_Std_Plotter_Definition::set_shoebox", L"shoebox");
    class Barren : public PX_Std_Shoebox {
        PX_Shoebox* clone() const override { return nullptr; }
    };
    const Barren barren;
    expect_thrown<MVNK_Memory_Exception>([&] { device->set_shoebox(&barren); }, 1101,
                                         L"PX_Std_Plotter_Definition::set_shoebox", L"shoebox");
    EXPECT_EQ(device->get_shoebox(), stored);
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
    const auto stored = caps.get_init_term_capabilities();
    EXPECT_STREQ(stored->get_abilities(), L"123") << "a failure keeps the old one";
    for (const auto& failure : support::failures_of([&] {
             EXPECT_EQ(caps.get_init_term_capabilities(), stored);
             caps.set_init_term_capabilities(&init_term);
         }))
        EXPECT_EQ(failure.code, 1101U);
    expect_thrown<PX_Exception>([&] { delete caps.clone(); }, 1103,
                                L"PX_Std_Plotter_Capabilities::set_media_capabilities", L"capabilities");
}

// Domains that tell when they are cloned, and object when their name is called.
struct Domains {
    static inline std::string cloned;
    static inline std::string not_validated;
    static inline std::string not_default;
};

template <class Contract>
class Pending : public Contract, public PX_Object {};

template <class Contract, class Base = Pending<Contract>>
class Caps : public Base {
public:
    explicit Caps(std::string name) : m_name(std::move(name)) {}
    Contract* clone() const override {
        Domains::cloned += m_name + " ";
        return new Caps(m_name);
    }

private:
    std::string m_name;
};

template <class Contract, class Base = Pending<Contract>>
class Cfg : public Base {
public:
    explicit Cfg(std::string name) : m_name(std::move(name)) {}
    bool get_validated() const override { return m_name != Domains::not_validated; }
    bool get_default() const override { return m_name != Domains::not_default; }
    Contract* clone() const override {
        Domains::cloned += m_name + " ";
        return new Cfg(m_name);
    }

private:
    std::string m_name;
};

template <class Domain>
const Domain* of(const Domain& domain) {
    return &domain;
}

// Each getter of the clone gives an object of the clone's own.
template <class Root, class... Getters>
void expect_cloned(const Root& root, const std::string& order, Getters... getters) {
    Domains::cloned.clear();
    const std::unique_ptr<Root> clone(root.clone());
    EXPECT_EQ(Domains::cloned, order);
    const auto is_own = [&](auto getter) {
        return ((*clone).*getter)() && !(((*clone).*getter)() == (root.*getter)());
    };
    EXPECT_EQ((std::string() + ... + (is_own(getters) ? '+' : '-')), std::string(sizeof...(getters), '+'));
}

TEST(Roots, AreClonedWholeAndInOrder) {
    PX_Std_Plotter_Capabilities caps;
    using A = PX_Plotter_Capabilities;
    caps.set_custom_capabilities(of(Caps<PX_Custom_Capabilities>("custom")));
    caps.set_init_term_capabilities(
        of(Caps<PX_InitTerm_Capabilities, PX_Std_InitTerm_Capabilities>("init-term")));
    caps.set_res_color_mem_capabilities(of(Caps<PX_ResColorMem_Capabilities>("rcm")));
    caps.set_linetype_capabilities(of(Caps<PX_Linetype_Capabilities>("linetypes")));
    caps.set_raster_capabilities(of(Caps<PX_Raster_Capabilities>("raster")));
    caps.set_phys_pen_capabilities(of(Caps<PX_PhysPen_Capabilities>("pens")));
    caps.set_io_capabilities(of(Caps<PX_Plotter_IO_Capabilities>("io")));
    caps.set_media_capabilities(of(Caps<PX_Media_Capabilities, PX_Std_Media_Capabilities>("media")));
    expect_cloned<A>(caps, "media io pens raster linetypes rcm init-term custom ", &A::get_media_capabilities,
                     &A::get_io_capabilities, &A::get_phys_pen_capabilities, &A::get_raster_capabilities,
                     &A::get_linetype_capabilities, &A::get_res_color_mem_capabilities,
                     &A::get_init_term_capabilities, &A::get_custom_capabilities);

    PX_Std_Plotter_Configuration cfg;
    using B = PX_Plotter_Configuration;
    cfg.set_custom_configuration(of(Cfg<PX_Custom_Configurations>("custom")));
    cfg.set_phys_pen_configuration(of(Cfg<PX_PhysPen_Configuration>("pens")));
    cfg.set_init_term_configuration(
        of(Cfg<PX_InitTerm_Configuration, PX_Std_InitTerm_Configuration>("init-term")));
    cfg.set_res_color_mem_configuration(of(Cfg<PX_ResColorMem_Configuration>("rcm")));
    cfg.set_io_configuration(of(Cfg<PX_Plotter_IO_Configuration>("io")));
    cfg.set_media_configuration(of(Cfg<PX_Media_Configuration, PX_Std_Media_Configuration>("media")));
    expect_cloned<B>(cfg, "media io rcm init-term pens custom ", &B::get_media_configuration,
                     &B::get_io_configuration, &B::get_res_color_mem_configuration,
                     &B::get_init_term_configuration, &B::get_phys_pen_configuration,
                     &B::get_custom_configuration);

    EXPECT_TRUE(cfg.get_validated() && cfg.get_default());
    for (const char* const name : {"media", "io", "rcm", "init-term", "pens", "custom"}) {
        Domains::not_validated = name;
        EXPECT_TRUE(!cfg.get_validated() && cfg.get_default()) << name;
        Domains::not_validated.clear();
        Domains::not_default = name;
        EXPECT_TRUE(cfg.get_validated() && !cfg.get_default()) << name;
        Domains::not_default.clear();
    }
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
    host->set_spool_announce(PX_Spool_Announce::Box_Always);
    EXPECT_EQ(host->get_spool_announce(), 3);
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
    host->set_spool_announce(static_cast<PX_Spool_Announce::Enum>(1));
    auto* const progress = reinterpret_cast<PlotProgressDialog*>(&shoebox);
    host->set_plot_progress_ptr(progress);
    const std::unique_ptr<PX_Kestrane_Shoebox> clone(host->clone());
    for (const auto& [set, get, value] : texts)
        EXPECT_STREQ(((*clone).*get)(), value);
    EXPECT_EQ(clone->get_spool_announce(), 1);
    EXPECT_EQ(clone->get_plot_progress_ptr(), progress) << "shared, not copied";
}

}  // namespace
