# Installs a build into an empty folder, or PACKAGES made of it, and uses it from there as a stranger does: by
# find_package, by pkg-config, and by a program that holds the toolkit in itself. Runs with cmake -P.

set(root ${WORK_DIR}/root)
set(build ${WORK_DIR}/build)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}\n${output}")
    endif()
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
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=${BUILD_TYPE})
run(${CMAKE_COMMAND} --build ${build})

set(text_of_1103 "1103 A required object is missing.")
expect_output("${text_of_1103}" ${build}/consumer_shared)
expect_output("${text_of_1103}" ${build}/carried/consumer_static)
expect_output("missing after 2 calls" ${build}/consumer_scripted)

# Without its texts beside it, a program finds those of the place that it is installed to.
file(COPY ${build}/carried/consumer_static DESTINATION ${prefix}/bin)
expect_output("${text_of_1103}" ${prefix}/bin/consumer_static)

if(NOT PKG_CONFIG)
    message(STATUS "pkg-config is not installed: that way was left out")
    return()
endif()
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(${PKG_CONFIG} --cflags --libs marvcon)
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${output}")
run(${CXX} -std=c++20 ${SOURCE_DIR}/main.cpp -o ${build}/consumer_plain ${flags})
expect_output("${text_of_1103}" ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR}
              ${build}/consumer_plain)
