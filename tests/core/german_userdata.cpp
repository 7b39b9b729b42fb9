// The host's language module, as a product in German has it beside its program.
extern "C" __attribute__((visibility("default"))) const wchar_t* vrcuGetProductUILanguage() {
    return L"de-DE";
}
