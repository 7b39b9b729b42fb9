#include "toolkit/report/device_check.h"

using Mask = PX_Domain_Mask;

const wchar_t* px_domain_text(const PX_Device_Finding& finding) {
    switch (finding.domain) {
        case Mask::IO:
            return L"output";
        case Mask::Media:
            return L"media";
        case Mask::Custom:
            return L"custom data";
        case Mask::Res_Color_Mem:
            return L"colour";
        case Mask::Phys_Pens:
            return L"pens";
        case Mask::Init_Term:
            return L"strings";
        default:
            return L"device";
    }
}

const wchar_t* px_fault_text(PX_Device_Fault::Enum fault) {
    using Fault = PX_Device_Fault;
    switch (fault) {
        case Fault::Object_Missing:
            return L"is not there";
        case Fault::List_Missing:
            return L"there is no list";
        case Fault::Nothing_To_Take:
            return L"has no entry that could be taken";
        case Fault::Ability_Undefined:
            return L"is none of the abilities";
        case Fault::Equal_Names:
            return L"has the name of an earlier entry, which is found in its place";
        case Fault::Name_Empty:
            return L"has no name, and counts as none";
        case Fault::Names_Nothing:
            return L"names what does not exist";
        case Fault::Names_Withdrawn:
            return L"names what is withdrawn";
        case Fault::Default_Not_Offered:
            return L"is not among what is offered";
        case Fault::Default_Out_Of_Range:
            return L"is out of its range";
        case Fault::Default_Not_Written:
            return L"is validated, and its default is not written: what is wrong stays";
        case Fault::Not_Ensured:
            return L"needs a choice that nothing before it makes good";
        case Fault::Beyond_Limit:
            return L"is larger than the largest sheet";
        case Fault::Bounds_Empty:
            return L"has printable bounds without an inside";
        case Fault::No_Measure:
            return L"has a measure that is no number, or beyond all others";
        case Fault::Feed_Unset:
            return L"has no feed";
        case Fault::Color_System_Undefined:
            return L"has no colour system";
        case Fault::Data_Type_Undefined:
            return L"has no data type";
        case Fault::Default_Of_Other_Type:
            return L"is not of the type of its setting";
        case Fault::Range_Of_No_Number:
            return L"has a range, and is no number";
        case Fault::Limits_Reversed:
            return L"has nothing between its limits";
        case Fault::Memory_Default:
            return L"has no area that counts for the default of the installed memory";
        case Fault::List_Not_Counted:
            return L"is asked for, and its list is not counted";
        case Fault::Method_Missing:
            return L"has no method";
        case Fault::Type_Never_Valid:
            return L"is never valid";
        case Fault::Value_Never_Matches:
            return L"is missing, or not of the type of its setting";
    }
    return L"is wrong";
}

namespace {

std::wstring hexadecimal(long bits) {
    constexpr const wchar_t* digits = L"0123456789ABCDEF";
    std::wstring text;
    for (auto rest = static_cast<unsigned long>(bits); rest; rest /= 16)
        text.insert(text.begin(), digits[rest % 16]);
    return L"0x" + text;
}

}  // namespace

std::wstring px_effect_text(const PX_Device_Finding& finding) {
    switch (finding.effect) {
        case PX_Device_Effect::Throws:
            return L"a run throws " + std::to_wstring(finding.code) +
                   (finding.detail.empty() ? L"" : L" \"" + finding.detail + L"\"");
        case PX_Device_Effect::Repeats:
            return L"repeats itself" + (finding.bits ? L", bits " + hexadecimal(finding.bits) : L"");
        default:
            return L"is passed over";
    }
}

std::wstring px_finding_text(const PX_Device_Finding& finding) {
    return px_domain_text(finding) + (L": " + finding.object) + L" " + px_fault_text(finding.fault) + L"; " +
           px_effect_text(finding);
}
