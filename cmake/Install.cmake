# What a host's developer gets (cmake --install): headers, import libraries, DLLs and a CMake package. And what a user
# gets (cpack): a folder with the reference host, ready to start; the symbols of all that come in a package of their own.
include(CMakePackageConfigHelpers)

install(FILES include/PelmarDlgs.h DESTINATION include)
install(DIRECTORY include/PelmarDlgs DESTINATION include)
# What the library's headers stand on.
install(FILES base/ControlLib/ControlLib.h DESTINATION include/ControlLib)
install(FILES base/util/util.h DESTINATION include/util)
set(libraries PelmarDlgs ControlLib util framework)
if(PELMAR_FRAMEWORK STREQUAL afx)
    list(APPEND libraries afx)
    install(DIRECTORY afx/include/ DESTINATION include/afx)
endif()
install(TARGETS PelmarSettings RUNTIME DESTINATION bin)
install(TARGETS ${libraries} EXPORT PelmarDlgsTargets
    RUNTIME DESTINATION bin ARCHIVE DESTINATION lib LIBRARY DESTINATION bin)
if(MINGW)
    file(GLOB runtimes "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*.dll")
    install(FILES ${runtimes} DESTINATION bin)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/licences" DESTINATION .)
    install(DIRECTORY "${PELMAR_SYMBOLS}" DESTINATION . COMPONENT symbols EXCLUDE_FROM_ALL)
endif()

set(package lib/cmake/PelmarDlgs)
install(EXPORT PelmarDlgsTargets NAMESPACE PelmarDlgs:: DESTINATION ${package})
configure_package_config_file(cmake/PelmarDlgsConfig.cmake.in PelmarDlgsConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(PelmarDlgsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/PelmarDlgsConfig.cmake" "${PROJECT_BINARY_DIR}/PelmarDlgsConfigVersion.cmake"
    DESTINATION ${package})

install(DIRECTORY "${PROJECT_BINARY_DIR}/TORVEX" DESTINATION . COMPONENT host EXCLUDE_FROM_ALL)
set(CPACK_GENERATOR ZIP)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL host symbols)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_ARCHIVE_HOST_FILE_NAME TORVEX-${PROJECT_VERSION})
set(CPACK_ARCHIVE_SYMBOLS_FILE_NAME symbols-${PROJECT_VERSION})
include(CPack)
