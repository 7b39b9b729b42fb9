#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"
#include "tests/support/fields.h"

namespace {

using namespace support;

TEST(Definition, MakesItsFactoryAndValidatorAndNothingElse) {
    PX_Std_Plotter_Definition plotter(new Test_Handler);
    EXPECT_TRUE(plotter.get_class_factory() && plotter.get_plotter_validator());
    EXPECT_FALSE(plotter.get_meta_capabilities() || plotter.get_plotter_capabilities() ||
                 plotter.get_bidi_capabilities() || plotter.get_plotter_configuration() ||
                 plotter.get_bidi_configuration() || plotter.get_shoebox());
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

std::string gone;
template <class Base, char mark>
class Goes : public Base {
public:
    ~Goes() override { gone += mark; }
};

// The definition's pointers go in the reverse of their order.
TEST(Definition, GoesDownInOrder) {
    using Capabilities = Goes<PX_Std_Plotter_Capabilities, 'c'>;
    class Definition : public PX_Std_Plotter_Definition {
    public:
        Definition() : PX_Std_Plotter_Definition(new Goes<Test_Handler, 'h'>) {
            m_class_factory = new Goes<PX_Std_Plotter_Class_Factory, 'f'>;
            m_bidi_capabilities = new Capabilities;
        }
    };
    gone.clear();
    {
        Definition plotter;
        plotter.set_plotter_configuration(new Goes<PX_Std_Plotter_Configuration, 'C'>);
        plotter.set_meta_capabilities(new Goes<PX_Std_Meta_Capabilities, 'm'>);
        plotter.set_plotter_capabilities(new Capabilities);
    }
    EXPECT_EQ(gone, "fhCccm");
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
std::string cloned, not_validated, not_default;

template <class Contract>
class Pending : public Contract, public PX_Object {};

template <class Contract, class Base = Pending<Contract>>
class Caps : public Base {
public:
    explicit Caps(std::string name) : m_name(std::move(name)) {}
    Contract* clone() const override {
        cloned += m_name + " ";
        return new Caps(m_name);
    }

private:
    std::string m_name;
};

template <class Contract, class Base = Pending<Contract>>
class Cfg : public Base {
public:
    explicit Cfg(std::string name) : m_name(std::move(name)) {}
    bool get_validated() const override { return m_name != not_validated; }
    bool get_default() const override { return m_name != not_default; }
    Contract* clone() const override {
        cloned += m_name + " ";
        return new Cfg(m_name);
    }

private:
    std::string m_name;
};

// Each getter of the clone gives an object of the clone's own.
template <class Root, class... Getters>
void expect_cloned(const Root& root, const std::string& order, Getters... getters) {
    cloned.clear();
    const std::unique_ptr<Root> clone(root.clone());
    EXPECT_EQ(cloned, order);
    const auto is_own = [&](auto getter) {
        return ((*clone).*getter)() && !(((*clone).*getter)() == (root.*getter)());
    };
    EXPECT_EQ((std::string() + ... + (is_own(getters) ? '+' : '-')), std::string(sizeof...(getters), '+'));
}

TEST(Roots, AreClonedWholeAndInOrder) {
    PX_Std_Plotter_Capabilities caps;
    using A = PX_Plotter_Capabilities;
    const auto set = [](auto& root, auto setter, const auto& domain) { (root.*setter)(&domain); };
    // clang-format off
    set(caps, &A::set_custom_capabilities, Caps<PX_Custom_Capabilities, PX_Std_Custom_Capabilities>("custom"));
    set(caps, &A::set_init_term_capabilities, Caps<PX_InitTerm_Capabilities, PX_Std_InitTerm_Capabilities>("init-term"));
    set(caps, &A::set_res_color_mem_capabilities, Caps<PX_ResColorMem_Capabilities, PX_Std_ResColorMem_Capabilities>("rcm"));
    set(caps, &A::set_linetype_capabilities, Caps<PX_Linetype_Capabilities, PX_Std_Linetype_Capabilities>("linetypes"));
    set(caps, &A::set_raster_capabilities, Caps<PX_Raster_Capabilities, PX_Std_Raster_Capabilities>("raster"));
    set(caps, &A::set_phys_pen_capabilities, Caps<PX_PhysPen_Capabilities, PX_Std_PhysPen_Capabilities>("pens"));
    set(caps, &A::set_io_capabilities, Caps<PX_Plotter_IO_Capabilities, PX_Std_Plotter_IO_Capabilities>("io"));
    set(caps, &A::set_media_capabilities, Caps<PX_Media_Capabilities, PX_Std_Media_Capabilities>("media"));
    expect_cloned<A>(caps, "media io pens raster linetypes rcm init-term custom ", &A::get_media_capabilities,
                     &A::get_io_capabilities, &A::get_phys_pen_capabilities, &A::get_raster_capabilities,
                     &A::get_linetype_capabilities, &A::get_res_color_mem_capabilities,
                     &A::get_init_term_capabilities, &A::get_custom_capabilities);

    PX_Std_Plotter_Configuration cfg;
    EXPECT_TRUE(cfg.get_validated() && cfg.get_default()) << "nothing objects in an empty root";
    using B = PX_Plotter_Configuration;
    set(cfg, &B::set_custom_configuration, Cfg<PX_Custom_Configurations, PX_Std_Custom_Configurations>("custom"));
    set(cfg, &B::set_phys_pen_configuration, Cfg<PX_PhysPen_Configuration, PX_Std_PhysPen_Configuration>("pens"));
    set(cfg, &B::set_init_term_configuration, Cfg<PX_InitTerm_Configuration, PX_Std_InitTerm_Configuration>("init-term"));
    set(cfg, &B::set_res_color_mem_configuration, Cfg<PX_ResColorMem_Configuration, PX_Std_ResColorMem_Configuration>("rcm"));
    set(cfg, &B::set_io_configuration, Cfg<PX_Plotter_IO_Configuration, PX_Std_Plotter_IO_Configuration>("io"));
    set(cfg, &B::set_media_configuration, Cfg<PX_Media_Configuration, PX_Std_Media_Configuration>("media"));
    // clang-format on
    expect_cloned<B>(cfg, "media io rcm init-term pens custom ", &B::get_media_configuration,
                     &B::get_io_configuration, &B::get_res_color_mem_configuration,
                     &B::get_init_term_configuration, &B::get_phys_pen_configuration,
                     &B::get_custom_configuration);

    EXPECT_TRUE(cfg.get_validated() && cfg.get_default());
    for (const char* const name : {"media", "io", "rcm", "init-term", "pens", "custom"}) {
        not_validated = name;
        EXPECT_TRUE(!cfg.get_validated() && cfg.get_default()) << name;
        not_default = std::exchange(not_validated, "");
        EXPECT_TRUE(cfg.get_validated() && !cfg.get_default()) << name;
        not_default.clear();
    }
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
    // clang-format off
#define OWN_TEXT(name) std::tuple{&PX_Kestrane_Shoebox::set_##name, &PX_Kestrane_Shoebox::get_##name, L"" #name}
    const auto texts = {OWN_TEXT(app_path), OWN_TEXT(plot_to_file_pathname), OWN_TEXT(drawing_name), OWN_TEXT(temp_path)};
#undef OWN_TEXT
    // clang-format on
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
