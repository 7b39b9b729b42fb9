# The warnings and sanitizers that all of our own code is built with.
add_library(marvcon_compile_options INTERFACE)
target_compile_options(marvcon_compile_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
# A product is rounded before it is added, on every processor: scores are told to the last bit.
target_compile_options(marvcon_compile_options INTERFACE -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # It sees overlaps that are not there where a literal and a temporary string are joined.
    target_compile_options(marvcon_compile_options INTERFACE -Wno-restrict)
endif()
if(MARVCON_WARNINGS_AS_ERRORS)
    target_compile_options(marvcon_compile_options INTERFACE -Werror)
endif()
if(MARVCON_SANITIZE)
    target_compile_options(
        marvcon_compile_options INTERFACE -fsanitize=${MARVCON_SANITIZE} -fno-sanitize-recover=all
                                          -fno-omit-frame-pointer)
    target_link_options(marvcon_compile_options INTERFACE -fsanitize=${MARVCON_SANITIZE})
endif()
