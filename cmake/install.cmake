include(CMakePackageConfigHelpers)

set(marvcon_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/marvcon)

# Two components: what programs run with, and what their authors build with.
install(
    TARGETS marvcon marvcon_static marvcon_report marvcon_report_static marvcon_scripted_platform
    EXPORT marvcon_targets
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT dev
    ARCHIVE COMPONENT dev)
# The headers keep their paths, so that an include reads the same inside and outside.
install(
    DIRECTORY ${PROJECT_SOURCE_DIR}/toolkit
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/marvcon
    COMPONENT dev
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "resources" EXCLUDE)

# A program that holds the toolkit in itself links what the toolkit links.
set(marvcon_dependencies)
if(WIN32)
    # What it is compiled with tells the library from the static one.
    set(marvcon_cflags " \"-DPX_EXPORT=__declspec(dllimport)\"")
    set(marvcon_private_cflags " -UPX_EXPORT -DPX_EXPORT=")
    set(marvcon_private_libs " -lmpr -lwinspool")
    install(FILES ${marvcon_run_time} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
elseif(marvcon_cups)
    set(marvcon_dependencies "include(CMakeFindDependencyMacro)\nfind_dependency(Cups)\n")
    set(marvcon_private_libs " -lcups -ldl")
else()
    set(marvcon_private_libs " -ldl")
endif()

install(EXPORT marvcon_targets NAMESPACE marvcon:: DESTINATION ${marvcon_package_dir} COMPONENT dev)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/marvcon-config.cmake.in ${PROJECT_BINARY_DIR}/marvcon-config.cmake
    INSTALL_DESTINATION ${marvcon_package_dir}
    PATH_VARS marvcon_texts_dir)
# Until 1.0 a new minor version may change the contracts.
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/marvcon-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/marvcon-config.cmake ${PROJECT_BINARY_DIR}/marvcon-config-version.cmake
        DESTINATION ${marvcon_package_dir} COMPONENT dev)

# From the folder of the .pc file back to the prefix: the tree may be moved after its installation.
file(RELATIVE_PATH marvcon_prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" marvcon_prefix_from_pc ${marvcon_prefix_from_pc})
configure_file(${CMAKE_CURRENT_LIST_DIR}/marvcon.pc.in ${PROJECT_BINARY_DIR}/marvcon.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/marvcon.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

include(${CMAKE_CURRENT_LIST_DIR}/package.cmake)
