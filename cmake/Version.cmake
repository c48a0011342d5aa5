# Gives a DLL or a program the project's version as a resource.
function(add_version_resource version_target version_description)
    get_target_property(type ${version_target} TYPE)
    if(type STREQUAL EXECUTABLE)
        set(version_type VFT_APP)
        set(version_file ${version_target}.EXE)
    else()
        set(version_type VFT_DLL)
        set(version_file ${version_target}.dll)
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${PROJECT_BINARY_DIR}/version/${version_target}.rc @ONLY)
    target_sources(${version_target} PRIVATE ${PROJECT_BINARY_DIR}/version/${version_target}.rc)
endfunction()

# A DLL or a program that users get: it tells its version, and its symbols are apart.
function(deliver target description)
    add_version_resource(${target} "${description}")
    keep_symbols_apart(${target})
endfunction()
