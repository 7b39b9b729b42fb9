# From the distribution's sources: there is no package of it for this system.
set(MARVCON_GTEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
set(gtest_disable_pthreads ON)
add_subdirectory(${MARVCON_GTEST_SOURCES} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# One start a program, as starting takes Wine longer than the tests do.
function(marvcon_test_with toolkit machine name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE ${toolkit} ${machine} marvcon_compile_options gtest_main)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    add_dependencies(${name} mvnres11_ENGLISH mvnres11_GERMAN)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    set_property(GLOBAL APPEND PROPERTY marvcon_test_sources ${ARGN})
endfunction()

# The toolkit is in the program itself: an allocation that is to fail does so on both sides.
function(marvcon_test name)
    marvcon_test_with(marvcon_static marvcon_static_scripted_platform ${name} ${ARGN})
endfunction()

# The tests of a program that order no failure of an allocation are run against the library as well, which has its own
# operator new.
function(marvcon_dll_test name)
    set(files)
    foreach(file ${ARGN})
        file(STRINGS ${file} orders REGEX "support/(allocations|fields|rcm)[.]h")
        if(file MATCHES "_test[.]cpp$" AND NOT orders)
            list(APPEND files ${file})
        endif()
    endforeach()
    marvcon_test_with(marvcon marvcon_scripted_platform ${name} ${files})
endfunction()

# What is not run here: a file of tests, or a test that is no file, and why.
set(not_on_windows
    "platform/posix_platform_test.cpp|the back end of the other systems"
    "platform/posix_ports_test.cpp|the back end of the other systems"
    "platform/posix_serial_line_test.cpp|the back end of the other systems, on a pseudo terminal"
    "platform/print_queue_test.cpp|the back end of the other systems, with a print server of CUPS"
    "examples/plot_host_test.cpp|takes the driver for printer descriptions, whose library is not had for Windows"
    "examples/plot_test.cpp|takes the driver for printer descriptions, and a pseudo terminal"
    "examples/ppd_driver_test.cpp|takes the driver for printer descriptions"
    "examples/ppd_options_test.cpp|takes the driver for printer descriptions"
    "examples/plot_process_test.py|signals, pseudo terminals and a print server of CUPS"
    "examples/sweep/sweep.py|takes the driver for printer descriptions"
    "checks.cmake|checks of the sources, which are the same"
    "resources/windows_resource_test.py|a check of the sources, which are the same"
    "samples/samples.py|the programs of the pages, which are the same"
    "examples/device_findings_test.cpp|takes the driver for printer descriptions")

# Every file of tests is built or told of. The table goes to the build folder, for the script that runs the tests.
function(marvcon_tests_left_out)
    get_property(built GLOBAL PROPERTY marvcon_test_sources)
    list(TRANSFORM not_on_windows REPLACE "[|].*" "" OUTPUT_VARIABLE left_out)
    file(GLOB_RECURSE files RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *_test.cpp *_test.py)
    list(REMOVE_ITEM files ${built} ${left_out})
    if(NOT TARGET plot_host_core)
        list(FILTER files EXCLUDE REGEX "^examples/")
    endif()
    if(files)
        message(FATAL_ERROR "Neither built for Windows nor left out for a reason: ${files}")
    endif()
    list(JOIN not_on_windows "\n" lines)
    file(WRITE ${PROJECT_BINARY_DIR}/not_on_windows.txt "${lines}\n")
endfunction()
