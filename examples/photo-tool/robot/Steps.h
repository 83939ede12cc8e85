// What a user of Photo Tool can do, by name: choose menu entries, press buttons, fill in the
// maker's page, take pictures.

#ifndef PHOTO_TOOL_STEPS_H
#define PHOTO_TOOL_STEPS_H

#include <functional>

#include <QStringList>

using Deed = std::function<void()>;

bool isStep(const QString& text);

/// What the step comes to now; empty while it cannot be done. Asking changes nothing.
Deed deedOf(const QString& step);

/// All of them, for a help text.
QStringList stepNames();

#endif
