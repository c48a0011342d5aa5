// What commands tell of files alike.
#pragma once

#include <span>
#include <vector>

#include "json.h"
#include "output.h"
#include "review/changes.h"
#include "review/findings.h"
#include "settings_file.h"

namespace pelmar::tool {

void WriteFindings(Output& output, const std::vector<review::Finding>& findings);

/// The findings that keep something of the file from being read: neither what is missing nor mixed units.
std::vector<review::Finding> Faults(const review::SettingsText& text);

/// What changes from one text to another, with the values that the library holds before and after.
void WriteChanges(Output& output, const review::SettingsText& before, const review::SettingsText& after,
                  std::span<const review::Change> changes);
Json JsonOfChanges(const review::SettingsText& before, const review::SettingsText& after,
                   std::span<const review::Change> changes);

} // namespace pelmar::tool
