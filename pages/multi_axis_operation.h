// What an operation brings to the page that 4-axis and 5-axis milling share.
#pragma once

#include <array>

#include "pages/record_page_tables.h"

/// An operation's own part. Page and operation live as long as the library.
template <class Record> struct MultiAxisOperation {
    int templateId;
    PageTables<Record> tables;
    int Record::*rotary; ///< the field of the list at the top
};

/// The fields in the order of the settings file: the common ones with the operation's own second field, then what else
/// is the operation's own.
template <class Record, class... Fields> constexpr std::array<Field<Record>, 15 + sizeof...(Fields)>
MultiAxisFields(const Field<Record>& rotary, const Fields&... own)
{
    return {{
        {"Units", &Record::Units},
        rotary,
        {"FeedBetweenClearance", &Record::FeedBetweenClearance, Scaling::Always},
        {"MaxFeedBetween", &Record::MaxFeedBetween, &Record::FeedBetweenType},
        {"FeedBetweenType", &Record::FeedBetweenType},
        {"FeedBetweenRate", &Record::FeedBetweenRate},
        {"LeadOnFeed", &Record::LeadOnFeed},
        {"ChangeToolAxis", &Record::ChangeToolAxis},
        {"VerticalForRapid", &Record::VerticalForRapid},
        {"RapidFrequency", &Record::RapidFrequency},
        {"SideStepMode", &Record::SideStepMode},
        {"WriteNormal", &Record::WriteNormal},
        {"RapidPlane", &Record::RapidPlane, Scaling::Always},
        {"RapidPlunge", &Record::RapidPlunge, Scaling::Always},
        {"SortType", &Record::SortType},
        own...,
    }};
}
