#include "toolkit/marvcon/std_custom_cfg/custom_data.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <span>
#include <utility>

#include "toolkit/core/fields.h"
#include "toolkit/core/utf16.h"

namespace {

constexpr const wchar_t* file_tag = px_std_custom_cfg_source.file_tag;

// The bytes that are there, wherever a driver's class keeps them.
std::span<const unsigned char> bytes_of(const PX_Raw_Custom_Data& value) {
    const long size = value.size();
    const unsigned char* const bytes = value.data();
    if (!bytes || size <= 0)
        return {};
    return {bytes, static_cast<std::size_t>(size)};
}

int difference(std::span<const unsigned char> left, std::span<const unsigned char> right) {
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (const int difference = left[i] - (i < right.size() ? right[i] : 0))
            return difference;
    }
    return 0;
}

// False for a value of another class.
template <class Standard>
bool make_copy(PX_Custom_Data*& copy, const PX_Custom_Data& value) {
    const auto* const source = dynamic_cast<const typename Standard::Own_Contract*>(&value);
    if (source)
        copy = new Standard(source);
    return source != nullptr;
}

// By its type, which has to be that of its class too.
bool make_copy(PX_Custom_Data*& copy, const PX_Custom_Data& value) {
    switch (value.type()) {
        case PX_Data_Type::Data_String:
            return make_copy<PX_Std_String_Custom_Data>(copy, value);
        case PX_Data_Type::Data_Long:
            return make_copy<PX_Std_Long_Custom_Data>(copy, value);
        case PX_Data_Type::Data_Double:
            return make_copy<PX_Std_Double_Custom_Data>(copy, value);
        case PX_Data_Type::Data_Boolean:
            return make_copy<PX_Std_Boolean_Custom_Data>(copy, value);
        case PX_Data_Type::Data_Raw:
            return make_copy<PX_Std_Raw_Custom_Data>(copy, value);
        default:
            return false;
    }
}

}  // namespace

PX_Custom_Data::~PX_Custom_Data() = default;

const PX_Custom_Data& PX_Custom_Data::operator=(const PX_Custom_Data& /*other*/) {
    return *this;
}

bool PX_Std_String_Custom_Data::is_equal(const PX_String_Custom_Data& other) const {
    PX_UTF16_Reader left(data()), right(other.data());
    while (!left.is_at_end() || !right.is_at_end()) {
        if (left.next() != right.next())
            return false;
    }
    return true;
}

// Drivers know this order. It is no slip that the length of the right side is not asked for.
int PX_Std_String_Custom_Data::difference(const PX_String_Custom_Data& other) const {
    PX_UTF16_Reader left(data()), right(other.data());
    while (!left.is_at_end()) {
        const char16_t here = left.next(), there = right.next();
        if (const int low = (here & 0xFF) - (there & 0xFF))
            return low;
        if (const int high = (here >> 8) - (there >> 8))
            return high;
    }
    return 0;
}

void PX_Std_Raw_Custom_Data::store(long size, const unsigned char* bytes) {
    const auto old = std::move(m_data_ptr);  // the bytes may be its own
    m_size = bytes ? std::max(static_cast<std::int32_t>(size), 0) : 0;
    if (m_size == 0)
        return;
    const auto count = static_cast<std::size_t>(m_size);
    m_data_ptr.reset(new (std::nothrow) unsigned char[count]);
    px_require_made(m_data_ptr, L"PX_Std_Raw_Custom_Data::set_data", L"m_data_ptr", file_tag);
    std::memcpy(m_data_ptr.get(), bytes, count);
}

bool PX_Std_Raw_Custom_Data::is_equal(const PX_Raw_Custom_Data& other) const {
    const auto own = bytes_of(*this), others = bytes_of(other);
    const bool has_lost_its_bytes = own.empty() && size() > 0;
    return !has_lost_its_bytes && own.size() <= others.size() && ::difference(own, others) == 0;
}

int PX_Std_Raw_Custom_Data::difference(const PX_Raw_Custom_Data& other) const {
    return ::difference(bytes_of(*this), bytes_of(other));
}

void px_store_custom_data(PX_Smart_Pointer<PX_Custom_Data>& field, const PX_Custom_Data* value,
                          const wchar_t* function, const wchar_t* detail) {
    if (!value) {
        field = PX_Smart_Pointer<PX_Custom_Data>();
        return;
    }
    PX_Custom_Data* copy = nullptr;
    bool is_known = true;
    try {
        is_known = px_frame(function, [&] { return make_copy(copy, *value); });
    } catch (const std::bad_alloc&) {
        // There is no copy then.
    }
    if (!is_known)
        throw MVNK_Error(PX_Custom_Code::Unknown_Type, function, nullptr, file_tag);
    px_store_made(field, copy, function, detail, file_tag);
}
