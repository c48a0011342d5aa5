#include "output.h"

#include <algorithm>

#include <windows.h>

#include "texts.h"

namespace pelmar::tool {
namespace {

std::string_view CodeOf(Style style)
{
    switch (style) {
    case Style::Strong:
        return "\x1b[1m";
    case Style::Good:
        return "\x1b[32m";
    case Style::Bad:
        return "\x1b[31m";
    case Style::Dim:
        return "\x1b[90m";
    case Style::Plain:
        break;
    }
    return "";
}

/// Texts of files and names may hold what a console takes for orders.
std::string WithoutControls(std::string_view text)
{
    std::string shown(text);
    std::ranges::replace_if(
        shown, [](char letter) { return (letter >= 0 && letter < ' ' && letter != '\n') || letter == '\x7f'; }, ' ');
    return shown;
}

} // namespace

Output::Output(Channel channel)
    : m_handle(GetStdHandle(channel == Channel::Standard ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE))
{
    DWORD mode = 0;
    m_isConsole = GetConsoleMode(m_handle, &mode) != FALSE;
}

void Output::SetColor(ColorMode mode)
{
    DWORD consoleMode = 0;
    if (m_isConsole && mode != ColorMode::Never && GetConsoleMode(m_handle, &consoleMode)) {
        m_isColored = SetConsoleMode(m_handle, consoleMode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
        return;
    }
    m_isColored = mode == ColorMode::Always;
}

std::string Output::Painted(Style style, std::string_view text) const
{
    std::string shown = WithoutControls(text);
    if (!m_isColored || style == Style::Plain || shown.empty())
        return shown;
    return std::string(CodeOf(style)) + shown + "\x1b[0m";
}

void Output::Write(std::string_view text)
{
    if (m_isConsole) {
        WriteToConsole(text);
        return;
    }
    std::string bytes;
    for (const char letter : text) {
        if (letter == '\n')
            bytes += '\r';
        bytes += letter;
    }
    WriteBytes(bytes);
}

void Output::WriteBytes(std::string_view bytes)
{
    while (!bytes.empty() && m_isWhole) {
        DWORD written = 0;
        m_isWhole = WriteFile(m_handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE &&
                    written > 0;
        bytes.remove_prefix(written);
    }
}

void Output::WriteToConsole(std::string_view text)
{
    constexpr std::size_t kAtOnce = 8000; // consoles of older systems take no more
    const std::wstring wide = Wide(text);
    std::wstring_view rest = wide;
    while (!rest.empty() && m_isWhole) {
        DWORD written = 0;
        m_isWhole = WriteConsoleW(m_handle, rest.data(), static_cast<DWORD>(std::min(rest.size(), kAtOnce)), &written,
                                  nullptr) != FALSE &&
                    written > 0;
        rest.remove_prefix(written);
    }
}

void Table::Write(Output& output, std::string_view indent) const
{
    std::vector<std::size_t> widths;
    for (const std::vector<Cell>& row : m_rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], LengthOf(row[column].text));
    }
    std::string text;
    for (const std::vector<Cell>& row : m_rows) {
        std::string line(indent);
        std::size_t missing = 0;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const Cell& cell = row[column];
            if (!cell.text.empty())
                line += std::string(missing, ' ') + output.Painted(cell.style, cell.text);
            if (widths[column] > 0)
                missing = (cell.text.empty() ? missing : 0) + widths[column] - LengthOf(cell.text) + 2;
        }
        text += line + '\n';
    }
    output.Write(text);
}

} // namespace pelmar::tool
