# The shared library: the logic, the system parts and the Qt parts, with what a maker configured.

configure_file(core/BuildConfiguration.cpp.in "${PROJECT_BINARY_DIR}/BuildConfiguration.cpp" @ONLY)
wrenvale_embed("${WRENVALE_PUBLIC_KEY_FILE}" wrenvale_public_key public_key_source)

# Has the target offer the symbols that the version script names.
function(wrenvale_exports target script)
  target_link_options(${target} PRIVATE "-Wl,--version-script=${script}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# The library under another target's name and with another public key: a test puts such a variant in
# the library's place.
function(wrenvale_library target public_key_source)
  add_library(${target} SHARED
    "${PROJECT_SOURCE_DIR}/desktop/SharedInstance.cpp"
    "${PROJECT_BINARY_DIR}/BuildConfiguration.cpp"
    "${public_key_source}")
  target_link_libraries(${target} PRIVATE wrenvale_flags wrenvale_logic wrenvale_linux wrenvale_qt)
  # Its threads and exit handlers outlive a host that unloads it: it stays.
  target_link_options(${target} PRIVATE
    -Wl,--as-needed -Wl,--gc-sections -Wl,-Bsymbolic-functions -Wl,-z,nodelete)
  wrenvale_exports(${target} "${PROJECT_SOURCE_DIR}/cmake/Wrenvale.map")
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME wrenvale
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

wrenvale_library(Wrenvale "${public_key_source}")
add_library(Wrenvale::Wrenvale ALIAS Wrenvale)
target_compile_features(Wrenvale PUBLIC cxx_std_20)
target_include_directories(Wrenvale INTERFACE
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>"
  "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
# The modules are loaded at run time, so nothing else makes the build tree's library complete.
add_dependencies(Wrenvale wrenvale_net wrenvale_webview)
foreach(module wrenvale_net wrenvale_webview)
  wrenvale_exports(${module} "${PROJECT_SOURCE_DIR}/cmake/Module.map")
endforeach()
