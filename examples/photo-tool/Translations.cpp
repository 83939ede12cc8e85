#include "Translations.h"

#include <QLocale>
#include <QTranslator>

void useTranslations(QApplication& application) {
  for (const char* name : {"wrenvale", "photo-tool"}) {
    auto* translator = new QTranslator(&application);
    if (!translator->load(QLocale(), name, "_", ":/translations")) continue;
    QApplication::installTranslator(translator);
    QApplication::setLayoutDirection(QLocale(translator->language()).textDirection());
  }
}
