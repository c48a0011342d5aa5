# What all targets share: warnings, instrumentation, and one folder for programs and DLLs, so that a program finds
# its DLLs as it would on a user's machine.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

add_library(project_options INTERFACE)
if(MSVC)
    target_compile_options(project_options INTERFACE /W4 /WX /utf-8)
else()
    target_compile_options(project_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
    # GCC 12 warns wrongly of the library's own "literal" + std::string.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(project_options INTERFACE -Wno-restrict)
    endif()
endif()
if(PELMAR_TRAP_UNDEFINED)
    target_compile_options(project_options INTERFACE -fsanitize=undefined -fsanitize-undefined-trap-on-error)
endif()

if(WIN32)
    set(windows_definitions UNICODE _UNICODE STRICT NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601)
    target_compile_definitions(project_options INTERFACE ${windows_definitions})
    if(MINGW)
        set(CMAKE_RC_FLAGS "-c 65001")
    endif()
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_IMPORT_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
endif()

# The compiler's own run-time DLLs go beside the programs: exceptions and strings cross the DLLs' borders, so all
# of them share one copy.
if(MINGW)
    foreach(runtime libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime} OUTPUT_VARIABLE path
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT EXISTS "${path}")
            find_file(path_${runtime} ${runtime} PATHS /usr/x86_64-w64-mingw32/lib NO_CMAKE_FIND_ROOT_PATH REQUIRED)
            set(path "${path_${runtime}}")
        endif()
        file(COPY "${path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endforeach()
endif()
