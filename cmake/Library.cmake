# The shared library: the logic, the system parts and the Qt parts, with what a maker configured.

configure_file(core/BuildConfiguration.cpp.in "${PROJECT_BINARY_DIR}/BuildConfiguration.cpp" @ONLY)
wrenvale_embed("${WRENVALE_PUBLIC_KEY_FILE}" wrenvale_public_key public_key_source)
wrenvale_embed("${PROJECT_SOURCE_DIR}/resources/DroidSans-Regular.ttf" wrenvale_droid_sans
  font_source)

# The library under another target's name and with other embedded files: tests and benchmarks put
# such a variant in the library's place.
function(wrenvale_library target font_source public_key_source)
  add_library(${target} SHARED
    "${PROJECT_SOURCE_DIR}/core/SharedInstance.cpp"
    "${PROJECT_BINARY_DIR}/BuildConfiguration.cpp"
    "${font_source}"
    "${public_key_source}")
  target_link_libraries(${target} PRIVATE wrenvale_flags wrenvale_logic wrenvale_linux wrenvale_qt)
  target_link_options(${target} PRIVATE -Wl,--as-needed -Wl,-Bsymbolic-functions)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME wrenvale
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

wrenvale_library(Wrenvale "${font_source}" "${public_key_source}")
add_library(Wrenvale::Wrenvale ALIAS Wrenvale)
target_compile_features(Wrenvale PUBLIC cxx_std_20)
target_include_directories(Wrenvale INTERFACE
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>"
  "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
# The modules are loaded at run time, so nothing else makes the build tree's library complete.
add_dependencies(Wrenvale wrenvale_net wrenvale_webview)

include(CMakePackageConfigHelpers)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Wrenvale")
set(translations_dir "${CMAKE_INSTALL_DATADIR}/wrenvale/translations")
configure_package_config_file(cmake/WrenvaleConfig.cmake.in
  "${PROJECT_BINARY_DIR}/WrenvaleConfig.cmake" INSTALL_DESTINATION "${package_dir}"
  PATH_VARS translations_dir)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/WrenvaleConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(TARGETS Wrenvale EXPORT WrenvaleTargets)
install(TARGETS wrenvale_net wrenvale_webview LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/wrenvale")
install(DIRECTORY include/wrenvale DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(EXPORT WrenvaleTargets NAMESPACE Wrenvale:: DESTINATION "${package_dir}")
install(FILES
  "${PROJECT_BINARY_DIR}/WrenvaleConfig.cmake"
  "${PROJECT_BINARY_DIR}/WrenvaleConfigVersion.cmake"
  cmake/WrenvaleEmbed.cmake
  cmake/WrenvaleHost.cmake
  DESTINATION "${package_dir}")
