#pragma once

#include <string>

/// Where the program keeps its files. All paths are UTF-8; folders end with a slash.
class DataHandler
{
public:
    /// Returns the one instance. The first call makes it from HOME and the folder of the executable
    /// and so needs the application object.
    static DataHandler& instance();

    /// Takes HOME from the environment and the folder of the executable from the application.
    void init();
    /// Makes missing folders and prints the paths. home: null if there is none; the data, user data
    /// and profile paths are then empty.
    void init(const char* home, const std::string& applicationDirectory);

    std::string dataPath() const { return mDataPath; }
    std::string userDataPath() const { return mUserDataPath; }
    std::string resourcePath() const { return mResourcePath; }
    std::string profilePath() const { return mProfilePath; }

private:
    std::string mDataPath;
    std::string mUserDataPath;
    std::string mResourcePath;
    std::string mProfilePath;
};
