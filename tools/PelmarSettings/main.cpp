// PelmarSettings.exe: checks, compares and changes settings files, with the library's own tables.
#include <windows.h>

#include <shellapi.h>

#include "run.h"
#include "texts.h"

int main()
{
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int word = 1; words && word < count; ++word)
        arguments.push_back(pelmar::tool::Utf8(words[word]));
    LocalFree(words);
    return pelmar::tool::Run(std::move(arguments));
}
