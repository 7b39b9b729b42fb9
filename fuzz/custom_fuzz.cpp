#include "fuzz/custom.h"

// The values of custom data, compared and assigned across all classes, by what has to hold for any.

namespace {

using fuzz::Input;
using fuzz::require;
using Value = PX_Custom_Data;

struct Order {
    bool equal = false, below = false, above = false;
    bool operator==(const Order&) const = default;
};

Order told(const Value& left, const Value& right) {
    return {left.operator==(right) != 0, left.operator<(right) != 0, left.operator>(right) != 0};
}

void compare(const Value& left, const Value& right) {
    const Order order = told(left, right);
    require(order.equal + order.below + order.above <= 1, "no two comparisons hold at once");
    if (left.type() != right.type()) {
        require(order == Order(), "classes do not compare with each other");
    } else if (left.type() != PX_Data_Type::Data_String && left.type() != PX_Data_Type::Data_Raw) {
        // Of texts and bytes the length of the left side counts.
        const Order back = told(right, left);
        require(order == Order{back.equal, back.above, back.below}, "numbers compare both ways alike");
    }
}

// The copy that a setter makes is as its original; an assignment takes only from the own class.
void copy_and_assign(Value& value, const Value& other) {
    PX_Std_Custom_Capability_Value holder;
    holder.set_data_value(&value);
    const auto copy = holder.get_data_value();
    require(holder.get_data_type() == value.type() && copy != &value, "a setter copies");
    const Order as_itself = told(value, value);
    require(as_itself.equal || value.type() == PX_Data_Type::Data_Double, "what is no number is not equal");
    const auto check_copy = [&] { require(told(*copy, value) == as_itself, "a copy is equal"); };
    check_copy();
    const Value& itself = value;
    value = itself;
    check_copy();
    value = other;
    if (value.type() == other.type())
        require(told(value, other) == told(other, other), "what was assigned is equal");
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
