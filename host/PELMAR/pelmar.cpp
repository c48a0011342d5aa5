// The entry points.
#include "PELMAR.h"

#include <cstring>
#include <vector>

#include "defaults_file.h"
#include "file_chooser.h"
#include "module.h"
#include "operations.h"

namespace pelmar {
namespace {

HINSTANCE g_module = nullptr;

const std::vector<std::int32_t>& OperationIds()
{
    static const std::vector<std::int32_t> ids = [] {
        std::vector<std::int32_t> all;
        for (const Operation& operation : Operations())
            all.push_back(operation.id);
        return all;
    }();
    return ids;
}

const std::vector<const char*>& SortOptionTexts()
{
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> all;
        for (const Text& option : SortOptions())
            all.push_back(InCodePage(option));
        return all;
    }();
    static const std::vector<const char*> pointers = [] {
        std::vector<const char*> all;
        all.reserve(texts.size());
        for (const std::string& text : texts)
            all.push_back(text.c_str());
        return all;
    }();
    return pointers;
}

/// Hands out an array of the library's.
template <class Item, class Array> int HandOut(const std::vector<Item>& items, std::int32_t* count, Array* array)
{
    if (!count || !array)
        return 0;
    *count = static_cast<std::int32_t>(items.size());
    *array = items.data();
    return 1;
}

} // namespace

HINSTANCE Module()
{
    return g_module;
}

std::wstring LoadText(UINT id)
{
    const wchar_t* text = nullptr;
    const int length = LoadStringW(g_module, id, reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

} // namespace pelmar

using namespace pelmar;

int Pelmar_GetOperationList(std::int32_t* count, const std::int32_t** ids)
{
    return HandOut(OperationIds(), count, ids);
}

int GetSortingOptionStrings(std::int32_t* count, const char* const** texts)
{
    return HandOut(SortOptionTexts(), count, texts);
}

int GetTemplateDefaults(pelmar::TemplateDefaults* record)
{
    const Operation* const operation = record ? FindOperation(record->operationId) : nullptr;
    if (!operation)
        return 0;
    record->operationName = InCodePage(operation->name);
    ReadDefaults(*record);
    return 1;
}

int SetTemplateDefaults(const pelmar::TemplateDefaults* record)
{
    return record && FindOperation(record->operationId) && WriteDefaults(*record) ? 1 : 0;
}

int SelectTemplateFile(std::int32_t operationId, char* path)
{
    const Operation* const operation = FindOperation(operationId);
    if (!operation || !path)
        return 0;
    TemplateDefaults record;
    record.operationId = operationId;
    ReadDefaults(record);
    const auto chosen = ChooseTemplateFile(operation->name.russian, record.templateFile, kPelmarPathCapacity);
    if (!chosen)
        return 0;
    std::memcpy(path, chosen->c_str(), chosen->size() + 1);
    return 1;
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        g_module = instance;
    return TRUE;
}
