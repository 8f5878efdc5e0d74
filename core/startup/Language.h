#pragma once

#include <QTranslator>

#include <string>

namespace VELIX {

/// The language of the program's windows, in force as long as this object lives.
class Language
{
public:
    /// Takes texts and the way to write numbers from a locale code: "de" is German, all others are
    /// English. Needs the application object and the built-in resources.
    explicit Language(const std::string& locale);

private:
    static void install(QTranslator& translator, const char* label, const char* prefix,
                        const std::string& locale);

    QTranslator mToolkitTexts;
    QTranslator mTexts;
};

} // namespace VELIX
