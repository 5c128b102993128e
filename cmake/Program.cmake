# Tarvo.exe and the folder that a user gets: the program, its help and the parking specs.
enable_language(RC)
file(GLOB_RECURSE help_files RELATIVE ${CMAKE_SOURCE_DIR}/help CONFIGURE_DEPENDS help/*.htm help/*.png help/*.txt)
file(GLOB parking_specs CONFIGURE_DEPENDS samples/ParkingSpecs.txt)
file(GLOB resource_files CONFIGURE_DEPENDS res/*)
set(program_folder ${TARVO_OUTPUT}/Tarvo)

if(win_sources AND EXISTS ${CMAKE_SOURCE_DIR}/res/Tarvo.rc)
    add_executable(Tarvo WIN32 ${win_sources} res/Tarvo.rc)
    tarvo_product_options(Tarvo)
    target_precompile_headers(Tarvo PRIVATE <windows.h> <commctrl.h> <algorithm> <cstdint> <string> <vector>)
    # GCC warns of MinGW's own wmemcpy when it comes from a precompiled header.
    set_source_files_properties(src/platform/FilesWin.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    # What the program says of itself names files as they lie in the checkout, not where that was built.
    foreach(target IN ITEMS core Tarvo)
        target_compile_options(${target} PRIVATE -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
    endforeach()
    # windres does not report what a script includes, so any changed resource rebuilds it.
    set_source_files_properties(res/Tarvo.rc PROPERTIES OBJECT_DEPENDS "${resource_files}")
    # wWinMain; and no time of linking, so that the same sources give the same bytes.
    target_link_options(Tarvo PRIVATE -municode -Wl,--no-insert-timestamp)
    target_link_libraries(
        Tarvo PRIVATE core comctl32 comdlg32 shell32 ole32 gdi32 winspool shlwapi uuid advapi32)

    # The debugging build stays in the build directory; the copy that ships carries no symbols.
    set(shipped ${program_folder}/Tarvo.exe)
    add_custom_command(
        OUTPUT ${shipped}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${program_folder}
        COMMAND ${CMAKE_STRIP} -p -o ${shipped} $<TARGET_FILE:Tarvo> # -p: else strip writes the time into the header
        COMMAND ${CMAKE_COMMAND} -E touch ${shipped}
        DEPENDS Tarvo
        VERBATIM)
    foreach(file IN LISTS help_files)
        list(APPEND shipped_sources help/${file})
        list(APPEND shipped_names ${file})
    endforeach()
    if(parking_specs)
        list(APPEND shipped_sources samples/ParkingSpecs.txt)
        list(APPEND shipped_names ParkingSpecs.txt)
    endif()
    foreach(source name IN ZIP_LISTS shipped_sources shipped_names)
        add_custom_command(
            OUTPUT ${program_folder}/${name}
            COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${source} ${program_folder}/${name}
            DEPENDS ${source}
            VERBATIM)
        list(APPEND shipped ${program_folder}/${name})
    endforeach()
    add_custom_target(program_folder ALL DEPENDS ${shipped})
endif()
