#include "examples/drivers/ppd/meta.h"

#include <algorithm>
#include <cwctype>
#include <initializer_list>
#include <string_view>

#include "examples/common/made.h"
#include "examples/common/text.h"

namespace {

// The first of the keywords that the file has.
std::wstring first_text(const Ppd_File& file, std::initializer_list<const char*> keywords) {
    for (const char* const keyword : keywords) {
        if (auto found = file.text(keyword); !found.empty())
            return found;
    }
    return {};
}

// "Maker Model PS, 1.2" and "Maker Model PS v3010.106 (recommended)" name the same device as "Maker Model
// PS".
std::wstring without_version(const std::wstring& name) {
    const auto number_follows = [](std::wstring_view rest, std::wstring_view sign) {
        return rest.starts_with(sign) && rest.size() > sign.size() &&
               std::iswdigit(std::wint_t(rest[sign.size()]));
    };
    for (std::size_t at = 1; at < name.size(); ++at) {
        const auto rest = std::wstring_view(name).substr(at);
        if (number_follows(rest, L", ") || number_follows(rest, L" v") || rest.starts_with(L" (recommended"))
            return name.substr(0, at);
    }
    return name;
}

// A device id reads "MFG:Maker;MDL:Model;"; the keys have a long form too.
std::wstring maker_of(std::wstring_view device_id) {
    while (!device_id.empty()) {
        const auto field = device_id.substr(0, device_id.find(L';'));
        device_id.remove_prefix(std::min(field.size() + 1, device_id.size()));
        for (const std::wstring_view key : {L"MFG:", L"MANUFACTURER:"}) {
            if (field.starts_with(key))
                return std::wstring(field.substr(key.size()));
        }
    }
    return {};
}

PX_Smart_Pointer<PX_Family> make_family(const Ppd_File& file, const PX_Plotter_Class_Factory& factory) {
    std::wstring maker = file.text("Manufacturer");
    if (maker.empty())
        maker = maker_of(file.text("1284DeviceID"));
    return made_named(factory.MK_Create_Family(), L"family", maker.c_str(), maker.c_str());
}

PX_Smart_Pointer<PX_Model> make_model(const Ppd_File& file, const PX_Plotter_Class_Factory& factory) {
    auto model = made_named(factory.MK_Create_Model(), L"model",
                            without_version(first_text(file, {"ModelName", "NickName"})).c_str(),
                            first_text(file, {"NickName", "ModelName"}).c_str());
    // A system that finds the device by itself knows it by its id, and lists drivers by the short name.
    model->set_win_device_name(file.text("1284DeviceID").c_str());
    model->set_win_driver_name(first_text(file, {"ShortNickName", "NickName"}).c_str());
    model->set_locale(file.text("LanguageVersion").c_str());
    return model;
}

}  // namespace

PX_Smart_Pointer<PX_Meta_Capabilities> ppd_meta_capabilities(const Ppd_File& file,
                                                             const PX_Plotter_Class_Factory& factory) {
    auto meta = made(factory.MK_Create_Meta_Capabilities(), L"meta_capabilities");
    meta->set_driver_pathname(text::from_utf8(file.path().string()).c_str());
    meta->set_driver_version(file.text("FileVersion").c_str());
    meta->set_driver_description(first_text(file, {"NickName", "ModelName"}).c_str());
    meta->set_family(make_family(file, factory).get());
    meta->set_model(make_model(file, factory).get());
    return meta;
}
