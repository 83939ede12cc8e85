// Which e-mail addresses the newsletter takes.

#ifndef WRENVALE_WELCOME_EMAILADDRESS_H
#define WRENVALE_WELCOME_EMAILADDRESS_H

#include <string_view>

namespace wrenvale::welcome {

/// Whether the whole text matches [A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4}. A last label of
/// more than four letters is refused on purpose. Takes time in proportion to the text, of whatever
/// length, and no memory.
bool isEmailAddress(std::string_view text);

} // namespace wrenvale::welcome

#endif
