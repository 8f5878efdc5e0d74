#pragma once

#include <QString>

class DataHandler;

namespace VELIX {

class ApplicationControl;
class CardContainer;
class Profile;
class Project;
class Property;

/// The models and services that the main window and its dialogs work on.
///
/// Start-up fills it with the program's singletons, tests with objects of their own.
struct AppContext
{
    Profile& profile;
    CardContainer& card;
    Property& settings;
    Project& project;
    const DataHandler& paths;
    ApplicationControl& control;
    QString styleFile;    ///< given with "-s", re-read while the program runs; else empty
    bool emuOnly = false; ///< "-emu": only the data window is shown

    /// The style file given, else the built-in one.
    QString styleInForce() const
    {
        return styleFile.isEmpty() ? QStringLiteral(":/styles/style.VELIX.css") : styleFile;
    }
};

} // namespace VELIX
