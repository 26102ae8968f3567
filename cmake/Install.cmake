# The files that a host uses after `cmake --install`, with CMake, pkg-config or qmake. All
# paths in them are relative to the files themselves: the tree can be moved.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# The headers are in a folder vantorslider of the include folder. With Qt 5 that is the
# include folder of the prefix.
set(include_dir ${CMAKE_INSTALL_INCLUDEDIR})
if(VANTORSLIDER_QT GREATER 5)
    string(APPEND include_dir /${library_name})
endif()
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${package_name})
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(data_dir ${CMAKE_INSTALL_DATADIR}/vantorslider)

# For <slidereditframe.h> and for <vantorslider/slidereditframe.h>.
target_include_directories(vantorslider PUBLIC
    $<INSTALL_INTERFACE:${include_dir}/vantorslider> $<INSTALL_INTERFACE:${include_dir}>)

install(TARGETS vantorslider EXPORT ${package_name}Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime NAMELINK_COMPONENT development
    PUBLIC_HEADER DESTINATION ${include_dir}/vantorslider COMPONENT development)
install(DIRECTORY ${PROJECT_BINARY_DIR}/styles DESTINATION ${data_dir} COMPONENT runtime
    FILES_MATCHING PATTERN *.qss PATTERN *.svg PATTERN CMakeFiles EXCLUDE)

install(EXPORT ${package_name}Targets NAMESPACE VantorSlider:: DESTINATION ${package_dir}
    COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VantorSliderConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${package_name}Config.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package_name}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${package_name}Config.cmake
    ${PROJECT_BINARY_DIR}/${package_name}ConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_dir} /)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
configure_file(${CMAKE_CURRENT_LIST_DIR}/vantorslider.pc.in
    ${PROJECT_BINARY_DIR}/${library_name}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${library_name}.pc DESTINATION ${pkgconfig_dir}
    COMPONENT development)

file(RELATIVE_PATH include_from_data /${data_dir} /${include_dir})
file(RELATIVE_PATH lib_from_data /${data_dir} /${CMAKE_INSTALL_LIBDIR})
configure_file(${CMAKE_CURRENT_LIST_DIR}/vantorslider.pri.in
    ${PROJECT_BINARY_DIR}/${library_name}.pri @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${library_name}.pri DESTINATION ${data_dir}
    COMPONENT development)

# A host can use the build tree like an installed one.
export(EXPORT ${package_name}Targets NAMESPACE VantorSlider::
    FILE ${PROJECT_BINARY_DIR}/${package_name}Targets.cmake)
