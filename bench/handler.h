#pragma once

#include "toolkit/core/std_error_handler.h"

namespace bench {

// Nothing is asked or told where nothing fails.
class Handler : public Std_Error_Handler {
    const wchar_t* get_warning_caption() const override { return L"Warning"; }
    const wchar_t* get_severe_error_caption() const override { return L"Severe"; }
    const wchar_t* get_error_caption() const override { return L"Error"; }
    const wchar_t* get_ARI_error_caption() const override { return L"Error"; }
    const wchar_t* get_terminal_error_caption() const override { return L"Error"; }
    const wchar_t* get_info_caption() const override { return L"Info"; }
};

}  // namespace bench
