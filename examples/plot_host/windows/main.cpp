#include <io.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "examples/common/text.h"
#include "examples/plot_host/find_driver.h"
#include "examples/plot_host/host.h"

// The words of the command line as they were typed, whatever the code page.
int wmain(int count, wchar_t** wide_words) {
    std::vector<std::string> utf8_words;
    for (int at = 0; at < count; ++at)
        utf8_words.push_back(text::to_utf8(wide_words[at]));
    std::vector<const char*> words;
    for (const std::string& word : utf8_words)
        words.push_back(word.c_str());
    SetConsoleOutputCP(CP_UTF8);
    const bool is_terminal = _isatty(_fileno(stderr)) != 0;
    // Boxes are windows, which are answered whatever the input is.
    return plot_host::run(count, words.data(), plot_host::find_driver, std::cout, std::cerr,
                          {is_terminal, is_terminal});
}
