#include "toolkit/report/data.h"

#include <array>
#include <charconv>
#include <utility>

#include "toolkit/report/text.h"
#include "toolkit/report/words.h"

PX_Value_Words& PX_Value_Words::name(const wchar_t* text) {
    const std::wstring_view name = text ? text : L"";
    exact += std::to_string(name.size()) + ' ';
    exact.append(reinterpret_cast<const char*>(name.data()), name.size() * sizeof(wchar_t));
    shown += px_quoted(text);
    return *this;
}

PX_Value_Words& PX_Value_Words::number(const char* before, double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::hex).ptr;
    exact.append(digits.begin(), end) += '\0';
    shown += before + px_brief(value);
    return *this;
}

PX_Value_Words& PX_Value_Words::bounds(const PX_Float_Rectangle& value) {
    return number("x ", value.x_min)
        .number(" to ", value.x_max)
        .number(", y ", value.y_min)
        .number(" to ", value.y_max);
}

PX_Value_Words& PX_Value_Words::extent(const char* before, const PX_Float_XY& value) {
    return number(before, value.x).number(" x ", value.y);
}

PX_Value_Words& PX_Value_Words::text(std::string_view text) {
    exact.append(text) += '\0';
    shown.append(text);
    return *this;
}

PX_Value_Words& PX_Value_Words::unseen(const PX_Value_Words& words) {
    exact += words.exact;
    return *this;
}

std::string_view px_bytes_of(const PX_Dev_String& string) {
    return {reinterpret_cast<const char*>(string.data()), static_cast<std::size_t>(string.length())};
}

PX_Value_Words px_words_of(const wchar_t* name) {
    return PX_Value_Words().name(name);
}

PX_Value_Words px_words_of(bool yes) {
    return PX_Value_Words().text(px_yes_or_no(yes));
}

PX_Value_Words px_words_of(const PX_Smart_Pointer<PX_Float_Rectangle>& bounds) {
    return bounds ? PX_Value_Words().bounds(*bounds) : PX_Value_Words().text("(none)");
}

PX_Value_Words px_words_of(const PX_Smart_Pointer<PX_Dev_String>& string) {
    if (!string)
        return {"none", "(none)"};
    const std::string_view bytes = px_bytes_of(*string);
    return {"string " + std::string(bytes), px_readable_bytes(bytes)};
}

std::vector<PX_Report_Datum> px_report_data(const PX_Plotter_Configuration& configuration) {
    std::vector<PX_Report_Datum> all;
    const auto add = [&all](std::vector<PX_Report_Datum> data) {
        for (PX_Report_Datum& datum : data)
            all.push_back(std::move(datum));
    };
    add(px_media_data());
    add(px_pen_data());
    add(px_color_data());
    add(px_output_data());
    add(px_init_term_data());
    add(px_custom_data(configuration));
    return all;
}
