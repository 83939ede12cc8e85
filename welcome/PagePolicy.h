// What becomes of the page's wishes: where it wants to go, and how large its window is to be.

#ifndef WRENVALE_WELCOME_PAGEPOLICY_H
#define WRENVALE_WELCOME_PAGEPOLICY_H

#include "platform/RecommenderWindow.h"

namespace wrenvale::welcome {

/// What the page loads by itself is used, and so is anything in a blank page. A clicked link gets
/// no answer: it is for the user's browser. Forms, history and reloads are ignored.
platform::PolicyDecision decidePolicy(const platform::NavigationAction& action);

/// A frame of this size with the centre of `current`. The left edge is rounded to a whole point,
/// halves away from zero; the top edge may fall between two. Nothing is checked or bounded.
platform::Frame resizedAroundCentre(const platform::Frame& current, double width, double height);

} // namespace wrenvale::welcome

#endif
