#include <gtest/gtest.h>

#include <limits>

#include "tests/support/rcm.h"

namespace {

using namespace support;

const PX_Float_XY pair(3, 4);

template <class Std, class Contract>
void check_class(const std::wstring& class_name, const Fields<Contract>& own_fields,
                 const wchar_t* null_name = L"name") {
    Fields<Contract> fields = {FIELD(Contract, canonical_name, L"", L"canonical", null_name),
                               FIELD(Contract, localized_name, L"", L"localized")};
    fields.insert(fields.end(), own_fields.begin(), own_fields.end());
    if constexpr (requires(Contract & object) { object.get_caps_type(); })
        fields.push_back(FIELD(Contract, caps_type, L"0", PX_Caps_Type::Caps_Type_Withdrawn));
    Std object;
    support::check_fields<Contract>(object, fields, L"PX_Std_" + class_name, rcm_file);
}

TEST(RCM_Catalogue, KeepsEveryField) {
    using Area = PX_Mem_Area;
    using Method = PX_Dithering_Method;
    using Resolution = PX_Resolution;
    using Mode = PX_ResColorMem;
    using Caps = PX_ResColorMem_Capabilities;
    const auto matrices = list_of<PX_Std_Dither_Matrix, PX_Dither_Matrix>({L"one", L"two"});
    const auto names = list_of<PX_Std_Caps_Name_List_Object, PX_Caps_Name_List_Object>({L"8", L"4"});
    const auto resolutions = list_of<PX_Std_Resolution, Resolution>({L"300", L"600"});
    const auto modes = list_of<PX_Std_ResColorMem, Mode>({L"mono", L"color"});
    const auto areas = list_of<PX_Std_Mem_Area, Area>({L"8", L"4"});
    const auto methods = list_of<PX_Std_Dithering_Method, Method>({L"hard", L"soft"});
    // clang-format off
#define CHECK_CLASS(Class, ...) check_class<PX_Std_##Class, PX_##Class>(L"" #Class, __VA_ARGS__)
    CHECK_CLASS(Mem_Area, {FIELD(Area, device_memory, L"0", -1), FIELD(Area, printable_area, L"0", -1.0)});
    CHECK_CLASS(Dither_Matrix, {});
    CHECK_CLASS(Dithering_Method, {FIELD(Method, dithering_method, L"0", Number{-9}),
                                   FIELD(Method, matrix_size_x, L"0", 2), FIELD(Method, matrix_size_y, L"0", 3),
                                   FIELD(Method, source_pixel_ratio, L"1", 4),
                                   FIELD(Method, pixel_expansion_ratio, L"1", 5),
                                   FIELD(Method, matrix_list, L"list", matrices.get(), L"m_matrix_list"),
                                   FIELD(Method, constant_threshold, L"1", 255),
                                   FIELD(Method, required_renderers, L"0", Number{3})});
    CHECK_CLASS(Resolution, {FIELD(Resolution, dithering_name, L"", L"soft"),
                             FIELD(Resolution, mem_area_name_list, L"list", names.get(), L"m_mem_area_name_list"),
                             FIELD(Resolution, default_mem_area_name, L"", L"4"),
                             FIELD(Resolution, effective_resolution_xy, L"0 0", &pair, L"m_effective_resolution_xy"),
                             FIELD(Resolution, phys_resolution_xy, L"0 0", &pair, L"m_phys_resolution_xy"),
                             FIELD(Resolution, addr_resolution_xy, L"0 0", &pair, L"m_addr_resolution_xy")},
                L"canonical_name");
    CHECK_CLASS(ResColorMem, {FIELD(Mode, num_colors, L"0", 2), FIELD(Mode, color_depth, L"0", 3),
                              FIELD(Mode, num_undithered_colors, L"0", -5),
                              FIELD(Mode, color_system, L"0", Number{-1}),
                              FIELD(Mode, resolution_list, L"list", resolutions.get(), L"m_resolution_list"),
                              FIELD(Mode, default_resolution, L"", L"600", L"resolution")});
#undef CHECK_CLASS
    PX_Std_ResColorMem_Capabilities caps;
    support::check_fields<Caps>(
        caps, {FIELD(Caps, res_color_mem_list, L"list", modes.get(), L"m_rescolormem_list"),
               FIELD(Caps, default_res_color_mem, L"", L"color", L"rcm"),
               FIELD(Caps, memory_changes_print_area, L"0", true),
               FIELD(Caps, mem_area_list, L"list", areas.get(), L"m_mem_area_list"),
               FIELD(Caps, dithering_list, L"list", methods.get(), L"m_dithering_list")},
        L"PX_Std_ResColorMem_Capabilities", rcm_file);
    // clang-format on
}

TEST(RCM_Catalogue, IsSearchedByExactNames) {
    PX_Std_ResColorMem mode;
    CHECK_LOOKUP(Resolution, mode, resolution);
    PX_Std_ResColorMem_Capabilities caps;
    CHECK_LOOKUP(ResColorMem, caps, res_color_mem);
    CHECK_LOOKUP(Mem_Area, caps, mem_area);
    CHECK_LOOKUP(Dithering_Method, caps, dithering);
}

TEST(RCM_Catalogue, NumbersTheFlagsByTheirEnums) {
    PX_Std_ResColorMem_Capabilities caps;
    CHECK_RANGE(caps, ability, Number{5}, 24, "res_color_mem", L"PX_ResColorMem_Ability_Flags::Enum");
    CHECK_RANGE(caps, caps_state, true, 15, "res_color_mem", L"PX_ResColorMem_User_Flags::Enum");
    CHECK_RANGE(caps, ui_owner, Number{3}, 14, "res_color_mem", L"PX_ResColorMem_UI_Owner_Flags::Enum");
    EXPECT_EQ(caps.get_abilities(), std::wstring(23, L'0') + L"5");
    caps.set_abilities(L"126");
    EXPECT_EQ(caps.get_one_ability(Number{2}), -1);
    const std::unique_ptr<PX_ResColorMem_Capabilities> clone(caps.clone());
    EXPECT_STREQ(clone->get_abilities(), L"126");
    EXPECT_STREQ(clone->get_caps_state(), L"0004");
    EXPECT_EQ(clone->get_ui_owner(), std::wstring(13, L'0') + L"3");
}

// Only some of the negative numbers are mended.
TEST(RCM_Catalogue, MendsNegativeNumbers) {
    PX_Std_Dithering_Method method;
    for (const auto set :
         {&PX_Std_Dithering_Method::set_matrix_size_x, &PX_Std_Dithering_Method::set_matrix_size_y,
          &PX_Std_Dithering_Method::set_source_pixel_ratio,
          &PX_Std_Dithering_Method::set_pixel_expansion_ratio})
        (method.*set)(-1);
    EXPECT_TRUE(method.get_matrix_size_x() == 0 && method.get_matrix_size_y() == 0 &&
                method.get_source_pixel_ratio() == 0 && method.get_pixel_expansion_ratio() == 0);
    const auto check = [](auto&& colors) {
        colors.set_num_colors(-5);
        colors.set_color_depth(-5);
        colors.set_num_undithered_colors(-5);
        EXPECT_TRUE(colors.get_num_colors() == 0 && colors.get_color_depth() == 0);
        EXPECT_EQ(colors.get_num_undithered_colors(), -5);
    };
    check(PX_Std_ResColorMem());
    check(PX_Std_ResColorMem_Settings());
    PX_Std_ResColorMem_Settings settings;
    for (const double area : {-1.0, std::numeric_limits<double>::quiet_NaN()}) {
        settings.set_printable_area(0.5);
        EXPECT_EQ(settings.get_printable_area(), 0.5);
        settings.set_printable_area(area);
        EXPECT_EQ(settings.get_printable_area(), 0.0);
    }
}

TEST(RCM_Catalogue, AMatrixOwnsItsBytes) {
    constexpr const wchar_t* function = L"PX_Std_Dither_Matrix::set_matrix";
    unsigned char bytes[] = {1, 2, 3};
    PX_Std_Dither_Matrix matrix;
    const auto held = [&] { return std::string(reinterpret_cast<const char*>(matrix.get_matrix()), 3); };
    EXPECT_FALSE(matrix.get_matrix());
    matrix.set_matrix(bytes, 3);
    bytes[1] = 9;
    EXPECT_EQ(held(), "\1\2\3");
    EXPECT_EQ(
        expect_thrown<MVNK_Warning>([&] { matrix.set_matrix(bytes, -1); }, 1104, function, L"sizeinbytes")
            .file,
        rcm_file);
    EXPECT_EQ(held(), "\1\2\3");
    const std::unique_ptr<PX_Dither_Matrix> clone(matrix.clone());
    EXPECT_NE(clone->get_matrix(), matrix.get_matrix());
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(clone->get_matrix()), 3), "\1\2\3");
    matrix.set_matrix(matrix.get_matrix(), 3);
    EXPECT_EQ(held(), "\1\2\3") << "its own bytes";
    const auto without_memory = [&] {
        const Out_Of_Memory none;
        matrix.set_matrix(bytes, 3);
    };
    EXPECT_EQ(expect_thrown<MVNK_Memory_Exception>(without_memory, 1101, function, L"m_matrix").file,
              rcm_file);
    EXPECT_FALSE(matrix.get_matrix()) << "the old bytes go first";
    for (const auto& [source, size] : {std::pair<unsigned char*, long>{bytes, 0}, {nullptr, 3}}) {
        matrix.set_matrix(bytes, 3);
        matrix.set_matrix(source, size);
        EXPECT_FALSE(matrix.get_matrix());
        EXPECT_FALSE(std::unique_ptr<PX_Dither_Matrix>(matrix.clone())->get_matrix());
    }
}

// Settings of a driver that fail in one setter.
class Failing_Settings : public PX_Std_ResColorMem_Settings {
public:
    void set_addr_resolution_xy(const PX_Float_XY*) override { throw MVNK_Memory_Exception(9, L"Driver"); }
};

TEST(RCM_Settings, AreASnapshotOfTheCatalogue) {
    const auto& fields = rcm_settings_fields();
    PX_Std_ResColorMem_Settings settings;
    support::check_fields<PX_ResColorMem_Settings>(settings, fields, L"PX_Std_ResColorMem_Settings",
                                                   rcm_file);

    PX_Std_Mem_Area area;
    area.set_printable_area(2.5);
    const PX_Smart_Pointer<PX_Resolution> resolution = support::resolution(L"r", {1, 2}, {3, 4}, {5, 6});
    const PX_Smart_Pointer<PX_ResColorMem> mode = color_mode(L"m", 7, 8, -9, 3);
    using Take = std::function<void(PX_ResColorMem_Settings&, bool)>;
    for (const auto& [take, taken] : std::initializer_list<std::pair<Take, const wchar_t*>>{
             {[&](auto&s, bool some) { s.set_mem_area_settings(some ? &area : nullptr); },
              L"printable_area 2.5"},
             {[&](auto&s, bool some) { s.set_resolution_settings(some ? resolution.get() : nullptr); },
              L"phys_resolution_xy 1 2, addr_resolution_xy 3 4, effective_resolution_xy 5 6"},
             {[&](auto&s, bool some) { s.set_rescolormem_settings(some ? mode.get() : nullptr); },
              L"num_colors 7, color_depth 8, num_undithered_colors -9, color_system 3"}}) {
        PX_Std_ResColorMem_Settings snapshot;
        take(snapshot, false);
        EXPECT_EQ(changes<PX_ResColorMem_Settings>(snapshot, fields), L"") << "null is nothing";
        take(snapshot, true);
        EXPECT_EQ(changes<PX_ResColorMem_Settings>(snapshot, fields), taken);
        take(snapshot, false);
        EXPECT_EQ(changes<PX_ResColorMem_Settings>(snapshot, fields), taken);
    }
    // By the setters, which mend.
    area.set_printable_area(-2.5);
    settings.set_mem_area_settings(&area);
    EXPECT_EQ(settings.get_printable_area(), 0.0);

    Failing_Settings failing;
    const auto thrown = expect_thrown<PX_Exception>(
        [&] { failing.set_resolution_settings(resolution.get()); }, 9, L"Driver", L"");
    EXPECT_EQ(thrown.frames,
              std::vector<std::wstring>{L"PX_Std_ResColorMem_Settings::set_resolution_settings"});
    EXPECT_EQ(changes<PX_ResColorMem_Settings>(failing, fields), L"phys_resolution_xy 1 2")
        << "the first of three";
}

}  // namespace
