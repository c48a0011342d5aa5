#include "dialogs/pelmar_stub.h"

#include <algorithm>

#define ENTRY_POINT extern "C" __declspec(dllexport)

namespace {
PelmarScript g_script;

/// Of the library's own kind: nobody else knows how to destroy it.
struct Failure {
    std::string reason;
};

int End(int result)
{
    if (g_script.throws)
        throw Failure{"as told"};
    return result;
}
} // namespace

ENTRY_POINT PelmarScript* PelmarStub_Script()
{
    return &g_script;
}

#ifndef LACKS_OPERATION_LIST
ENTRY_POINT int Pelmar_GetOperationList(std::int32_t* count, const std::int32_t** ids)
{
    ++g_script.operationListCalls;
    *count = g_script.operationCount;
    *ids = g_script.handsOutOperations ? g_script.operations.data() : nullptr;
    return End(1);
}
#endif

#ifndef LACKS_SORT_OPTIONS
ENTRY_POINT int GetSortingOptionStrings(std::int32_t* count, const char* const** texts)
{
    ++g_script.sortOptionCalls;
    *count = g_script.sortOptionCount;
    *texts = g_script.handsOutSortOptions ? g_script.sortOptions.data() : nullptr;
    return End(1);
}
#endif

#ifndef LACKS_GET
ENTRY_POINT int GetTemplateDefaults(TemplateDefaults* record)
{
    const auto found = g_script.records.find(record->operationId);
    if (found == g_script.records.end())
        return End(0);
    *record = found->second;
    return End(1);
}
#endif

#ifndef LACKS_SET
ENTRY_POINT int SetTemplateDefaults(TemplateDefaults* record)
{
    g_script.stored.push_back(*record);
    return End(1);
}
#endif

#ifndef LACKS_SELECT
ENTRY_POINT int SelectTemplateFile(std::int32_t operation, char* path)
{
    g_script.selectCalls.push_back(operation);
    std::ranges::copy(g_script.chosenFile, path); // the test says whether a text ends
    return End(g_script.chosen);
}
#endif
