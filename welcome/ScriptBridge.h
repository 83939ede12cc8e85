// What the maker's page may call, and under which names.
//
// The page knows the controller as the global object "Recommender". It reaches exactly the
// controller's operations whose native name begins with "javascript_":
//
//   Recommender.ready()                 scripts are ready for setRecommendations(text), which the
//                                       page defines and which is called once, later
//   Recommender.log(value)              nothing
//   Recommender.beep()
//   Recommender.showWindow()            shows the window, which is hidden until then
//   Recommender["setWidth:height"](w,h) gives the window's content this size, in points
//   Recommender.subscribe(address)      subscribes to the newsletter; false for what is no address
//   Recommender.updating()              whether the host was updated rather than installed
//   Recommender.appName()
//   Recommender.openAppstoreForApp()    the host's page in the application store
//   Recommender.bundleVersion()         the host's build as text, such as "120"
//   Recommender.bundleID()
//   Recommender.countryCode()           such as "US"; "EN" when there is none
//   Recommender.languageCode()          such as "EN-US"; "EN" when there is none
//   Recommender.checkSelector(name)     whether there is an operation of this native name, such as
//                                       "javascript_subscribe:"
//
// A native name has a colon for each argument. The page's name is the native one without the prefix
// and without the last colon; one inside it stays, so that an operation of two arguments has to be
// reached by indexing. Pages are written against these names, asymmetry and all.

#ifndef WRENVALE_WELCOME_SCRIPTBRIDGE_H
#define WRENVALE_WELCOME_SCRIPTBRIDGE_H

#include <optional>
#include <string_view>
#include <vector>

#include "base/Value.h"
#include "platform/RecommenderWindow.h"

namespace wrenvale {

class KVXRecommenderWindowController;

namespace welcome {

inline constexpr std::string_view kScriptObject = "Recommender";

/// The page's name for a native one; nothing for a name that does not begin with the prefix. Part
/// of `selector`.
std::optional<std::string_view> webScriptNameForSelector(std::string_view selector);

/// True for every name that does not begin with the prefix.
bool isSelectorExcludedFromWebScript(std::string_view selector);

/// Every operation, as it is published to the page.
std::vector<platform::ScriptMethod> scriptMethods();

/// Whether there is an operation of this native name.
bool hasScriptOperation(std::string_view selector);

/// Performs the operation with this page's name. Missing arguments count as null, further ones are
/// dropped, and values of another type than hoped for are read as base/Value.h says. Nothing when
/// there is no such operation.
std::optional<Value> performScriptOperation(KVXRecommenderWindowController& controller,
                                            std::string_view name,
                                            const std::vector<Value>& arguments);

} // namespace welcome

} // namespace wrenvale

#endif
