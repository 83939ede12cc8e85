// The translations that are shipped say all that the code looks up, and nothing else.

#include <set>

#include <gmock/gmock.h>

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace wrenvale {
namespace {

// Every text as XML writes it.
using Texts = std::set<std::string>;

constexpr const char* kTranslations = "resources/translations";

// Where the expression matches: the whole, and what each of its groups captured.
std::vector<QStringList> matchesIn(const QString& text, const char* expression) {
  std::vector<QStringList> found;
  for (auto matches = QRegularExpression(expression).globalMatch(text); matches.hasNext();)
    found.push_back(matches.next().capturedTexts());
  return found;
}

QString contents(const QString& file) {
  QFile opened(file);
  EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString();
  return opened.readAll();
}

QStringList filesIn(const char* folder, const char* pattern) {
  QStringList files;
  for (QDirIterator found(QDir(PROJECT_SOURCE_DIR).filePath(folder), {pattern}, QDir::Files,
                          QDirIterator::Subdirectories);
       found.hasNext();)
    files += found.next();
  return files;
}

// The literals that stand where a text is looked up or put into a table of such texts. One that
// ends in a blank goes before the name of the maker's site.
void addLookedUpIn(const QString& source, Texts& texts) {
  for (
      const auto& place : matchesIn(
          source,
          R"re((?:localized(?:Text|Title)|translated|QT_TRANSLATE_NOOP)\([^;"]*(("[^"]*"[^;"]*)+);|\.english = ("[^"]*"))re"))
    for (const auto& literal : matchesIn(place[0], "\"([^\"]*)\"")) {
      const auto text = literal[1].toHtmlEscaped().replace('\'', "&apos;");
      texts.insert(
          (text.endsWith(' ') ? text + "@WRENVALE_VENDOR_SITE_NAME@" : text).toStdString());
    }
}

Texts lookedUp() {
  Texts texts = {"CFBundleName"};
  for (const char* folder :
       {"core", "menu", "rating", "recommend", "welcome", "desktop/qt", "desktop/webview"})
    for (const auto& file : filesIn(folder, "*.cpp"))
      addLookedUpIn(contents(file), texts);
  for (const auto& file : filesIn("resources", "*.ui"))
    for (const auto& element : matchesIn(contents(file), "<string>([^<]*)<"))
      texts.insert(element[1].toStdString());
  // What goes between the literals of a look-up, and the context's name.
  for (const char* other : {" ", "!", "Wrenvale", "(null)", "?", ""})
    texts.erase(other);
  return texts;
}

// The host's name, which each file leaves to the host.
constexpr const char* kInfoContext = "InfoPlist";

struct Message {
  QString context;
  QString source;
  QString translation;
  bool finished = true;
};

std::vector<Message> messagesIn(const QString& file) {
  std::vector<Message> messages;
  QString context;
  for (const auto& element :
       matchesIn(contents(file), "<(name|source|translation)([^>]*)>([^<]*)<")) {
    if (element[1] == "name") context = element[3];
    if (element[1] == "source") messages.push_back({context, element[3], {}});
    if (element[1] != "translation") continue;
    messages.back().finished = element[2].isEmpty();
    messages.back().translation = element[3];
  }
  return messages;
}

Texts sourcesOf(const std::vector<Message>& messages) {
  Texts sources;
  for (const auto& [context, source, translation, finished] : messages) {
    const auto text = source.toStdString();
    EXPECT_EQ(context, source == "CFBundleName" ? kInfoContext : "Wrenvale") << text;
    EXPECT_TRUE(sources.insert(text).second) << "twice: " << text;
  }
  return sources;
}

std::vector<QStringList> placeholdersIn(const QString& text) {
  return matchesIn(text, "%[0-9]|@[A-Z_]+@|#app_name");
}

TEST(Translations, EveryTextIsThereAndNoneIsStale) {
  const auto texts = lookedUp();
  for (const auto& file : filesIn(kTranslations, "*.ts"))
    EXPECT_THAT(sourcesOf(messagesIn(file)), testing::ContainerEq(texts)) << file.toStdString();
}

TEST(Translations, EveryTranslationIsWhole) {
  const auto files = filesIn(kTranslations, "wrenvale_*.ts");
  EXPECT_EQ(files.size(), 4);
  for (const auto& file : files)
    for (const auto& [context, source, translation, finished] : messagesIn(file)) {
      SCOPED_TRACE(file.toStdString() + ": " + source.toStdString());
      EXPECT_EQ(finished, context != kInfoContext);
      if (!finished) continue;
      EXPECT_FALSE(translation.trimmed().isEmpty());
      EXPECT_EQ(placeholdersIn(translation), placeholdersIn(source));
    }
}

} // namespace
} // namespace wrenvale
