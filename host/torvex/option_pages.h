// The NC option pages of the host, and the records that they edit.
#pragma once

#include <functional>
#include <memory>
#include <span>

#include <afxdlgs.h>

/// One kind of operation: its page and its live record.
struct OptionPage {
    UINT tab;       ///< string id of the tab's text: several pages share the title of their template
    int templateId; ///< of the page
    std::function<std::unique_ptr<CPropertyPage>(int units)> make; ///< the page, filled and in these units
    std::function<void()> defaults;                                ///< the record as the defaults file has it
    std::function<void()> restore;                                 ///< the record from the settings file
    std::function<void()> save;                                    ///< the record to the settings file
    std::function<void(long units)> convert;                       ///< the record to these units
};

/// All of them, in the order of their tabs.
std::span<const OptionPage> OptionPages();

/// Saves the records of all of them.
void SaveAll();
