// Which navigations of the maker's page stay in its window.

#ifndef WRENVALE_WELCOME_NAVIGATIONPOLICY_H
#define WRENVALE_WELCOME_NAVIGATIONPOLICY_H

#include "platform/RecommenderWindow.h"

namespace wrenvale::welcome {

/// What the page loads by itself is used, and so is anything in a blank page. A clicked link gets
/// no answer: it is for the user's browser. Forms, history and reloads are ignored.
platform::PolicyDecision decidePolicy(const platform::NavigationAction& action);

} // namespace wrenvale::welcome

#endif
