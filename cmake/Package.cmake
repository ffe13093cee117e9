# The package that `cmake --install` lays down and find_package(metagen) finds: the tool, the replay
# SDK, and the headers and the function for hosts. The build folder serves find_package, too, as metagen_DIR.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# The headers for hosts have a folder of their own: on the path of a cross build they must not take
# the build machine's other headers along.
set(headers_folder "${CMAKE_INSTALL_DATADIR}/metagen/include")
add_library(metagen_host INTERFACE)
add_library(metagen::host ALIAS metagen_host)
set_target_properties(metagen_host PROPERTIES EXPORT_NAME host)
target_compile_features(metagen_host INTERFACE cxx_std_17)
target_include_directories(metagen_host INTERFACE
    "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>" "$<INSTALL_INTERFACE:${headers_folder}>")

# What reads the tables of a host's build once, before the host does. It comes with the tool, whatever
# is built, and is no command for users.
add_executable(check_tables host/check_tables.cpp)
add_executable(metagen::check_tables ALIAS check_tables)
set_target_properties(check_tables PROPERTIES OUTPUT_NAME check-tables)
target_link_libraries(check_tables PRIVATE metagen_host metagen_warnings)
metagen_windows_executable(check_tables)
add_dependencies(metagen check_tables)

# The replay SDK may be left out of a package; everything else stays together.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME metagen)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/metagen")
set(replay_sdk_folder "${CMAKE_INSTALL_LIBDIR}/metagen/replay_sdk")

set(commands metagen metagen-lint)
install(TARGETS ${commands} EXPORT metagenTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS check_tables EXPORT metagenTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/metagen")
install(TARGETS metagen_host EXPORT metagenTargets)
install(DIRECTORY include/metagen DESTINATION "${headers_folder}")
install(TARGETS replay_sdk
    LIBRARY DESTINATION "${replay_sdk_folder}/bin" COMPONENT replay_sdk)
install(FILES replay_sdk/catalogue.json
    DESTINATION "${replay_sdk_folder}/bin" COMPONENT replay_sdk)
install(FILES replay_sdk/README.md DESTINATION "${replay_sdk_folder}" COMPONENT replay_sdk)
install(FILES cmake/MetagenHost.cmake cmake/MetagenTables.cmake DESTINATION "${package_folder}")
# For another build on this machine as well as for an installed metagen: a package is searched for
# by its version alone, since metagen makes source text that fits every system.
install(EXPORT metagenTargets NAMESPACE metagen:: DESTINATION "${package_folder}")
export(EXPORT metagenTargets NAMESPACE metagen:: FILE "${PROJECT_BINARY_DIR}/metagenTargets.cmake")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/metagenConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion ARCH_INDEPENDENT)

set(HOST_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake")
set(REPLAY_SDK_ROOT "${PROJECT_BINARY_DIR}/sdk")
configure_package_config_file(cmake/metagenConfig.cmake.in
    "${PROJECT_BINARY_DIR}/metagenConfig.cmake"
    INSTALL_DESTINATION "${PROJECT_BINARY_DIR}"
    INSTALL_PREFIX "${PROJECT_BINARY_DIR}"
    PATH_VARS HOST_SCRIPTS REPLAY_SDK_ROOT)

set(HOST_SCRIPTS "${package_folder}")
set(REPLAY_SDK_ROOT "${replay_sdk_folder}")
configure_package_config_file(cmake/metagenConfig.cmake.in
    "${PROJECT_BINARY_DIR}/package/metagenConfig.cmake"
    INSTALL_DESTINATION "${package_folder}"
    PATH_VARS HOST_SCRIPTS REPLAY_SDK_ROOT)
install(FILES
    "${PROJECT_BINARY_DIR}/package/metagenConfig.cmake"
    "${PROJECT_BINARY_DIR}/metagenConfigVersion.cmake"
    DESTINATION "${package_folder}")

# All of it that has to be built, and no tests.
add_custom_target(packed)
add_dependencies(packed ${commands} check_tables replay_sdk)
if(METAGEN_MANUAL)
    add_dependencies(packed manual)
endif()
