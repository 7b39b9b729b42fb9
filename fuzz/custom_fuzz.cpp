#include "fuzz/custom.h"

// The values of custom data, compared and assigned across all classes, against a plain account of each.

namespace {

using fuzz::Bytes;
using fuzz::Input;
using fuzz::require;
using Value = PX_Custom_Data;

template <class Contract>
const Contract& as(const Value& value) {
    return dynamic_cast<const Contract&>(value);
}

// As the bytes that comparisons of texts and raw values go by.
Bytes bytes_of(const Value& value) {
    Bytes bytes;
    if (value.type() == PX_Data_Type::Data_Raw) {
        const auto& raw = as<PX_Raw_Custom_Data>(value);
        bytes.assign(raw.data(), raw.data() + raw.size());
        return bytes;
    }
    for (const wchar_t* text = as<PX_String_Custom_Data>(value).data(); *text; ++text) {
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
    for (const wchar_t* each = as<PX_String_Custom_Data>(text).data(); *each; ++each) {
        if (*each < 0 || *each > 0xFFFF || (*each >= 0xD800 && *each < 0xE000))
            return false;
    }
    return true;
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
    switch (left.type()) {
        case PX_Data_Type::Data_Long:
            return order(as<PX_Long_Custom_Data>(left).data(), as<PX_Long_Custom_Data>(right).data());
        case PX_Data_Type::Data_Double:
            return order(as<PX_Double_Custom_Data>(left).data(), as<PX_Double_Custom_Data>(right).data());
        case PX_Data_Type::Data_Boolean:
            return order(as<PX_Boolean_Custom_Data>(left).data(), as<PX_Boolean_Custom_Data>(right).data());
        default: {
            const Bytes own = bytes_of(left), other = bytes_of(right);
            const int found = difference(own, other);
            const bool is_raw = left.type() == PX_Data_Type::Data_Raw;
            return {is_raw ? found == 0 && own.size() <= other.size() : own == other, found<0, found> 0};
        }
    }
}

void compare(const Value& left, const Value& right) {
    const Order told{left.operator==(right) != 0, left.operator<(right) != 0, left.operator>(right) != 0};
    require(told.equal + told.below + told.above <= 1, "no two comparisons hold at once");
    if (left.type() != right.type())
        require(told == Order(), "classes do not compare with each other");
    else if (left.type() != PX_Data_Type::Data_String || (is_in_one_unit(left) && is_in_one_unit(right)))
        require(told == expected(left, right), "the order of two values of one class");
}

// The copy that a setter makes is as its original; an assignment takes only from the own class.
void copy_and_assign(Value& value, const Value& other) {
    PX_Std_Custom_Capability_Value holder;
    holder.set_data_value(&value);
    const auto copy = holder.get_data_value();
    require(holder.get_data_type() == value.type() && copy != &value, "a setter copies");
    const Order as_itself =
        value.type() == PX_Data_Type::Data_Double ? expected(value, value) : Order{.equal = true};
    const auto check = [&](const Value& one, const Value& same) {
        require(
            Order{one.operator==(same) != 0, one.operator<(same) != 0, one.operator>(same) != 0} == as_itself,
            "a copy is equal");
    };
    check(*copy, value);
    const Value& itself = value;
    value = itself;
    check(*copy, value);
    value = other;
    if (value.type() == other.type())
        compare(value, other);
    else
        check(*copy, value);
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
