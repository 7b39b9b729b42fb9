# Run by Wine, where there is one, with a prefix of its own and nowhere to show a window.
find_program(MARVCON_WINE NAMES wine wine64)
if(MARVCON_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR
        ${CMAKE_COMMAND} -E env WINEPREFIX=${PROJECT_BINARY_DIR}/wine WINEDEBUG=-all --unset=DISPLAY ${MARVCON_WINE})
endif()

# From the distribution's sources: there is no package of it for this system.
set(MARVCON_GTEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(INSTALL_GTEST OFF)
set(gtest_disable_pthreads ON)
add_subdirectory(${MARVCON_GTEST_SOURCES} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# The toolkit is in the program itself: an allocation that is to fail does so on both sides. One start a
# program, as starting takes Wine longer than the tests do.
function(marvcon_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE marvcon_static_scripted_platform marvcon_compile_options gtest_main)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    add_dependencies(${name} mvnres11_ENGLISH mvnres11_GERMAN)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
