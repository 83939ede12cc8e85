# What is installed: the library with its modules, and what it takes to build a host.

include(CMakePackageConfigHelpers)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Wrenvale")
set(translations_dir "${CMAKE_INSTALL_DATADIR}/wrenvale/translations")
configure_package_config_file(cmake/WrenvaleConfig.cmake.in
  "${PROJECT_BINARY_DIR}/WrenvaleConfig.cmake" INSTALL_DESTINATION "${package_dir}"
  PATH_VARS translations_dir)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/WrenvaleConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" OUTPUT_VARIABLE pc_to_prefix)
configure_file(cmake/wrenvale.pc.in "${PROJECT_BINARY_DIR}/wrenvale.pc" @ONLY)

install(TARGETS Wrenvale EXPORT WrenvaleTargets
  LIBRARY NAMELINK_COMPONENT Development)
install(TARGETS wrenvale_net wrenvale_webview LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/wrenvale")
install(DIRECTORY include/wrenvale DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Development)
install(EXPORT WrenvaleTargets NAMESPACE Wrenvale:: DESTINATION "${package_dir}"
  COMPONENT Development)
install(FILES "${PROJECT_BINARY_DIR}/wrenvale.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)
# The font is part of the library.
install(FILES resources/DroidSans-LICENSE.txt
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/libwrenvale${PROJECT_VERSION_MAJOR}")
install(FILES
  "${PROJECT_BINARY_DIR}/WrenvaleConfig.cmake"
  "${PROJECT_BINARY_DIR}/WrenvaleConfigVersion.cmake"
  cmake/WrenvaleEmbed.cmake
  cmake/WrenvaleHost.cmake
  DESTINATION "${package_dir}" COMPONENT Development)
install(DIRECTORY "${WRENVALE_TRANSLATIONS_DIR}/" DESTINATION "${translations_dir}"
  COMPONENT Development
  FILES_MATCHING PATTERN "*.ts")
