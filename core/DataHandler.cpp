#include "core/DataHandler.h"

#include "core/Diagnostics.h"
#include "platform/tessel/Directory.h"

#include <QCoreApplication>

#include <cstdlib>

using VELIX::Diagnostics;

namespace {

void provideFolder(const char* name, const std::string& path)
{
    if (Tessel::FileSystem::Directory::exists(path)) {
        return;
    }
    if (Tessel::FileSystem::Directory::create(path)) {
        Diagnostics::print("%s created <%s>\n", name, path.c_str());
    } else {
        Diagnostics::print("could not create %s <%s>\n", name, path.c_str());
    }
}

} // namespace

DataHandler& DataHandler::instance()
{
    static DataHandler handler = [] {
        DataHandler fromEnvironment;
        fromEnvironment.init();
        return fromEnvironment;
    }();
    return handler;
}

void DataHandler::init()
{
    init(std::getenv("HOME"), QCoreApplication::applicationDirPath().toStdString());
}

void DataHandler::init(const char* home, const std::string& applicationDirectory)
{
    *this = DataHandler();
    mResourcePath = applicationDirectory + "/../resources/";
    if (home == nullptr) {
        return;
    }
    Diagnostics::print("HOME: <%s>\n", home);
    mDataPath = std::string(home) + "/VELIX/data/";
    mUserDataPath = mDataPath;
    mProfilePath = mDataPath;

    provideFolder("DataPath", mDataPath);
    provideFolder("UserDataPath", mUserDataPath);

    Diagnostics::print("Data Path      : <%s>\n", mDataPath.c_str());
    Diagnostics::print("User Data Path : <%s>\n", mUserDataPath.c_str());
    Diagnostics::print("Resource Path  : <%s>\n", mResourcePath.c_str());
    Diagnostics::print("Profile Path  : <%s>\n", mProfilePath.c_str());
}
