# wrenvale_embed(<file> <symbol> <output variable>)
#
# Writes a C++ source that holds the bytes of <file> as constant data and sets the output variable
# to its path. The source defines, with C linkage,
#   const unsigned char <symbol>[];   const unsigned long <symbol>_size;
# A change of <file> is noticed by the next build.
function(wrenvale_embed file symbol output)
  get_filename_component(file "${file}" ABSOLUTE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  file(READ "${file}" hex HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
  string(REGEX REPLACE "(................................................................................)"
         "\\1\n" bytes "${bytes}")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${symbol}.cpp")
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT [[
extern "C" {
extern const unsigned char @symbol@[];
extern const unsigned long @symbol@_size;
// A final zero keeps an empty file from being an empty array; it is not counted.
const unsigned char @symbol@[] = {
@bytes@ 0};
const unsigned long @symbol@_size = sizeof(@symbol@) - 1;
}
]])
  set(${output} "${source}" PARENT_SCOPE)
endfunction()
