# What a host finds after `cmake --install`, by CMake, pkg-config or qmake. All
# paths in it are relative to the files themselves: the tree can be moved.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/vantorslider)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/VantorSlider)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(data_dir ${CMAKE_INSTALL_DATADIR}/vantorslider)

# For <slidereditframe.h> and for <vantorslider/slidereditframe.h>.
target_include_directories(vantorslider PUBLIC
    $<INSTALL_INTERFACE:${include_dir}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)

install(TARGETS vantorslider EXPORT VantorSliderTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime NAMELINK_COMPONENT development
    PUBLIC_HEADER DESTINATION ${include_dir} COMPONENT development)
if(EXISTS ${PROJECT_SOURCE_DIR}/styles)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/styles DESTINATION ${data_dir} COMPONENT runtime
        FILES_MATCHING PATTERN *.qss PATTERN *.svg)
endif()

install(EXPORT VantorSliderTargets NAMESPACE VantorSlider:: DESTINATION ${package_dir}
    COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VantorSliderConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VantorSliderConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VantorSliderConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VantorSliderConfig.cmake
    ${PROJECT_BINARY_DIR}/VantorSliderConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_dir} /)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
configure_file(${CMAKE_CURRENT_LIST_DIR}/vantorslider.pc.in
    ${PROJECT_BINARY_DIR}/vantorslider.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vantorslider.pc DESTINATION ${pkgconfig_dir}
    COMPONENT development)

file(RELATIVE_PATH include_from_data /${data_dir} /${CMAKE_INSTALL_INCLUDEDIR})
file(RELATIVE_PATH lib_from_data /${data_dir} /${CMAKE_INSTALL_LIBDIR})
configure_file(${CMAKE_CURRENT_LIST_DIR}/vantorslider.pri.in
    ${PROJECT_BINARY_DIR}/vantorslider.pri @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vantorslider.pri DESTINATION ${data_dir}
    COMPONENT development)

# The build tree serves a host as an installed one does.
export(EXPORT VantorSliderTargets NAMESPACE VantorSlider::
    FILE ${PROJECT_BINARY_DIR}/VantorSliderTargets.cmake)
