#pragma once

class IniFile;

/// What the screens and the tool speak. Papers, exports, settings and the data file are Chinese in
/// either language.
enum class Language { kChinese, kEnglish };

/// What the settings file's key Language in section Till says: "en" is English, in capitals too;
/// anything else, or nothing, is Chinese.
Language chosenLanguage(const IniFile& settings);

/// From here on all texts come in that language, those of windows where there is an application.
/// Called before the first text is made; calling it again changes texts made later.
void speak(Language language);
