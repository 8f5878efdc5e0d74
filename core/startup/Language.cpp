#include "core/startup/Language.h"

#include "core/Diagnostics.h"

#include <QCoreApplication>
#include <QLocale>

namespace VELIX {

Language::Language(const std::string& locale)
{
    // Not as the desktop does it, whose language may be another.
    QLocale::setDefault(locale == "de" ? QLocale(QLocale::German, QLocale::Germany)
                                       : QLocale(QLocale::English, QLocale::UnitedStates));
    install(mToolkitTexts, "QT", "qt_", locale);
    install(mTexts, "IOS", "velix_", locale);
}

void Language::install(QTranslator& translator, const char* label, const char* prefix,
                       const std::string& locale)
{
    const bool loaded = translator.load(QLatin1String(prefix) + QString::fromStdString(locale),
                                        QStringLiteral(":/trl"));
    Diagnostics::print("Translation %s <%s> %d\n", label, locale.c_str(), loaded ? 1 : 0);
    if (loaded) {
        QCoreApplication::installTranslator(&translator);
    }
}

} // namespace VELIX
