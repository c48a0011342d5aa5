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
    # Not _GLIBCXX_DEBUG: with it the tables are no constants for a compiler that looks for null pointers too.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
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

# What is delivered comes without its symbols, which cost every start their loading; they are kept in symbols/, where a
# debugger finds them by the name that the file holds.
set(PELMAR_SYMBOLS "${CMAKE_BINARY_DIR}/symbols")
if(MINGW)
    file(MAKE_DIRECTORY "${PELMAR_SYMBOLS}")
endif()

# keep_symbols_apart(TARGET...): does so after each link, with the lines of the sources.
function(keep_symbols_apart)
    if(NOT MINGW OR PELMAR_COVERAGE OR PELMAR_TRAP_UNDEFINED)
        return()
    endif()
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-g1>)
        set(symbols "${PELMAR_SYMBOLS}/$<TARGET_FILE_NAME:${target}>.debug")
        add_custom_command(TARGET ${target} POST_BUILD
            COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> "${symbols}"
            COMMAND ${CMAKE_STRIP} --strip-unneeded $<TARGET_FILE:${target}>
            COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
            VERBATIM)
    endforeach()
endfunction()

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
        set(delivered "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${runtime}")
        if("${path}" IS_NEWER_THAN "${delivered}" OR NOT EXISTS "${PELMAR_SYMBOLS}/${runtime}.debug")
            file(MAKE_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
            execute_process(COMMAND ${CMAKE_OBJCOPY} --only-keep-debug "${path}" "${PELMAR_SYMBOLS}/${runtime}.debug"
                            COMMAND_ERROR_IS_FATAL ANY)
            execute_process(COMMAND ${CMAKE_STRIP} --strip-unneeded -o "${delivered}" "${path}"
                            COMMAND_ERROR_IS_FATAL ANY)
        endif()
    endforeach()
endif()
