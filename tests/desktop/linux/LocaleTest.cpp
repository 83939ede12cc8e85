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
  Text language;
  std::vector<std::string> languages;
};

const Row kRows[] = {
    {{}, {}, {}, {}},
    {{{"LANG", "de_DE.UTF-8"}}, "DE", "de", {"de"}},
    {{{"LANG", "de_DE.UTF-8@euro"}}, "DE", "de", {"de"}},
    {{{"LANG", "sr_RS@latin"}}, "RS", "sr", {"sr"}},
    {{{"LANG", "fr"}}, {}, "fr", {"fr"}},
    {{{"LANG", "eo.UTF-8"}}, {}, "eo", {"eo"}},
    {{{"LANG", "zh_Hant_TW"}}, "TW", "zh", {"zh"}},
    {{{"LANG", "es_419"}}, "419", "es", {"es"}},
    {{{"LANG", "ca_ES_valencia"}}, "ES", "ca", {"ca"}},

    {{{"LANG", "C"}}, {}, {}, {}},
    {{{"LANG", "C.UTF-8"}}, {}, {}, {}},
    {{{"LANG", "POSIX"}}, {}, {}, {}},

    // The first that is not empty decides, even when it says nothing.
    {{{"LC_ALL", "it_CH"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "CH", "it", {"it"}},
    {{{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, "FR", "fr", {"fr"}},
    {{{"LC_ALL", "C"}, {"LANG", "de_DE"}}, {}, {}, {}},
    {{{"LC_ALL", "../x"}, {"LANG", "de_DE"}}, {}, {}, {}},
    {{{"LC_CTYPE", "it_IT"}, {"LANG", "de_DE"}}, "DE", "de", {"de"}},

    {{{"LANG", "fr_CH.UTF-8"}, {"LANGUAGE", "fr_CH:de_DE.UTF-8@euro:en"}},
     "CH",
     "fr",
     {"fr-CH", "de-DE", "en"}},
    {{{"LANGUAGE", "pt_BR:pt"}}, {}, {}, {"pt-BR", "pt"}},
    {{{"LANG", "nl_BE"}, {"LANGUAGE", ""}}, "BE", "nl", {"nl"}},
    {{{"LANG", "nl_BE"}, {"LANGUAGE", "::"}}, "BE", "nl", {"nl"}},
    {{{"LANGUAGE", ":en_GB::en:en_GB:"}}, {}, {}, {"en-GB", "en"}},
    {{{"LANGUAGE", "zh_Hant_TW:zh-Hans"}}, {}, {}, {"zh-Hant-TW", "zh-Hans"}},

    // What would not be safe in an address, or is no name of a language.
    {{{"LANGUAGE", "../../x:de/DE:de DE:de?x=1:de%2F:d\xc3\xa9:en"}}, {}, {}, {"en"}},
    {{{"LANGUAGE", "_DE:de_:de__DE:C:POSIX:12:abcdefghi:de_abcdefghi:.UTF-8:@x:sv"}},
     {},
     {},
     {"sv"}},
    {{{"LANG", "de_D/E"}, {"LANGUAGE", "/"}}, {}, {}, {}},
};

TEST(Locale, IsReadFromTheEnvironment) {
  for (const auto& row : kRows) {
    const EnvironmentLocale locale(environmentOf(row.variables));
    const auto what = testing::PrintToString(row.variables);
    EXPECT_EQ(locale.countryCode(), row.country) << what;
    EXPECT_EQ(locale.languageCode(), row.language) << what;
    EXPECT_EQ(locale.preferredLanguages(), row.languages) << what;
  }
}

} // namespace
} // namespace wrenvale::platform
