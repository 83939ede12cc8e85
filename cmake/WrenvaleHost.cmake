# wrenvale_host(<target> INFO_PLIST <file>)
#
# Makes an executable a host of Wrenvale: links the library, embeds <file> (a property list) as the
# host's Info dictionary, and makes sure that the library is loaded even when the host calls nothing
# of it and the linker drops libraries that nothing needs.
function(wrenvale_host target)
  cmake_parse_arguments(arg "" "INFO_PLIST" "" ${ARGN})
  if(NOT arg_INFO_PLIST OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "usage: wrenvale_host(<target> INFO_PLIST <file>)")
  endif()
  get_filename_component(plist "${arg_INFO_PLIST}" ABSOLUTE)
  if(NOT EXISTS "${plist}")
    message(FATAL_ERROR "wrenvale_host(${target}): no such Info dictionary: ${plist}")
  endif()
  string(MAKE_C_IDENTIFIER "wrenvale_${target}_info_plist" symbol)
  wrenvale_embed("${plist}" ${symbol} embedded)
  set(registration "${CMAKE_CURRENT_BINARY_DIR}/wrenvale_${target}_host.cpp")
  file(CONFIGURE OUTPUT "${registration}" @ONLY CONTENT [[
// How the library finds the host's Info dictionary, and why the linker keeps the library.
#include <wrenvale/HostInfo.h>

extern "C" {
extern const unsigned char @symbol@[];
extern const unsigned long @symbol@_size;
}

WRENVALE_HOST_INFO(@symbol@, @symbol@_size)
]])
  target_sources(${target} PRIVATE "${embedded}" "${registration}")
  target_link_libraries(${target} PRIVATE Wrenvale::Wrenvale)
endfunction()
