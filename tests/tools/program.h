// PelmarSettings.exe, run as a process of its own, and files for it.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <PelmarDlgs.h>

#include <nlohmann/json.hpp>

namespace tool_testing {

/// What a run has come to. Texts are UTF-8, their lines end with "\n".
struct Answer {
    DWORD status = 0;
    std::string out;
    std::string error;

    /// The answer as JSON; null where it is none.
    nlohmann::json Json() const { return nlohmann::json::parse(out, nullptr, false); }
};

/// A folder of a test's own, gone with it. The program runs in it.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string Path(std::string_view name) const { return m_path + "\\" + std::string(name); }
    void Write(std::string_view name, std::string_view bytes) const;
    std::string Read(std::string_view name) const;
    /// How many files there are.
    std::size_t Count() const;

    /// Runs the program to its end. Words are UTF-8.
    Answer Run(const std::vector<std::string>& words) const;
    /// Starts it, for a caller who ends it himself; its output goes nowhere.
    PROCESS_INFORMATION Start(const std::vector<std::string>& words) const;

private:
    std::string m_path;
};

/// The command line of the program with these words.
std::wstring CommandLineOf(const std::vector<std::string>& words);

/// Everything that a settings file holds: the value by "Section.Key".
std::map<std::string, std::string> ValuesIn(std::string_view bytes);

/// A settings file of all records at the factory's values, as the library saves it.
std::string FactoryFile(int units = 0);

/// What the library saves once it has restored all records from a settings file.
std::string RestoredAndSaved(const std::string& bytes);

/// A file of the sources.
std::string SourceFile(std::string_view name);

} // namespace tool_testing
