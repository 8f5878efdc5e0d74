#include "platform/tessel/Directory.h"

#include <filesystem>
#include <system_error>

namespace Tessel::FileSystem {

bool Directory::exists(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

bool Directory::create(const std::string& path)
{
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return exists(path); // its own result distinguishes "made" from "was there", not from "failed"
}

} // namespace Tessel::FileSystem
