// The system's calls that a save consists of. Tests put others in their place and make each of them fail.
#pragma once

#include <windows.h>

namespace pelmar {

struct FileSystem {
    decltype(&CreateFileA) createFile = CreateFileA;
    decltype(&ReadFile) readFile = ReadFile;
    decltype(&WriteFile) writeFile = WriteFile;
    decltype(&SetFilePointerEx) setFilePointer = SetFilePointerEx;
    decltype(&SetEndOfFile) setEndOfFile = SetEndOfFile;
    decltype(&GetFileInformationByHandle) fileInformation = GetFileInformationByHandle;
    decltype(&SetFileTime) setFileTime = SetFileTime;
    decltype(&FlushFileBuffers) flushFileBuffers = FlushFileBuffers;
    decltype(&CloseHandle) closeHandle = CloseHandle;
    decltype(&GetFileAttributesA) fileAttributes = GetFileAttributesA;
    decltype(&SetFileAttributesA) setFileAttributes = SetFileAttributesA;
    decltype(&GetFileSecurityA) fileSecurity = GetFileSecurityA;
    decltype(&SetFileSecurityA) setFileSecurity = SetFileSecurityA;
    decltype(&GetPrivateProfileSectionA) readSection = GetPrivateProfileSectionA;
    decltype(&WritePrivateProfileStringA) writeProfile = WritePrivateProfileStringA;
    decltype(&MoveFileExA) moveFile = MoveFileExA;
    decltype(&DeleteFileA) deleteFile = DeleteFileA;
    decltype(&Sleep) sleep = Sleep;
    decltype(&GetTickCount64) tickCount = GetTickCount64;
};

/// The calls in use: the system's own.
FileSystem& Files();

} // namespace pelmar
