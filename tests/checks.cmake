# The checks of the house itself, beside the tests of the library. 77 tells that one could not be made here.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(MARVCON_PKG_CONFIG pkg-config)

function(marvcon_check name)
    add_test(NAME ${name} COMMAND ${ARGN})
    set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
endfunction()

marvcon_check(check.layers ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/check_layers.py --self-test)
marvcon_check(
    check.virtual_operations ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/list_virtual_operations.py
    --compiler ${CMAKE_CXX_COMPILER})
marvcon_check(check.format sh ${PROJECT_SOURCE_DIR}/scripts/check_format.sh)
marvcon_check(
    check.windows_resource ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/resources/windows_resource_test.py
    --compiler ${CMAKE_CXX_COMPILER})

# The reference, and that every public contract has its words.
marvcon_check(check.docs ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/reference.py --self-test
              ${PROJECT_BINARY_DIR}/docs/Doxyfile)

# The programs on the pages.
file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/*.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${pages})
execute_process(
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/samples/samples.py extract
            --to ${PROJECT_BINARY_DIR}/samples ${pages}
    OUTPUT_VARIABLE samples OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" samples "${samples}")
while(samples)
    list(POP_FRONT samples page name)
    add_executable(sample_${name} ${PROJECT_BINARY_DIR}/samples/${name}.cpp)
    target_link_libraries(sample_${name} PRIVATE marvcon_report marvcon_scripted_platform marvcon_compile_options)
    marvcon_check(check.sample.${name} ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/samples/samples.py run
                  ${page} ${name} $<TARGET_FILE:sample_${name}>)
endwhile()

set(consumer_flags ${CMAKE_CXX_FLAGS})
if(MARVCON_SANITIZE)
    string(APPEND consumer_flags " -fsanitize=${MARVCON_SANITIZE}")
endif()
set(consumer
    ${CMAKE_COMMAND}
    -DTOOLKIT_BUILD_DIR=${PROJECT_BINARY_DIR}
    -DSOURCE_DIR=${CMAKE_CURRENT_LIST_DIR}/consumer
    -DGENERATOR=${CMAKE_GENERATOR}
    -DBUILD_TYPE=${CMAKE_BUILD_TYPE}
    -DCXX=${CMAKE_CXX_COMPILER}
    -DCXX_FLAGS=${consumer_flags}
    -DLIBDIR=${CMAKE_INSTALL_LIBDIR}
    -DPKG_CONFIG=${MARVCON_PKG_CONFIG})
set(install_and_use -P ${CMAKE_CURRENT_LIST_DIR}/consumer/install_and_use.cmake)
marvcon_check(check.consumer ${consumer} -DWORK_DIR=${PROJECT_BINARY_DIR}/consumer ${install_and_use})
find_program(MARVCON_DPKG dpkg-deb)
if(MARVCON_DPKG AND NOT MARVCON_SANITIZE)
    marvcon_check(check.packages ${consumer} -DWORK_DIR=${PROJECT_BINARY_DIR}/packages_used -DPACKAGES=ON
                  ${install_and_use})
endif()
