// Where the program's texts go: to a console as people read them, into a file or a pipe as UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelmar::tool {

enum class ColorMode { Auto, Always, Never };

enum class Style { Plain, Strong, Good, Bad, Dim };

/// The standard output or the standard error output.
class Output {
public:
    enum class Channel { Standard, Error };

    explicit Output(Channel channel);

    void SetColor(ColorMode mode);
    bool IsConsole() const { return m_isConsole; }

    /// The text in a style, where there is colour.
    std::string Painted(Style style, std::string_view text) const;
    /// Writes at once. Lines end with "\n"; files and pipes get "\r\n".
    void Write(std::string_view text);
    void Line(std::string_view text) { Write(std::string(text) + '\n'); }
    /// False where something could not be written: the disk is full, nobody reads any more.
    bool IsWhole() const { return m_isWhole; }

private:
    void WriteBytes(std::string_view bytes);
    void WriteToConsole(std::string_view text);

    void* m_handle;
    bool m_isConsole;
    bool m_isColored = false;
    bool m_isWhole = true;
};

struct Cell {
    Cell(std::string cellText, Style cellStyle = Style::Plain) : text(std::move(cellText)), style(cellStyle) {}
    Cell(const char* cellText) : text(cellText) {}

    std::string text;
    Style style = Style::Plain;
};

/// Rows in columns.
class Table {
public:
    void Add(std::vector<Cell> row) { m_rows.push_back(std::move(row)); }
    void Write(Output& output, std::string_view indent = "  ") const;

private:
    std::vector<std::vector<Cell>> m_rows;
};

} // namespace pelmar::tool
