// Where the recommender window goes when its page asks for another size.

#ifndef WRENVALE_WELCOME_WINDOWSIZING_H
#define WRENVALE_WELCOME_WINDOWSIZING_H

#include "platform/RecommenderWindow.h"

namespace wrenvale::welcome {

/// A frame of this size with the centre of `current`. The left edge is rounded to a whole point,
/// halves away from zero; the top edge may fall between two. Nothing is checked or bounded.
platform::Frame resizedAroundCentre(const platform::Frame& current, double width, double height);

} // namespace wrenvale::welcome

#endif
