// Settings files in memory, in place of the platform's.
#pragma once

#include <array>
#include <string>
#include <vector>

struct MemoryFile {
    /// In the order in which they were written: section, key, text.
    std::vector<std::array<std::string, 3>> lines;

    void Put(const std::string& section, const std::string& key, const std::string& text);
    /// Null where there is none.
    const std::string* Find(const std::string& section, const std::string& key) const;
};

/// The files of the test that runs.
struct MemorySettings {
    MemoryFile settings;
    MemoryFile defaults;
    MemoryFile system;
};
MemorySettings& Settings();
