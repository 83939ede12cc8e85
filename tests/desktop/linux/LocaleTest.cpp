#include "desktop/linux/system/EnvironmentLocale.h"

#include <map>

#include <gmock/gmock.h>

namespace wrenvale::platform {
namespace {

using Text = std::optional<std::string>;
using Variables = std::map<std::string, std::string>;

Environment environmentOf(const Variables& variables) {
  return [&variables](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second.c_str();
  };
}

struct Row {
  Variables variables;
  Text country;
  std::vector<std::string> languages;
};

const Row kRows[] = {
    {{}, {}, {}},
    {{{"LANG", "de_DE.UTF-8@euro"}}, "DE", {"de"}},
    {{{"LANG", "fr"}}, {}, {"fr"}},
    {{{"LANG", "zh_Hant_TW"}}, "TW", {"zh"}},
    {{{"LANG", "es_419"}}, "419", {"es"}},
    {{{"LANG", "ca_ES_valencia"}}, "ES", {"ca"}},
    {{{"LANG", "C.UTF-8"}}, {}, {}},
    {{{"LANG", "POSIX"}}, {}, {}},

    // The first that is not empty decides, even when it says nothing.
    {{{"LC_ALL", "it_CH"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "CH", {"it"}},
    {{{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "FR", {"fr"}},
    {{{"LC_ALL", "../x"}, {"LANG", "de_DE"}}, {}, {}},

    {{{"LANG", "fr_CH.UTF-8"}, {"LANGUAGE", "fr_CH:de_DE.UTF-8@euro:en"}},
     "CH",
     {"fr-CH", "de-DE", "en"}},
    {{{"LANG", "nl_BE"}, {"LANGUAGE", "::"}}, "BE", {"nl"}},
    {{{"LANGUAGE", ":en_GB::en:en_GB:zh_Hant_TW"}}, {}, {"en-GB", "en", "zh-Hant-TW"}},

    // What would not be safe in an address, or is no name of a language.
    {{{"LANGUAGE", "../../x:de/DE:de DE:de?x=1:de%2F:d\xc3\xa9:en"}}, {}, {"en"}},
    {{{"LANGUAGE", "_DE:de_:de__DE:C:POSIX:12:abcdefghi:de_abcdefghi:.UTF-8:@x:sv"}}, {}, {"sv"}},
    {{{"LANG", "de_D/E"}, {"LANGUAGE", "/"}}, {}, {}},
};

TEST(Locale, IsReadFromTheEnvironment) {
  for (const auto& row : kRows) {
    const EnvironmentLocale locale(environmentOf(row.variables));
    const auto what = testing::PrintToString(row.variables);
    EXPECT_EQ(locale.countryCode(), row.country) << what;
    EXPECT_EQ(locale.preferredLanguages(), row.languages) << what;
  }
}

} // namespace
} // namespace wrenvale::platform
