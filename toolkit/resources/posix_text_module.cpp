#include "toolkit/platform/posix/text_module.h"
#include "toolkit/resources/pick_language.h"

extern "C" const wchar_t* px_module_text(unsigned int id) {
    switch (id) {
#define MVN_ERROR_TEXT(code, english, german) \
    case code:                                \
        return MVN_WIDE(MVN_PICK_TEXT(english, german));
#include "toolkit/resources/error_texts.inc"
        default:
            return nullptr;
    }
}
