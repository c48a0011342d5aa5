# delay_load(TARGET LIBRARY FUNCTION...): the target uses these functions of a system library that is loaded with the
# first call only. Most users of the target never come to that.
function(delay_load target library)
    if(MSVC)
        target_link_libraries(${target} PRIVATE ${library} delayimp)
        target_link_options(${target} PRIVATE /DELAYLOAD:${library}.dll)
        return()
    endif()
    if(NOT CMAKE_DLLTOOL)
        message(FATAL_ERROR "dlltool is missing: it belongs to the compiler")
    endif()
    set(definition "${CMAKE_CURRENT_BINARY_DIR}/${library}.def")
    set(import "${CMAKE_CURRENT_BINARY_DIR}/lib${library}-delayed.a")
    list(JOIN ARGN "\n" functions)
    file(CONFIGURE OUTPUT "${definition}" CONTENT "LIBRARY ${library}.dll\nEXPORTS\n${functions}\n" @ONLY)
    add_custom_command(OUTPUT "${import}"
        COMMAND ${CMAKE_DLLTOOL} --input-def "${definition}" --output-delaylib "${import}"
        DEPENDS "${definition}"
        VERBATIM)
    add_custom_target(${target}_${library} DEPENDS "${import}")
    add_dependencies(${target} ${target}_${library})
    target_link_libraries(${target} PRIVATE "${import}" delayimp)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${import}")
endfunction()
