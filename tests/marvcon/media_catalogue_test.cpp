#include <gtest/gtest.h>

#include "tests/support/fields.h"
#include "tests/support/media.h"

namespace {

using support::Fields;
using support::list_of;
using support::Number;

const PX_Float_XY sheet(3, 4);
const PX_Float_Rectangle printable(5, 6, 7, 8);

// The names come before the fields of the class, the caps type after them.
template <class Std, class Contract>
void check_class(const wchar_t* class_name, const wchar_t* null_name, const Fields<Contract>& own_fields) {
    Fields<Contract> fields = {FIELD(Contract, canonical_name, L"", L"canonical", null_name),
                               FIELD(Contract, localized_name, L"", L"localized")};
    fields.insert(fields.end(), own_fields.begin(), own_fields.end());
    fields.push_back(FIELD(Contract, caps_type, L"0", PX_Caps_Type::Caps_Type_Modified));
    Std object;
    support::check_fields<Contract>(object, fields, class_name,
                                    L"$Workfile: std_media_cfg $ $Revision: #1 $");
}

TEST(Media_Catalogue, KeepsPaperAndSizes) {
    using Type = PX_Media_Type;
    check_class<PX_Std_Media_Type, Type>(L"PX_Std_Media_Type", L"canonical_name",
                                         {FIELD(Type, drying_time, L"0", -7),
                                          FIELD(Type, max_resolution, L"0 0", &sheet, L"m_max_resolution")});
    using Description = PX_Media_Description;
    check_class<PX_Std_Media_Description, Description>(
        L"PX_Std_Media_Description", L"canonical_name",
        {FIELD(Description, media_bounds, L"0 0", &sheet, L"m_media_bounds"),
         FIELD(Description, printable_bounds, L"0 0 0 0", &printable, L"m_printable_bounds"),
         FIELD(Description, printable_area, L"0", -0.5), FIELD(Description, dimensional, L"1", false)});
    using Size = PX_Media_Size;
    check_class<PX_Std_Media_Size, Size>(
        L"PX_Std_Media_Size", L"canonical_name",
        {FIELD(Size, media_group, L"-1", Number{31}), FIELD(Size, landscape_mode_flag, L"0", true),
         FIELD(Size, media_description, L"", L"description", L"canonical_name"),
         FIELD(Size, form_name, L"", L"form")});
}

TEST(Media_Catalogue, KeepsSources) {
    using Entry = PX_Media_Source_Entry;
    const auto sizes = list_of<PX_Std_Caps_Name_List_Object, PX_Caps_Name_List_Object>({L"A4", L"A3"});
    check_class<PX_Std_Media_Source_Entry, Entry>(
        L"PX_Std_Media_Source_Entry", L"canonical_name",
        {FIELD(Entry, media_size_name_list, L"list", sizes.get()),
         FIELD(Entry, default_media_size, L"", L"A4", L"name"), FIELD(Entry, source_width, L"0", 1.5F),
         FIELD(Entry, source_frame_height, L"0", 2.5F)});
    using Source = PX_Media_Source;
    const auto entries = list_of<PX_Std_Media_Source_Entry, Entry>({L"upper", L"lower"});
    check_class<PX_Std_Media_Source, Source>(L"PX_Std_Media_Source", L"canonical_name",
                                             {FIELD(Source, source_entry_list, L"list", entries.get()),
                                              FIELD(Source, default_source_entry, L"", L"upper", L"name"),
                                              FIELD(Source, media_feed, L"-1", Number{3})});
}

TEST(Media_Catalogue, KeepsFinishings) {
    using Collating = PX_Media_Collating;
    check_class<PX_Std_Media_Collating, Collating>(L"PX_Std_Media_Collating", L"canonical_name",
                                                   {FIELD(Collating, collating_type, L"0", Number{2})});
    using Stapling = PX_Media_Stapling;
    check_class<PX_Std_Media_Stapling, Stapling>(
        L"PX_Std_Media_Stapling", L"canonical_name",
        {FIELD(Stapling, stapling_location, L"-1", Number{3}),
         FIELD(Stapling, stapling_when, L"0", Number{4}), FIELD(Stapling, stapling_orientation, L"0", 90)});
    using Cutting = PX_Media_Cutting;
    check_class<PX_Std_Media_Cutting, Cutting>(L"PX_Std_Media_Cutting", L"canonical_name",
                                               {FIELD(Cutting, cutting_when, L"0", Number{5})});
    using Folding = PX_Media_Folding;
    check_class<PX_Std_Media_Folding, Folding>(
        L"PX_Std_Media_Folding", L"canonical_name",
        {FIELD(Folding, folding_type, L"-1", Number{6}), FIELD(Folding, folding_when, L"0", Number{7})});
}

TEST(Media_Catalogue, KeepsDestinations) {
    using Bin = PX_Media_Destination;
    const auto collatings = list_of<PX_Std_Media_Collating, PX_Media_Collating>({L"off", L"collated"});
    const auto staplings = list_of<PX_Std_Media_Stapling, PX_Media_Stapling>({L"off", L"stapled"});
    const auto cuttings = list_of<PX_Std_Media_Cutting, PX_Media_Cutting>({L"off", L"cut"});
    const auto foldings = list_of<PX_Std_Media_Folding, PX_Media_Folding>({L"off", L"folded"});
    check_class<PX_Std_Media_Destination, Bin>(
        L"PX_Std_Media_Destination", L"name",
        {FIELD(Bin, collating_list, L"list", collatings.get()),
         FIELD(Bin, default_collating, L"", L"collated", L"canonical_name"),
         FIELD(Bin, stapling_list, L"list", staplings.get()),
         FIELD(Bin, default_stapling, L"", L"stapled", L"canonical_name"),
         FIELD(Bin, cutting_list, L"list", cuttings.get()),
         FIELD(Bin, default_cutting, L"", L"cut", L"canonical_name"),
         FIELD(Bin, folding_list, L"list", foldings.get()),
         FIELD(Bin, default_folding, L"", L"folded", L"canonical_name")});
}

template <class Std, class Class, class Element>
void check_lookup(Class& object, void (Class::*set)(const PX_Named_Object_List<Element>*),
                  PX_Smart_Pointer<Element> (Class::*find)(const wchar_t*) const) {
    const auto list = list_of<Std, Element>({L"", L"other", L"a4", L"a4"});
    support::withdraw(list->find(L"a4"));
    (object.*set)(list.get());
    const auto found = (object.*find)(L"a4");
    EXPECT_TRUE(found && found->get_caps_type() == 3) << "the first of that name, though it is withdrawn";
    for (const wchar_t* const missing : {L"A4", L"a", L"a44", static_cast<const wchar_t*>(nullptr)})
        EXPECT_FALSE((object.*find)(missing));
    (object.*set)(nullptr);
    EXPECT_FALSE((object.*find)(L"a4"));
}
#define CHECK_LOOKUP(class_name, object, name)                                      \
    check_lookup<PX_Std_##class_name>(object, &decltype(object)::set_##name##_list, \
                                      &decltype(object)::get_##name)

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
    const auto check_degrees = [](auto&& object) {
        for (const auto& [given, stored] :
             {std::pair<short, short>{360, 360}, {361, 0}, {-1, 0}, {-32768, 0}}) {
            object.set_stapling_orientation(45);
            object.set_stapling_orientation(given);
            EXPECT_EQ(object.get_stapling_orientation(), stored) << given;
        }
    };
    check_degrees(PX_Std_Media_Stapling());
    check_degrees(PX_Std_Media_Settings());
    const auto check_measures = [](auto&& object) {
        object.set_source_width(8);
        object.set_source_width(-0.5F);
        EXPECT_EQ(object.get_source_width(), 0);
        object.set_source_frame_height(8);
        object.set_source_frame_height(-0.5F);
        EXPECT_EQ(object.get_source_frame_height(), 0);
    };
    check_measures(PX_Std_Media_Source_Entry());
    check_measures(PX_Std_Media_Settings());
}

}  // namespace
