#include <gtest/gtest.h>

#include "tests/support/fields.h"
#include "tests/support/media.h"

namespace {

using namespace support;

const PX_Float_XY sheet(3, 4);
const PX_Float_Rectangle printable(5, 6, 7, 8);

// The names come before the fields of the class, the caps type after them.
template <class Std, class Contract>
void check_class(const std::wstring& class_name, const Fields<Contract>& own_fields,
                 const wchar_t* null_name = L"canonical_name") {
    Fields<Contract> fields = {FIELD(Contract, canonical_name, L"", L"canonical", null_name),
                               FIELD(Contract, localized_name, L"", L"localized")};
    fields.insert(fields.end(), own_fields.begin(), own_fields.end());
    fields.push_back(FIELD(Contract, caps_type, L"0", PX_Caps_Type::Caps_Type_Modified));
    Std object;
    support::check_fields<Contract>(object, fields, L"PX_Std_Media_" + class_name,
                                    L"$Workfile: std_media_cfg $ $Revision: #1 $");
}

TEST(Media_Catalogue, KeepsEveryField) {
    using Type = PX_Media_Type;
    using Description = PX_Media_Description;
    using Size = PX_Media_Size;
    using Entry = PX_Media_Source_Entry;
    using Source = PX_Media_Source;
    using Collating = PX_Media_Collating;
    using Stapling = PX_Media_Stapling;
    using Cutting = PX_Media_Cutting;
    using Folding = PX_Media_Folding;
    using Bin = PX_Media_Destination;
    const auto names = list_of<PX_Std_Caps_Name_List_Object, PX_Caps_Name_List_Object>({L"A4", L"A3"});
    const auto entries = list_of<PX_Std_Media_Source_Entry, Entry>({L"upper", L"lower"});
    const auto collatings = list_of<PX_Std_Media_Collating, Collating>({L"off", L"collated"});
    const auto staplings = list_of<PX_Std_Media_Stapling, Stapling>({L"off", L"stapled"});
    const auto cuttings = list_of<PX_Std_Media_Cutting, Cutting>({L"off", L"cut"});
    const auto foldings = list_of<PX_Std_Media_Folding, Folding>({L"off", L"folded"});
    // clang-format off
#define CHECK_CLASS(Class, ...) check_class<PX_Std_Media_##Class, PX_Media_##Class>(L"" #Class, __VA_ARGS__)
    CHECK_CLASS(Type, {FIELD(Type, drying_time, L"0", -7),
                       FIELD(Type, max_resolution, L"0 0", &sheet, L"m_max_resolution")});
    CHECK_CLASS(Description, {FIELD(Description, media_bounds, L"0 0", &sheet, L"m_media_bounds"),
                              FIELD(Description, printable_bounds, L"0 0 0 0", &printable, L"m_printable_bounds"),
                              FIELD(Description, printable_area, L"0", -0.5),
                              FIELD(Description, dimensional, L"1", false)});
    CHECK_CLASS(Size, {FIELD(Size, media_group, L"-1", Number{31}),
                       FIELD(Size, landscape_mode_flag, L"0", true),
                       FIELD(Size, media_description, L"", L"description", L"canonical_name"),
                       FIELD(Size, form_name, L"", L"form")});
    CHECK_CLASS(Source_Entry, {FIELD(Entry, media_size_name_list, L"list", names.get()),
                               FIELD(Entry, default_media_size, L"", L"A4", L"name"),
                               FIELD(Entry, source_width, L"0", 1.5F),
                               FIELD(Entry, source_frame_height, L"0", 2.5F)});
    CHECK_CLASS(Source, {FIELD(Source, source_entry_list, L"list", entries.get()),
                         FIELD(Source, default_source_entry, L"", L"upper", L"name"),
                         FIELD(Source, media_feed, L"-1", Number{3})});
    CHECK_CLASS(Collating, {FIELD(Collating, collating_type, L"0", Number{2})});
    CHECK_CLASS(Stapling, {FIELD(Stapling, stapling_location, L"-1", Number{3}),
                           FIELD(Stapling, stapling_when, L"0", Number{4}),
                           FIELD(Stapling, stapling_orientation, L"0", 90)});
    CHECK_CLASS(Cutting, {FIELD(Cutting, cutting_when, L"0", Number{5})});
    CHECK_CLASS(Folding, {FIELD(Folding, folding_type, L"-1", Number{6}),
                          FIELD(Folding, folding_when, L"0", Number{7})});
    CHECK_CLASS(Destination, {FIELD(Bin, collating_list, L"list", collatings.get()),
                              FIELD(Bin, default_collating, L"", L"collated", L"canonical_name"),
                              FIELD(Bin, stapling_list, L"list", staplings.get()),
                              FIELD(Bin, default_stapling, L"", L"stapled", L"canonical_name"),
                              FIELD(Bin, cutting_list, L"list", cuttings.get()),
                              FIELD(Bin, default_cutting, L"", L"cut", L"canonical_name"),
                              FIELD(Bin, folding_list, L"list", foldings.get()),
                              FIELD(Bin, default_folding, L"", L"folded", L"canonical_name")}, L"name");
#undef CHECK_CLASS
    // clang-format on
}

TEST(Media_Catalogue, IsSearchedByExactNames) {
    PX_Std_Media_Source source;
    CHECK_LOOKUP(Media_Source_Entry, source, source_entry);
    PX_Std_Media_Destination bin;
    CHECK_LOOKUP(Media_Collating, bin, collating);
    CHECK_LOOKUP(Media_Stapling, bin, stapling);
    CHECK_LOOKUP(Media_Cutting, bin, cutting);
    CHECK_LOOKUP(Media_Folding, bin, folding);
    PX_Std_Media_Capabilities caps;
    CHECK_LOOKUP(Media_Source, caps, media_source);
    CHECK_LOOKUP(Media_Size, caps, media_size);
    CHECK_LOOKUP(Media_Destination, caps, media_destination);
    CHECK_LOOKUP(Media_Description, caps, media_description);
    CHECK_LOOKUP(Media_Type, caps, media_type);
}

// The snapshot mends its values as the catalogue does.
TEST(Media_Catalogue, MendsMeasuresAndDegrees) {
    const auto check = [](auto&& stapling, auto&& entry) {
        for (const auto& [given, stored] :
             {std::pair<short, short>{360, 360}, {361, 0}, {-1, 0}, {-32768, 0}}) {
            stapling.set_stapling_orientation(45);
            stapling.set_stapling_orientation(given);
            EXPECT_EQ(stapling.get_stapling_orientation(), stored) << given;
        }
        for (const float value : {8.0F, -0.5F}) {
            entry.set_source_width(value);
            entry.set_source_frame_height(value);
        }
        EXPECT_TRUE(entry.get_source_width() == 0 && entry.get_source_frame_height() == 0);
    };
    check(PX_Std_Media_Stapling(), PX_Std_Media_Source_Entry());
    check(PX_Std_Media_Settings(), PX_Std_Media_Settings());
}

}  // namespace
