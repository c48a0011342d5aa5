// What the tables of records and pages say, put together for documents and tools. The tables stay the only place of a
// fact. No part of the library: a static library beside it, for whoever describes or checks the settings.
#pragma once

#include <memory>
#include <span>

#include "pages/control.h"
#include "records/record_table.h"

namespace pelmar {

/// A record whose type is no longer known.
using AnyRecord = std::unique_ptr<void, void (*)(void* record)>;

/// A record with the page or dialog that edits it.
struct RecordDescription {
    const RecordTable& table;
    int templateId;
    std::span<const Control> controls;
    /// Its topic of the help file.
    const char* topic;
    /// A record with its built-in values, in these units (0 inch, 1 millimetre): the value of one option.
    double (*valueAtStart)(const Option& option, long units);
    /// A copy of a record; of the built-in one where there is null.
    AnyRecord (*copyOf)(const void* record);
    void (*assign)(void* to, const void* from);
    /// Gives a record the factory's values in these units: the built-in ones, overlaid by a defaults file.
    void (*takeFactory)(void* record, const ValueSource& defaults, long units);

    /// The first control that edits the option; null where none does.
    const Control* ControlOf(const Option& option) const;
    /// The option of a length's type; null where the length has none.
    const Option* TypeOf(const Option& option) const;
};

/// All records that are kept in the settings file, in the order of their sections.
std::span<const RecordDescription> DescribeRecords();

/// A page or a dialog that leads to topics of the help file.
struct WindowDescription {
    /// The record that it edits; null where it edits none of the settings file.
    const RecordTable* record;
    const PageFacts& page;
    /// A built-in value in these units; null where no control edits an option.
    double (*valueAtStart)(const Option& option, long units);
};

/// All of them, pages first.
std::span<const WindowDescription> DescribeWindows();

} // namespace pelmar
