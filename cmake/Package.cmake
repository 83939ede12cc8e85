# Debian packages: `cpack -G DEB` in a build whose prefix is /usr (preset "package").
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wrenvale)
set(CPACK_PACKAGE_VENDOR "Brenmoor")
set(CPACK_PACKAGE_CONTACT "Brenmoor <packages@${WRENVALE_VENDOR_SITE_NAME}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${WRENVALE_VENDOR_SITE_NAME}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(WRENVALE_BUILD_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL Tools)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libwrenvale${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# So that packages of hosts come to depend on this one.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "After-sale services for the applications of one maker
What applications that were built with Wrenvale need to run: ratings,
recommendations, a welcome window, newsletter subscriptions, a Help menu.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libwrenvale-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "libwrenvale${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}-1), qt6-base-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Development files of Wrenvale
Headers, CMake package, pkg-config file and translations for applications
that use Wrenvale.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME wrenvale-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "Command-line kit for a maker who uses Wrenvale
Checks, previews and serves what the maker's web server tells the
applications.")
include(CPack)
