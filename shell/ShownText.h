#pragma once

#include <QString>

/// A text made fit for a message window, whatever was typed into it: cut after a few lines, and
/// with places to break in runs that have none, so that the window and its button stay on the
/// screen.
QString shownText(const QString& text);
