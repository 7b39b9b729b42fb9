# What is built for Windows is run by Wine, where there is one, with a folder of its own and nowhere to show a window.
find_program(MARVCON_WINE NAMES wine wine64)
if(MARVCON_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR
        ${CMAKE_COMMAND} -E env WINEPREFIX=${PROJECT_BINARY_DIR}/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
        --unset=DISPLAY ${MARVCON_WINE})
endif()
