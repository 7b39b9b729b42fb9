#include <algorithm>
#include <string_view>

#include "fuzz/custom.h"

// The values of custom data, compared and assigned across all classes, against a plain account of each.

namespace {

using fuzz::Bytes;
using fuzz::Input;
using fuzz::require;
using Value = PX_Custom_Data;

template <class Contract>
auto payload(const Value& value) {
    return dynamic_cast<const Contract&>(value).data();
}

// As the bytes that comparisons of texts and raw values go by.
Bytes bytes_of(const Value& value) {
    if (const auto* const raw = dynamic_cast<const PX_Raw_Custom_Data*>(&value))
        return Bytes(raw->data(), raw->data() + raw->size());
    Bytes bytes;
    for (const wchar_t* text = payload<PX_String_Custom_Data>(value); *text; ++text) {
        bytes.push_back(static_cast<unsigned char>(*text));
        bytes.push_back(static_cast<unsigned char>(*text >> 8));
    }
    return bytes;
}

// Below 0, 0 or above it, over the left side's length.
int difference(const Bytes& left, const Bytes& right) {
    for (std::size_t at = 0; at < left.size(); ++at) {
        if (const int found = left[at] - (at < right.size() ? right[at] : 0))
            return found;
    }
    return 0;
}

bool is_in_one_unit(const Value& text) {
    return std::ranges::all_of(std::wstring_view(payload<PX_String_Custom_Data>(text)), [](wchar_t each) {
        return each >= 0 && each <= 0xFFFF && (each < 0xD800 || each >= 0xE000);
    });
}

struct Order {
    bool equal = false, below = false, above = false;
    bool operator==(const Order&) const = default;
};
template <class Number>
Order order(Number left, Number right) {
    return {left == right, left<right, left> right};
}

Order expected(const Value& left, const Value& right) {
    const auto type = left.type();
    if (type == PX_Data_Type::Data_Long)
        return order(payload<PX_Long_Custom_Data>(left), payload<PX_Long_Custom_Data>(right));
    if (type == PX_Data_Type::Data_Double)
        return order(payload<PX_Double_Custom_Data>(left), payload<PX_Double_Custom_Data>(right));
    if (type == PX_Data_Type::Data_Boolean)
        return order(payload<PX_Boolean_Custom_Data>(left), payload<PX_Boolean_Custom_Data>(right));
    const Bytes own = bytes_of(left), other = bytes_of(right);
    const int found = difference(own, other);
    const bool is_equal =
        type == PX_Data_Type::Data_Raw ? found == 0 && own.size() <= other.size() : own == other;
    return {is_equal, found<0, found> 0};
}

Order told(const Value& left, const Value& right) {
    return {left.operator==(right) != 0, left.operator<(right) != 0, left.operator>(right) != 0};
}

void compare(const Value& left, const Value& right) {
    const Order order = told(left, right);
    require(order.equal + order.below + order.above <= 1, "no two comparisons hold at once");
    if (left.type() != right.type())
        require(order == Order(), "classes do not compare with each other");
    else if (left.type() != PX_Data_Type::Data_String || (is_in_one_unit(left) && is_in_one_unit(right)))
        require(order == expected(left, right), "the order of two values of one class");
}

// The copy that a setter makes is as its original; an assignment takes only from the own class.
void copy_and_assign(Value& value, const Value& other) {
    PX_Std_Custom_Capability_Value holder;
    holder.set_data_value(&value);
    const auto copy = holder.get_data_value();
    require(holder.get_data_type() == value.type() && copy != &value, "a setter copies");
    const Order as_itself =
        value.type() == PX_Data_Type::Data_Double ? expected(value, value) : Order{.equal = true};
    const auto check_copy = [&] { require(told(*copy, value) == as_itself, "a copy is equal"); };
    check_copy();
    const Value& itself = value;
    value = itself;
    check_copy();
    value = other;
    if (value.type() == other.type())
        compare(value, other);
    else
        check_copy();
    require(value.type() == copy->type(), "a value stays of its class");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    std::vector<PX_Smart_Pointer<Value>> values;
    while (!input.is_empty() && values.size() < 8) {
        if (auto value = fuzz::custom_value(input))
            values.push_back(value);
    }
    for (const auto& left : values) {
        for (const auto& right : values)
            compare(*left, *right);
    }
    for (const auto& value : values)
        copy_and_assign(*value, *values[static_cast<std::size_t>(input.up_to(7)) % values.size()]);
    return 0;
}
