#pragma once

#include <string>

namespace Tessel::FileSystem {

/// Folders of the file system; paths are UTF-8, with or without a closing slash.
class Directory
{
public:
    /// False also for a file of that name and where the path may not be searched.
    static bool exists(const std::string& path);

    /// Makes the folder with all missing parents; true if it is there afterwards.
    [[nodiscard]] static bool create(const std::string& path);
};

} // namespace Tessel::FileSystem
