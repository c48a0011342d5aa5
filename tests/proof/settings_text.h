// Settings files as lists of their entries, and values that no sane file holds.
#pragma once

#include <string>
#include <vector>

struct Entry {
    std::string section;
    std::string key;
    std::string text;
};

/// What a settings file holds, line by line.
std::vector<Entry> EntriesOf(const std::string& file);
/// A file of these entries, in their order.
std::string FileOf(const std::vector<Entry>& entries);

/// The bytes 128 to 255.
std::string HighBytes();
const std::vector<std::string>& HostileTexts();
