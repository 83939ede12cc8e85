// The window's texts in a language that needs more room.

#ifndef WRENVALE_TESTS_PLATFORM_QT_GERMANTRANSLATOR_H
#define WRENVALE_TESTS_PLATFORM_QT_GERMANTRANSLATOR_H

#include <map>
#include <string_view>

#include <QTranslator>

namespace wrenvale::platform {

class GermanTranslator final : public QTranslator {
public:
  bool isEmpty() const override { return false; }

  QString translate(const char* context, const char* source, const char*, int) const override {
    static const std::map<std::string_view, const char*> texts{
        {"Rate %1", "%1 bewerten"},
        {"Are you happy with %1?",
         "Sind Sie mit %1 und seinen Bildbearbeitungsmöglichkeiten zufrieden?"},
        {"Your answer helps us to make it better.",
         "Ihre Antwort hilft uns dabei, die Anwendung bei der nächsten Aktualisierung für Sie und "
         "alle anderen Benutzerinnen und Benutzer noch weiter zu verbessern."},
        {"Not really", "Nein, ich bin leider nicht zufrieden"},
        {"Yes, I like it", "Ja, ich bin sehr zufrieden damit"},
        {"Great, thank you!", "Großartig, wir danken Ihnen herzlich!"},
        {"Rate in the Store", "Jetzt im Anwendungsverzeichnis bewerten"},
        {"Contact Support", "Mit der Kundenunterstützung Verbindung aufnehmen"},
        {"Happy face", "Fröhliches Gesicht"},
    };
    const auto found = texts.find(source);
    if (std::string_view(context) != "Wrenvale" || found == texts.end()) return {};
    return QString::fromUtf8(found->second);
  }
};

} // namespace wrenvale::platform

#endif
