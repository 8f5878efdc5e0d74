#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>

namespace VELIX {

/// Reads the fields of a record file, from the open file or from a buffer of it.
///
/// 16- and 32-bit values are byte-reversed when the file was written in the other byte order;
/// single bytes and texts never are.
class RecordFieldReader
{
public:
    /// Opens a file for reading; isOpen() says whether that worked, errno why not.
    explicit RecordFieldReader(const char* path);

    bool isOpen() const { return mFile != nullptr; }
    std::int64_t size() const; ///< bytes; 0 if unknown
    bool seek(std::int64_t position);
    void setSwap(bool swap) { mSwap = swap; }

    /// Reads up to `bytes` into a buffer; returns the number of bytes read.
    std::size_t read(void* buffer, std::size_t bytes);

    // From the file: false on a short read, the value is then 0 (a text empty).
    bool getChar(std::int8_t& value) { return fromFile(value); }
    bool getUChar(std::uint8_t& value) { return fromFile(value); }
    bool getShort(std::int16_t& value) { return fromFile(value); }
    bool getUShort(std::uint16_t& value) { return fromFile(value); }
    bool getInt(std::int32_t& value) { return fromFile(value); }
    bool getUInt(std::uint32_t& value) { return fromFile(value); }
    /// Reads `size` characters and ends them with NUL: the buffer holds size + 1.
    bool getString(char* text, std::size_t size);

    // From memory: `at` advances by the field's width; the caller vouches for the bytes.
    bool getbChar(const std::byte*& at, std::int8_t& value) const { return fromMemory(at, value); }
    bool getbUChar(const std::byte*& at, std::uint8_t& value) const
    {
        return fromMemory(at, value);
    }
    bool getbShort(const std::byte*& at, std::int16_t& value) const
    {
        return fromMemory(at, value);
    }
    bool getbUShort(const std::byte*& at, std::uint16_t& value) const
    {
        return fromMemory(at, value);
    }
    bool getbInt(const std::byte*& at, std::int32_t& value) const { return fromMemory(at, value); }
    bool getbUInt(const std::byte*& at, std::uint32_t& value) const
    {
        return fromMemory(at, value);
    }
    /// Copies `size` bytes as they are, without an end mark.
    static bool getbString(const std::byte*& at, void* text, std::size_t size)
    {
        std::memcpy(text, at, size);
        at += size;
        return true;
    }

private:
    struct Close
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    template <class T>
    T ordered(T value) const
    {
        if (!mSwap) {
            return value;
        }
        if constexpr (sizeof(T) == 2) {
            return static_cast<T>(__builtin_bswap16(static_cast<std::uint16_t>(value)));
        } else if constexpr (sizeof(T) == 4) {
            return static_cast<T>(__builtin_bswap32(static_cast<std::uint32_t>(value)));
        }
        return value;
    }
    template <class T>
    bool fromFile(T& value)
    {
        if (read(&value, sizeof(T)) != sizeof(T)) {
            value = 0;
            return false;
        }
        value = ordered(value);
        return true;
    }
    template <class T>
    bool fromMemory(const std::byte*& at, T& value) const
    {
        std::memcpy(&value, at, sizeof(T));
        value = ordered(value);
        at += sizeof(T);
        return true;
    }

    std::unique_ptr<std::FILE, Close> mFile;
    bool mSwap = false;
};

} // namespace VELIX
