#include "card/RecordFieldReader.h"

#include <sys/stat.h>

namespace VELIX {

RecordFieldReader::RecordFieldReader(const char* path) : mFile(std::fopen(path, "rb")) {}

std::int64_t RecordFieldReader::size() const
{
    struct stat status = {};
    if (!isOpen() || ::fstat(::fileno(mFile.get()), &status) != 0 || !S_ISREG(status.st_mode)) {
        return 0;
    }
    return status.st_size;
}

bool RecordFieldReader::seek(std::int64_t position)
{
    return ::fseeko(mFile.get(), position, SEEK_SET) == 0;
}

std::size_t RecordFieldReader::read(void* buffer, std::size_t bytes)
{
    return std::fread(buffer, 1, bytes, mFile.get());
}

bool RecordFieldReader::getString(char* text, std::size_t size)
{
    const bool complete = read(text, size) == size;
    text[complete ? size : 0] = '\0';
    return complete;
}

} // namespace VELIX
