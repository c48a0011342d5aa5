#include "records.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <windows.h>

namespace toollib {
namespace {

static_assert(offsetof(ToolLibTool, id) == 4 && offsetof(ToolLibTool, description) == 8);

template <size_t size> void CopyText(char (&out)[size], const char* text)
{
    const size_t length = std::min(std::strlen(text), size - 1);
    std::memcpy(out, text, length);
    out[length] = '\0';
}

/// Writes `text` in the ANSI code page, or `latin` where that cannot hold it.
template <size_t size> void CopyText(char (&out)[size], const wchar_t* text, const char* latin)
{
    BOOL lost = FALSE;
    char narrow[size];
    const int length = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text, -1, narrow, size, nullptr, &lost);
    CopyText(out, length > 0 && !lost ? narrow : latin);
}

} // namespace

void Fill(ToolLibTool& record, const Tool& tool)
{
    record = {};
    record.kind = tool.kind;
    record.id = tool.id;
    CopyText(record.description, tool.description, tool.designation);
    record.units = tool.units;
    record.teeth = tool.teeth;
    record.diameter = tool.diameter;
    record.cornerRadius = tool.cornerRadius;
    record.gaugeLength = tool.gaugeLength;
}

void Fill(ToolLibMaterial& record, const Material& material)
{
    record = {};
    record.id = material.id;
    record.group = material.group;
    CopyText(record.name, material.name, material.designation);
}

} // namespace toollib
