// A file of the system's, closed and, where it is to pass, deleted at the end of its scope.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "frame/file_system.h"

namespace pelmar {

/// An open file, or one that could not be opened: GetLastError then tells why. Calls that fail return false and leave
/// the reason there.
class File {
public:
    File() = default;
    File(const std::string& path, DWORD access, DWORD share, DWORD disposition, DWORD flags = FILE_ATTRIBUTE_NORMAL)
        : m_handle(Files().createFile(path.c_str(), access, share, nullptr, disposition, flags, nullptr))
    {
    }
    File(File&& other) noexcept : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE)) {}
    File& operator=(File&& other) noexcept
    {
        Close();
        m_handle = std::exchange(other.m_handle, INVALID_HANDLE_VALUE);
        return *this;
    }
    ~File() { Close(); }

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    void Close()
    {
        if (IsOpen())
            Files().closeHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
    }

    bool Describe(BY_HANDLE_FILE_INFORMATION& description) const
    {
        return Files().fileInformation(m_handle, &description);
    }

    /// All of it.
    bool Read(std::string& bytes) const
    {
        BY_HANDLE_FILE_INFORMATION description{};
        if (!Describe(description))
            return false;
        if (description.nFileSizeHigh != 0) {
            SetLastError(ERROR_FILE_TOO_LARGE);
            return false;
        }
        bytes.resize(description.nFileSizeLow);
        DWORD read = 0;
        if (!Files().readFile(m_handle, bytes.data(), description.nFileSizeLow, &read, nullptr))
            return false;
        if (read == bytes.size())
            return true;
        SetLastError(ERROR_READ_FAULT);
        return false;
    }

    bool Write(std::string_view bytes) const
    {
        DWORD written = 0;
        if (!Files().writeFile(m_handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
            return false;
        if (written == bytes.size())
            return true;
        SetLastError(ERROR_DISK_FULL);
        return false;
    }

    /// Ends the file at `size`, where the next bytes go to.
    bool CutAt(size_t size) const { return MoveTo(size) && Files().setEndOfFile(m_handle); }
    bool MoveTo(size_t position) const
    {
        LARGE_INTEGER to{};
        to.QuadPart = static_cast<LONGLONG>(position);
        return Files().setFilePointer(m_handle, to, nullptr, FILE_BEGIN);
    }
    bool Flush() const { return Files().flushFileBuffers(m_handle); }
    bool SetWriteTime(const FILETIME& time) const { return Files().setFileTime(m_handle, nullptr, nullptr, &time); }

private:
    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

/// A file that is deleted at the end unless it is to stay.
class PassingFile {
public:
    PassingFile() = default;
    explicit PassingFile(std::string path) : m_path(std::move(path)) {}
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;
    ~PassingFile()
    {
        if (!m_path.empty())
            Files().deleteFile(m_path.c_str());
    }

    const std::string& Path() const { return m_path; }
    void Become(std::string path) { m_path = std::move(path); }
    std::string Stay() { return std::exchange(m_path, {}); }

private:
    std::string m_path;
};

} // namespace pelmar
