#pragma once

#include <QString>

namespace VELIX::Demo {

/// Makes a folder the home of a user of the demo card, with profile, selection and settings.
///
/// resources: folder of the profile and the project that go with the card. card: folder that the
/// program opens first. locale: language of the program, "us" or "de". Replaces what is there;
/// false if a file cannot be written.
[[nodiscard]] bool writeDemoHome(const QString& home, const QString& resources, const QString& card,
                                 const QString& locale);

} // namespace VELIX::Demo
