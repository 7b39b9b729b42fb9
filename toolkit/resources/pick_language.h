#pragma once

// Picks one language of an entry of error_texts.inc, for C++ and for a Windows resource script alike. The
// build names the language: MVN_TEXTS_ENGLISH or MVN_TEXTS_GERMAN.
#if defined(MVN_TEXTS_GERMAN)
#    define MVN_PICK_TEXT(english, german) german
#else
#    define MVN_PICK_TEXT(english, german) english
#endif

#define MVN_WIDE_LITERAL(text) L##text
#define MVN_WIDE(text) MVN_WIDE_LITERAL(text)
