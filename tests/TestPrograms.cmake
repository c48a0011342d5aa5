# What is watched in the instrumented build is the library. Its test programs, which take longer to compile than the
# library, are those of the plain build, tried with this build's DLLs.
if(PELMAR_TEST_PROGRAMS)
    set(plain_build "${PROJECT_SOURCE_DIR}/build/${PELMAR_TEST_PROGRAMS}")
    if(NOT EXISTS "${plain_build}/build.ninja")
        execute_process(COMMAND ${CMAKE_COMMAND} --preset ${PELMAR_TEST_PROGRAMS}
                        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
endif()

# add_test_program(NAME [TOGETHER] SOURCES source... LIBRARIES target... [INCLUDES folder...]
# [PRECOMPILED target|header...] [NEEDS target...]): a program of tests, with precompiled headers, its own or those of
# another target. It loads what it needs, and is not linked to that. TOGETHER, its sources are compiled as one.
function(add_test_program name)
    cmake_parse_arguments(this "TOGETHER" "" "PRECOMPILED;SOURCES;INCLUDES;LIBRARIES;NEEDS" ${ARGN})
    if(PELMAR_TEST_PROGRAMS)
        add_executable(${name} IMPORTED GLOBAL)
        set_target_properties(${name} PROPERTIES
            IMPORTED_LOCATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}${CMAKE_EXECUTABLE_SUFFIX}")
        set_property(GLOBAL APPEND PROPERTY taken_test_programs ${name})
        return()
    endif()
    add_executable(${name} ${this_SOURCES})
    if(this_TOGETHER)
        set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
    endif()
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${this_INCLUDES})
    target_link_libraries(${name} PRIVATE ${this_LIBRARIES} project_options)
    if(TARGET "${this_PRECOMPILED}")
        target_precompile_headers(${name} REUSE_FROM ${this_PRECOMPILED})
    elseif(this_PRECOMPILED AND NOT MSVC)
        target_precompile_headers(${name} PRIVATE ${this_PRECOMPILED})
    endif()
    if(this_NEEDS)
        add_dependencies(${name} ${this_NEEDS})
    endif()
endfunction()

# take_test_programs(): after all of them are added.
function(take_test_programs)
    get_property(names GLOBAL PROPERTY taken_test_programs)
    if(NOT names)
        return()
    endif()
    list(TRANSFORM names PREPEND "${plain_build}/bin/" OUTPUT_VARIABLE programs)
    list(TRANSFORM programs APPEND "${CMAKE_EXECUTABLE_SUFFIX}")
    add_custom_target(test_programs ALL
        COMMAND ${CMAKE_COMMAND} --build "${plain_build}" --target ${names}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${programs} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
        COMMENT "Taking the test programs of the preset ${PELMAR_TEST_PROGRAMS}"
        VERBATIM USES_TERMINAL)
endfunction()
