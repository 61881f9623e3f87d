#pragma once

enum class Language;

/// Makes the toolkit's own texts speak that language whatever the system speaks: its dialogs, the
/// editing menus, the names of days and months. Once, when the program starts.
void loadToolkitTexts(Language language);
