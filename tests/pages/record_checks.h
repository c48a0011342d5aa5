// Checks of what every record does with its files and units, told by a table of its operations and lengths.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "pages/page_checks.h"

template <class Record> struct RecordOperations {
    std::string fresh; ///< the file that a record with its built-in values writes
    void (Record::*defaults)();
    void (Record::*save)();
    void (Record::*restore)();
    void (Record::*convert)(long units);
};

/// A length and the type that has to be 0 for it to be scaled; always scaled without one.
template <class Record> struct ScaledLength {
    double Record::*field;
    int Record::*type = nullptr;
};

/// A file with another value for one of its keys.
inline std::string WithValue(std::string file, const std::string& key, const std::string& value)
{
    const size_t line = file.find("\r\n" + key + "=") + 2;
    const size_t at = line + key.size() + 1;
    return file.replace(at, file.find("\r\n", at) - at, value);
}

/// What the record writes into an empty settings file.
template <class Record>
std::string Saved(const HostFolder& host, Record& record, const RecordOperations<Record>& operations)
{
    host.WriteSettings("");
    (record.*operations.save)();
    return host.ReadSettings();
}

/// Where a record departs from "each key is one field, and nothing else is".
struct FileRules {
    std::string elsewhere = {};             ///< a section besides its own that the record reads as well
    std::vector<std::string> ownRules = {}; ///< keys that are put in bounds when they are read, or read elsewhere
    std::vector<std::string> notInDefaults =
        {}; ///< keys that keep their built-in value, whatever the defaults file says
    std::vector<std::pair<std::string, std::string>> otherDefaults = {}; ///< keys with another default than built in
    std::string unitsSection = {};                                       ///< of the defaults file; else its own
    bool keepsUnits = false; ///< a defaults file without units is in those that the record had; else it is in inch
};

inline bool Holds(const std::vector<std::string>& keys, const std::string& key)
{
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

/// The first line of a file, with its end.
inline std::string HeaderOf(const std::string& file)
{
    return file.substr(0, file.find("\r\n") + 2);
}

/// What stands behind a key.
inline std::string ValueIn(const std::string& file, const std::string& key)
{
    const size_t at = file.find("\r\n" + key + "=") + key.size() + 3;
    return file.substr(at, file.find("\r\n", at) - at);
}

inline std::string WithValues(std::string file, const std::vector<std::pair<std::string, std::string>>& values)
{
    for (const auto& [key, value] : values)
        file = WithValue(file, key, value);
    return file;
}

/// Restores every key of a file whose values are all its own, and writes them in the same order.
template <class Record> Record CheckRestoresEveryKey(const HostFolder& host, const RecordOperations<Record>& operations,
                                                     const std::string& file, const FileRules& rules = {})
{
    host.WriteSettings(file + rules.elsewhere);
    Record record;
    (record.*operations.restore)();
    EXPECT_EQ(file, Saved(host, record, operations));
    return record;
}

/// With one key at a time in the settings file and then in the defaults file, that one is taken and the others stay.
template <class Record> void CheckTakesKeysOneByOne(const HostFolder& host, const RecordOperations<Record>& operations,
                                                    const std::string& file, const FileRules& rules = {})
{
    const std::string byDefault = WithValues(operations.fresh, rules.otherDefaults);
    for (const std::string& key : KeysOf(file)) {
        if (Holds(rules.ownRules, key))
            continue;
        const std::string value = ValueIn(file, key);
        const std::string alone = HeaderOf(file) + key + "=" + value + "\r\n";

        host.WriteSettings(alone);
        Record restored;
        (restored.*operations.restore)();
        EXPECT_EQ(WithValue(operations.fresh, key, value), Saved(host, restored, operations)) << key;

        if (key == "Units" || Holds(rules.notInDefaults, key))
            continue;
        host.WriteDefaults(alone);
        Record defaulted;
        (defaulted.*operations.defaults)();
        EXPECT_EQ(WithValue(byDefault, key, value), Saved(host, defaulted, operations)) << key;
    }
}

/// Defaults without a file, of a full file in the kind's own units, of an empty one, and of a metric one without
/// values. The record and the settings file hold other values before.
template <class Record> void CheckDefaults(const HostFolder& host, const RecordOperations<Record>& operations,
                                           const std::string& file, const FileRules& rules = {})
{
    const std::string byDefault = WithValues(operations.fresh, rules.otherDefaults);
    Record record = CheckRestoresEveryKey(host, operations, file, rules);
    (record.*operations.defaults)();
    EXPECT_EQ(byDefault, Saved(host, record, operations));

    const std::string full = WithValue(file, "Units", "0");
    std::string taken = full;
    for (const std::string& key : rules.notInDefaults)
        taken = WithValue(taken, key, ValueIn(operations.fresh, key));
    host.WriteDefaults(full + rules.elsewhere);
    (record.*operations.defaults)();
    EXPECT_EQ(taken, Saved(host, record, operations));

    for (const std::string& withoutValues : {std::string(), HeaderOf(operations.fresh) + "Units=1\r\n"}) {
        host.WriteDefaults(withoutValues);
        host.WriteSettings(file + rules.elsewhere);
        (record.*operations.defaults)();
        EXPECT_EQ(byDefault, Saved(host, record, operations)) << withoutValues;
    }
}

/// Scaled there and back exactly: each length while its own type is 0. `untouched` never is.
template <class Record>
void CheckConversion(const RecordOperations<Record>& operations, const std::vector<ScaledLength<Record>>& lengths,
                     const std::vector<double Record::*>& untouched, const std::vector<int Record::*>& otherTypes = {})
{
    for (const ScaledLength<Record>& scaled : lengths) {
        Record record;
        for (const auto type : otherTypes)
            record.*type = 1;
        for (const ScaledLength<Record>& length : lengths) {
            record.*length.field = 0.8;
            if (length.type)
                record.*length.type = length.type == scaled.type ? 0 : 1;
        }
        (record.*operations.convert)(1);
        EXPECT_EQ(1, record.Units);
        for (const ScaledLength<Record>& length : lengths)
            EXPECT_EQ(!length.type || length.type == scaled.type ? 20.0 : 0.8, record.*length.field);
        for (const auto field : untouched)
            EXPECT_EQ(Record().*field, record.*field);
        (record.*operations.convert)(1);
        EXPECT_EQ(20.0, record.*scaled.field) << "converting to its own units changes nothing";
        (record.*operations.convert)(0);
        EXPECT_EQ(0, record.Units);
        for (const ScaledLength<Record>& length : lengths)
            EXPECT_EQ(0.8, record.*length.field);
        record.Units = 7;
        (record.*operations.convert)(1);
        EXPECT_EQ(0.8 * 0.04, record.*scaled.field) << "from any code but 0 it is the factor back to inch";
    }
}

/// What becomes of values that a file holds for one key, from the settings file and from the defaults file.
template <class Record>
void CheckLimit(const HostFolder& host, const RecordOperations<Record>& operations, const std::string& key,
                const std::vector<std::pair<std::string, int>>& storedAndTaken, int Record::*field)
{
    for (const auto& [stored, taken] : storedAndTaken) {
        const std::string file = WithValue(operations.fresh, key, stored);
        host.WriteSettings(file);
        Record restored;
        (restored.*operations.restore)();
        EXPECT_EQ(taken, restored.*field) << stored;

        host.WriteDefaults(file);
        Record defaulted;
        (defaulted.*operations.defaults)();
        EXPECT_EQ(taken, defaulted.*field) << stored;
    }
}
