// A settings file's text as the platform's profile functions read it, with what these pass over in silence.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/value_source.h"

namespace pelmar::review {

/// In small letters, as far as they are Latin.
std::string Lowered(std::string_view name);
bool IsSameName(std::string_view one, std::string_view other);

/// A key of a section, to look it up by.
struct EntryName {
    std::string_view section;
    std::string_view key;

    friend bool operator==(const EntryName& one, const EntryName& other)
    {
        return IsSameName(one.section, other.section) && IsSameName(one.key, other.key);
    }
};
struct EntryNameHash {
    std::size_t operator()(const EntryName& name) const;
};

/// What a settings file's bytes are as a whole.
enum class TextState {
    Sound,
    Empty,
    Utf16,      ///< every value would have to be guessed
    Utf8Marked, ///< begins with the mark of UTF-8, which the platform takes for a part of the first line
    Zeros,      ///< holds zero bytes, as a power cut leaves them
    TooLarge,
};

struct TextLine {
    enum class Kind { Section, Entry, Comment, Other };

    Kind kind = Kind::Other;
    int number = 0; ///< from 1
    std::string_view section;
    std::string_view key;   ///< of an entry; the whole line where it is something else
    std::string_view value; ///< without the blanks around it
};

/// What becomes of a text, line by line.
struct LineEdits {
    std::map<int, std::string> replaced;              ///< by line number; an empty one goes
    std::map<int, std::vector<std::string>> inserted; ///< after the line
    std::vector<std::string> appended;                ///< at the end
    std::string sectionOfLast;                        ///< what the last appended line is of

    void AppendSection(const std::string& section, const std::string& entry)
    {
        sectionOfLast = section;
        appended.insert(appended.end(), {"[" + section + "]", entry});
    }
};

/// Bytes of a settings file, in its own code page, and the lines in them. Blank lines are left out. Names are compared
/// without regard to the case of Latin letters.
class SettingsText {
public:
    /// More is no settings file. A full one has about 12,000 bytes.
    static constexpr std::size_t kLargest = 4U << 20;

    /// Nothing: as a missing file.
    SettingsText() : SettingsText(std::string()) {}
    explicit SettingsText(std::string bytes);
    // Copies share the content. What has been moved from keeps it: nothing else may be asked of a text without one.
    SettingsText(const SettingsText&) = default;
    SettingsText& operator=(const SettingsText&) = default;

    TextState State() const { return m_content->state; }
    /// Empty unless the text is sound.
    std::span<const TextLine> Lines() const { return m_content->lines; }
    /// The line that counts for a key: the first one in the first section of that name. Null where there is none.
    const TextLine* Find(std::string_view section, std::string_view key) const;
    /// The line that a write to the key replaces: also one that is the key alone, without "=". That one hides the key
    /// in the lines after it.
    const TextLine* FindNamed(std::string_view section, std::string_view key) const;
    bool HasSection(std::string_view section) const;
    const std::string& Bytes() const { return m_content->bytes; }
    SettingsText Edited(const LineEdits& edits) const;

private:
    /// Stays as it was read: the lines look into the bytes.
    struct Content {
        explicit Content(std::string text);
        void AddLine(std::string_view line, int number);

        std::string bytes;
        TextState state;
        std::vector<TextLine> lines;
        std::string_view section; ///< that the next line is of
        bool isRepeated = false;  ///< it has been there before
        std::pmr::monotonic_buffer_resource memory;
        /// And the line that counts. They come one by one and go all at once.
        std::pmr::unordered_map<EntryName, std::size_t, EntryNameHash> entries{&memory};
    };

    std::shared_ptr<const Content> m_content;
};

/// A settings text as the library reads it.
class TextValues final : public ValueSource {
public:
    explicit TextValues(const SettingsText& text) : m_text(text) {}

    int Whole(const char* section, const char* key, int fallback) const override;
    double Real(const char* section, const char* key, double fallback) const override;

private:
    /// Nothing where the key is missing.
    std::string_view ValueOf(const char* section, const char* key) const;

    const SettingsText& m_text;
};

/// A value as the platform hands it out: without quotes around it.
std::string_view Unquoted(std::string_view value);

/// The number that a value is read as. Where it is empty, or no real, the fallback; a real fallback goes through text
/// and single precision, too.
int StoredWhole(std::string_view value, int fallback);
double StoredReal(std::string_view value, double fallback);

} // namespace pelmar::review
