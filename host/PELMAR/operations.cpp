#include "operations.h"

#include <windows.h>

namespace pelmar {
namespace {

// A list that offers the operations leaves out 36 and the nameless one: at the end they do not shift the others.
constexpr Operation kOperations[] = {
    {1, {L"2-осевая обработка", "2-axis milling"}},
    {2, {L"3-осевая обработка", "3-axis milling"}},
    {4, {L"Черновая Z", "Z roughing"}},
    {5, {L"Чистовая Z", "Z finishing"}},
    {7, {L"4-осевая обработка", "4-axis milling"}},
    {8, {L"5-осевая обработка", "5-axis milling"}},
    {11, {L"Плоские поверхности", "Flat surfaces"}},
    {14, {L"Обработка отверстий", "Hole process"}},
    {15, {L"Торцевое фрезерование", "Face milling"}},
    {16, {L"Фрезерование фасок", "Chamfer milling"}},
    {17, {L"Фрезерование скруглений", "Round milling"}},
    {18, {L"Фрезерование канавок", "Groove milling"}},
    {19, {L"Фрезерование пазов", "Slot milling"}},
    {21, {L"Токарная обработка", "Turning"}},
    {30, {L"Электроэрозионная обработка", "Wire EDM"}},
    {36, {L"Измерение щупом", "Probing"}},
    {40, {L"", ""}},
};

constexpr Text kSortOptions[] = {
    {L"Нет", "None"},
    {L"По имени", "By name"},
    {L"По материалу", "By material"},
    {L"По инструменту", "By tool"},
    {L"По станку", "By machine"},
    {L"По дате", "By date"},
    {L"По автору", "By author"},
};

} // namespace

std::span<const Operation> Operations()
{
    return kOperations;
}

std::span<const Text> SortOptions()
{
    return kSortOptions;
}

const Operation* FindOperation(std::int32_t id)
{
    for (const Operation& operation : kOperations)
        if (operation.id == id)
            return &operation;
    return nullptr;
}

std::string InCodePage(const Text& text)
{
    BOOL lost = FALSE;
    char narrow[256];
    const int length =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.russian, -1, narrow, sizeof narrow, nullptr, &lost);
    return length > 0 && !lost ? narrow : text.english;
}

} // namespace pelmar
