#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// Texts that programs are not fond of.
QStringList monkeyTexts();
/// What makes sense in that window, none or several: "\n" is Enter, "\t" Tab, "v" Down, "#" a low
/// number, "*" one of the words.
std::vector<const char*> monkeyPhrases(const QString& window);
