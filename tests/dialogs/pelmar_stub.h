// A post-processor library that does what a test tells it, and some that lack an entry point.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "PelmarDlgs/template_defaults.h"

using pelmar::TemplateDefaults;

/// What the library does, and what it was asked. Lives with the library.
struct PelmarScript {
    std::vector<std::int32_t> operations;
    std::int32_t operationCount = 0;
    bool handsOutOperations = true; ///< else the array is null
    std::vector<const char*> sortOptions;
    std::int32_t sortOptionCount = 0;
    bool handsOutSortOptions = true;

    std::map<std::int32_t, TemplateDefaults> records; ///< other operations are unknown
    std::string chosenFile;                           ///< written as it stands, without a terminator
    int chosen = 1;                                   ///< what SelectTemplateFile returns
    bool throws = false;                              ///< every function does, after its work

    int operationListCalls = 0;
    int sortOptionCalls = 0;
    std::vector<std::int32_t> selectCalls; ///< the operations
    std::vector<TemplateDefaults> stored;

    void SetOperations(const std::vector<std::int32_t>& ids)
    {
        operations = ids;
        operationCount = static_cast<std::int32_t>(ids.size());
    }
    void SetSortOptions(const std::vector<const char*>& texts)
    {
        sortOptions = texts;
        sortOptionCount = static_cast<std::int32_t>(texts.size());
    }
    TemplateDefaults& AddRecord(std::int32_t id, const char* name, const char* file)
    {
        TemplateDefaults& record = records[id];
        record.operationId = id;
        record.operationName = name;
        record.templateFile = file;
        record.hasDefaults = *file ? 1 : 0;
        return record;
    }
};

using PelmarStubScript = PelmarScript*();
