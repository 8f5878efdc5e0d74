#include "gui/profile/ProfileSettings.h"

#include "core/DataHandler.h"
#include "core/Property.h"

#include <QFileInfo>

namespace VELIX {

namespace {

constexpr const char* kProfile = "Profile";
constexpr const char* kProfileFile = "ProfileFile";

} // namespace

ProfileSettings::ProfileSettings(Property& settings, const DataHandler& paths)
    : mSettings(settings), mPaths(paths)
{}

QString ProfileSettings::chosenFile() const
{
    return QString::fromStdString(mSettings.getString(kProfileFile, {}));
}

QString ProfileSettings::installedFile() const
{
    return QString::fromStdString(mPaths.profilePath()) + QStringLiteral("/Profile.xml");
}

QString ProfileSettings::profileFile() const
{
    const QFileInfo chosen(chosenFile());
    return chosen.isFile() && chosen.isReadable() ? chosen.filePath() : installedFile();
}

bool ProfileSettings::namesChosenFile(const QString& text) const
{
    // The stored path is relative to the folder that the program was started in then, which may be
    // another one now: the file's name is what both have in common.
    return !chosenFile().isEmpty() &&
           QFileInfo(text).fileName() == QFileInfo(chosenFile()).fileName();
}

QString ProfileSettings::variant() const
{
    const QString text = QString::fromStdString(mSettings.getString(kProfile, {}));
    return namesChosenFile(text) ? QString() : text;
}

void ProfileSettings::storeVariant(const QString& variant)
{
    mSettings.setString(kProfile, variant.toStdString());
}

void ProfileSettings::chooseFile(const QString& path)
{
    const QString absolute = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    mSettings.setString(kProfile, path.toStdString());
    mSettings.setString(kProfileFile, absolute.toStdString());
}

void ProfileSettings::forgetChosenFile()
{
    if (namesChosenFile(QString::fromStdString(mSettings.getString(kProfile, {})))) {
        mSettings.setString(kProfile, {});
    }
    mSettings.setString(kProfileFile, {});
}

} // namespace VELIX
