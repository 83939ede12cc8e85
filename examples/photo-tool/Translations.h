// Photo Tool in the user's language.

#ifndef PHOTO_TOOL_TRANSLATIONS_H
#define PHOTO_TOOL_TRANSLATIONS_H

#include <QApplication>

/// Installs Photo Tool's translations and Wrenvale's for the user's language, where there are any,
/// and lays windows out in the direction in which that language is read.
void useTranslations(QApplication& application);

#endif
