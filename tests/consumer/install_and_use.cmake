# Installs a build into an empty folder, or PACKAGES made of it, and uses it from there as a stranger does: by
# find_package, by pkg-config, and by a program that holds the toolkit in itself. Runs with cmake -P. Programs of
# another system are run by the EMULATOR, the words of which are parted by bars.

set(root ${WORK_DIR}/root)
set(build ${WORK_DIR}/build)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}\n${output}${errors}")
    endif()
    string(REPLACE "\r" "" output "${output}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_output expected)
    run(${ARGN})
    if(NOT output STREQUAL "${expected}\n")
        message(FATAL_ERROR "${ARGN}\nprinted: ${output}instead of: ${expected}")
    endif()
endfunction()

if(PACKAGES)
    # Unpacked only: the root has nothing that they depend on, and no program that could configure them.
    run(${CMAKE_CPACK_COMMAND} --config ${TOOLKIT_BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/packages)
    file(GLOB packages ${WORK_DIR}/packages/*.deb)
    file(MAKE_DIRECTORY ${root}/var/lib/dpkg/info ${root}/var/lib/dpkg/updates)
    file(TOUCH ${root}/var/lib/dpkg/status)
    run(dpkg --root=${root} --force-not-root --log=${WORK_DIR}/dpkg.log --unpack ${packages})
    set(prefix ${root}/usr)
else()
    set(prefix ${root})
    run(${CMAKE_COMMAND} --install ${TOOLKIT_BUILD_DIR} --prefix ${prefix})
endif()
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE_DIR} -B ${build} -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=${BUILD_TYPE} ${SYSTEM})
run(${CMAKE_COMMAND} --build ${build})

# On Windows, libraries and texts are found along the path, or beside the program. Those of the compiler are
# needed by every program, and lie in a folder of their own so that nothing else is found there.
if(EMULATOR)
    string(REPLACE "|" ";" emulator "${EMULATOR}")
    file(GLOB run_time ${prefix}/bin/lib*.dll)
    file(COPY ${run_time} DESTINATION ${build}/run_time)
    set(by_path ${CMAKE_COMMAND} -E env WINEPATH=Z:${prefix}/bin ${emulator})
    set(linked ${by_path})
    set(carried ${CMAKE_COMMAND} -E env WINEPATH=Z:${build}/run_time ${emulator})
    set(suffix .exe)
else()
    set(by_path ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR})
endif()

set(text_of_1103 "1103 A required object is missing.")
expect_output("${text_of_1103}" ${linked} ${build}/consumer_shared${suffix})
expect_output("${text_of_1103}" ${carried} ${build}/carried/consumer_static${suffix})
expect_output("missing after 2 calls" ${linked} ${build}/consumer_scripted${suffix})
foreach(report report report_static)
    expect_output("Copies, 3 > 2: nearest" ${linked} ${build}/consumer_${report}${suffix})
endforeach()

# Without its texts beside it, a program finds those of the place that it is installed to.
file(COPY ${build}/carried/consumer_static${suffix} DESTINATION ${prefix}/bin)
expect_output("${text_of_1103}" ${carried} ${prefix}/bin/consumer_static${suffix})

if(NOT PKG_CONFIG)
    message(STATUS "pkg-config is not installed: that way was left out")
    return()
endif()
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(${PKG_CONFIG} --cflags --libs marvcon)
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${output}")
run(${CXX} -std=c++20 ${SOURCE_DIR}/main.cpp -o ${build}/consumer_plain${suffix} ${flags})
expect_output("${text_of_1103}" ${by_path} ${build}/consumer_plain${suffix})

if(EMULATOR)
    run(${PKG_CONFIG} --static --cflags --libs marvcon)
    separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${output}")
    run(${CXX} -std=c++20 -static ${SOURCE_DIR}/main.cpp -o ${prefix}/consumer_alone${suffix} ${flags})
    foreach(language en-US de-DE)
        file(COPY ${prefix}/bin/${language} DESTINATION ${prefix})
    endforeach()
    expect_output("${text_of_1103}" ${emulator} ${prefix}/consumer_alone${suffix})
endif()
