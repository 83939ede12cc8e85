// The translations that are shipped say all that the code looks up, and nothing else.

#include <map>
#include <set>

#include <gmock/gmock.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace wrenvale {
namespace {

using Texts = std::set<std::string>;

const QDir kProject(PROJECT_SOURCE_DIR);
constexpr const char* kTranslations = "resources/translations";

QByteArray contents(const QString& file) {
  QFile opened(file);
  EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString();
  return opened.readAll();
}

QStringList filesIn(const char* folder, const QStringList& patterns) {
  QStringList files;
  for (QDirIterator found(kProject.filePath(folder), patterns, QDir::Files,
                          QDirIterator::Subdirectories);
       found.hasNext();)
    files += found.next();
  return files;
}

// The literals that stand where a text is looked up or put into a table of such texts. One that
// ends in a blank goes before the name of the maker's site.
void addLookedUpIn(const QString& source, Texts& texts) {
  static const QRegularExpression place(
      R"re((?:localized(?:Text|Title)|translated|QT_TRANSLATE_NOOP)\([^;"]*(("[^"]*"[^;"]*)+);|\.english = ("[^"]*"))re");
  static const QRegularExpression literal("\"([^\"]*)\"");
  auto places = place.globalMatch(contents(source));
  while (places.hasNext()) {
    auto literals = literal.globalMatch(places.next().captured());
    while (literals.hasNext()) {
      const QString text = literals.next().captured(1);
      texts.insert(
          (text.endsWith(' ') ? text + "@WRENVALE_VENDOR_SITE_NAME@" : text).toStdString());
    }
  }
}

// The texts of elements of this name, unless they are not to be translated.
void addElementsOf(const QString& file, QStringView name, Texts& texts) {
  QXmlStreamReader reader(contents(file));
  while (!reader.atEnd())
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name &&
        reader.attributes().value("notr") != u"true")
      texts.insert(reader.readElementText().toStdString());
  EXPECT_FALSE(reader.hasError()) << file.toStdString();
}

Texts lookedUp() {
  Texts texts = {"CFBundleName"};
  for (const char* folder :
       {"core", "menu", "rating", "recommend", "welcome", "desktop/qt", "desktop/webview"})
    for (const auto& file : filesIn(folder, {"*.cpp"}))
      addLookedUpIn(file, texts);
  for (const auto& file : filesIn("resources", {"*.ui"}))
    addElementsOf(file, u"string", texts);
  // What goes between the literals of a look-up, and the context's name.
  for (const char* other : {" ", "!", "Wrenvale", "(null)", "?", ""})
    texts.erase(other);
  return texts;
}

// The host's name, which each file leaves to the host.
constexpr const char* kInfoContext = "InfoPlist";

struct Message {
  QString context;
  std::string source;
  QString translation;
  bool finished = true;
};

std::vector<Message> messagesIn(const QString& file) {
  std::vector<Message> messages;
  QString context;
  QXmlStreamReader reader(contents(file));
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"name") context = reader.readElementText();
    if (reader.name() == u"source")
      messages.push_back({context, reader.readElementText().toStdString(), {}});
    if (reader.name() != u"translation") continue;
    messages.back().finished = !reader.attributes().hasAttribute("type");
    messages.back().translation = reader.readElementText();
  }
  EXPECT_FALSE(reader.hasError()) << file.toStdString();
  return messages;
}

Texts sourcesOf(const std::vector<Message>& messages) {
  Texts sources;
  for (const auto& message : messages) {
    const bool isHosts = message.context == kInfoContext && message.source == "CFBundleName";
    EXPECT_TRUE(isHosts || message.context == "Wrenvale") << message.source;
    EXPECT_TRUE(sources.insert(message.source).second) << "twice: " << message.source;
  }
  return sources;
}

QStringList placeholdersIn(const QString& text) {
  static const QRegularExpression placeholder("%[0-9]|@[A-Z_]+@|#app_name");
  QStringList found;
  auto matches = placeholder.globalMatch(text);
  while (matches.hasNext())
    found += matches.next().captured();
  return found;
}

TEST(Translations, EveryTextIsThereAndNoneIsStale) {
  const auto texts = lookedUp();
  for (const auto& file : filesIn(kTranslations, {"*.ts"}))
    EXPECT_THAT(sourcesOf(messagesIn(file)), testing::ContainerEq(texts)) << file.toStdString();
}

TEST(Translations, EveryTranslationIsWhole) {
  const auto files = filesIn(kTranslations, {"wrenvale_*.ts"});
  EXPECT_EQ(files.size(), 4);
  for (const auto& file : files)
    for (const auto& [context, source, translation, finished] : messagesIn(file)) {
      SCOPED_TRACE(file.toStdString() + ": " + source);
      EXPECT_EQ(finished, context != kInfoContext);
      if (!finished) continue;
      EXPECT_FALSE(translation.trimmed().isEmpty());
      EXPECT_EQ(placeholdersIn(translation), placeholdersIn(QString::fromStdString(source)));
    }
}

} // namespace
} // namespace wrenvale
