#include "pages/description.h"

#include <algorithm>
#include <utility>

namespace {
using Describe = RecordDescription(const void* page);

/// The described pages, which come while the library starts.
std::vector<std::pair<Describe*, const void*>>& DescribedPages()
{
    static std::vector<std::pair<Describe*, const void*>> pages;
    return pages;
}
} // namespace

void AddDescription(RecordDescription (*describe)(const void* page), const void* page)
{
    DescribedPages().emplace_back(describe, page);
}

std::vector<RecordDescription> DescribeRecords()
{
    std::vector<RecordDescription> records;
    for (const auto& [describe, page] : DescribedPages())
        records.push_back(describe(page));
    std::ranges::sort(records, {}, &RecordDescription::section);
    return records;
}
