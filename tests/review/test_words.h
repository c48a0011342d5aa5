// Words for tests without the library's string table: its strings are their numbers, and files are UTF-8.
#pragma once

#include "resources/resource.h"
#include "review/words.h"

inline std::string TextOfTestString(unsigned id)
{
    switch (id) {
    case IDS_YES:
        return "Да";
    case IDS_NO:
        return "Нет";
    case IDS_CONSTANT:
        return "Константа";
    case IDS_TOOL_RADIUS:
        return "Радиус инструмента";
    default:
        return "#" + std::to_string(id);
    }
}

inline const pelmar::review::Words kWords{.ofString = TextOfTestString,
                                          .ofFile = [](std::string_view bytes) { return std::string(bytes); },
                                          .toFile =
                                              [](std::string_view text, std::string& bytes) {
                                                  bytes = text;
                                                  return true;
                                              }};
