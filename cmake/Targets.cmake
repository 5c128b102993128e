# What all our targets share: warnings, sanitizers, include root, and GoogleTest built for the target.

# tarvo_options(target) - house options for our own code; third-party code does not get them.
function(tarvo_options target)
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/res) # res: Resource.h
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    # Clang reads some of these differently; the two compilers that build what is used decide.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -Wconversion -Wshadow -Werror)
    endif()
    if(WIN32)
        target_compile_definitions(
            ${target} PRIVATE UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0600)
    endif()
    tarvo_sanitize(${target})
endfunction()

# tarvo_product_options(target) - tarvo_options for what users run, which is optimised. GCC 12.2's vectoriser of straight
# code exchanges the halves of a pair that is compared and then swapped (MovePoint in RunwayFollow.cpp moved things by
# 70 km), so it stays off.
function(tarvo_product_options target)
    tarvo_options(${target})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT TARVO_SANITIZERS)
        target_compile_options(${target} PRIVATE -fno-tree-slp-vectorize)
    endif()
endfunction()

function(tarvo_sanitize target)
    if(TARVO_SANITIZERS)
        target_compile_options(${target} PRIVATE -fsanitize=${TARVO_SANITIZERS} -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${TARVO_SANITIZERS})
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU") # the checks' own branches look uninitialised to GCC
            target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
        endif()
    endif()
endfunction()

# tarvo_test_options(target) - beside tarvo_options: a test runs once for each time it is compiled, and optimising
# what GoogleTest's macros become, or checking it for undefined behaviour, takes longer than running it. The product's
# code is checked in the core that the tests link.
function(tarvo_test_options target)
    target_compile_options(${target} PRIVATE -O0)
    if(TARVO_SANITIZERS)
        target_compile_options(${target} PRIVATE -fno-sanitize=undefined,float-cast-overflow)
    endif()
    if(WIN32) # no debugger reads it
        target_compile_options(${target} PRIVATE -g0)
    endif()
endfunction()

# Debian ships GoogleTest as source, so that it can be built by the compiler and with the options of the tests.
macro(tarvo_need_googletest)
    if(NOT TARGET gtest)
        set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
        set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
        add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
        tarvo_sanitize(gtest)
        tarvo_sanitize(gtest_main)
    endif()
endmacro()
