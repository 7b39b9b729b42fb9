#pragma once

// A module with texts is a shared object that exports this function: the text with a number, or null. The
// text stays the module's.
extern "C" __attribute__((visibility("default"))) const wchar_t* px_module_text(unsigned int id);

inline constexpr char px_module_text_name[] = "px_module_text";
