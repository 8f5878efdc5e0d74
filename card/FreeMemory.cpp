#include "card/FreeMemory.h"

#include <fstream>
#include <string>

namespace VELIX {

std::uint64_t freeMemory()
{
    std::ifstream info("/proc/meminfo");
    std::string key;
    while (info >> key) {
        if (key == "MemAvailable:") {
            std::uint64_t kibibytes = 0;
            info >> kibibytes;
            return kibibytes * 1024;
        }
        std::getline(info, key);
    }
    return 0;
}

} // namespace VELIX
