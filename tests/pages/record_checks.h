// Checks of what every record does with its files and units, told by a table of its operations and lengths.
#pragma once

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
template <class Record> struct Length {
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

/// Restores every key of a file whose values are all its own, and writes them in the same order.
template <class Record> Record CheckRestoresEveryKey(const HostFolder& host, const RecordOperations<Record>& operations,
                                                     const std::string& file)
{
    host.WriteSettings(file);
    Record record;
    (record.*operations.restore)();
    EXPECT_EQ(file, Saved(host, record, operations));
    return record;
}

/// With one key at a time in the settings file and then in the defaults file, that one is taken and the others stay.
template <class Record>
void CheckTakesKeysOneByOne(const HostFolder& host, const RecordOperations<Record>& operations, const std::string& file)
{
    const std::string section = operations.fresh.substr(0, operations.fresh.find("\r\n") + 2);
    for (const std::string& key : KeysOf(file)) {
        const size_t at = file.find("\r\n" + key + "=") + 2;
        const std::string line = file.substr(at, file.find("\r\n", at) + 2 - at);
        const std::string value = line.substr(key.size() + 1, line.size() - key.size() - 3);
        const std::string expected = WithValue(operations.fresh, key, value);

        host.WriteSettings(section + line);
        Record restored;
        (restored.*operations.restore)();
        EXPECT_EQ(expected, Saved(host, restored, operations)) << key;

        if (key == "Units")
            continue;
        host.WriteDefaults(section + line);
        Record defaulted;
        (defaulted.*operations.defaults)();
        EXPECT_EQ(expected, Saved(host, defaulted, operations)) << key;
    }
}

/// Defaults of a full file in the kind's own units, of an empty one, and of a metric one without values. The record
/// held other values before.
template <class Record>
void CheckDefaults(const HostFolder& host, const RecordOperations<Record>& operations, const std::string& file)
{
    Record record;
    const std::string full = WithValue(file, "Units", "0");
    host.WriteDefaults(full);
    (record.*operations.defaults)();
    EXPECT_EQ(full, Saved(host, record, operations));

    for (const std::string& withoutValues :
         {std::string(), operations.fresh.substr(0, operations.fresh.find("\r\n")) + "\r\nUnits=1\r\n"}) {
        host.WriteDefaults(withoutValues);
        (record.*operations.defaults)();
        EXPECT_EQ(operations.fresh, Saved(host, record, operations)) << withoutValues;
    }
}

/// Scaled there and back exactly: each length while its own type is 0. `untouched` never is.
template <class Record>
void CheckConversion(const RecordOperations<Record>& operations, const std::vector<Length<Record>>& lengths,
                     const std::vector<double Record::*>& untouched, const std::vector<int Record::*>& otherTypes = {})
{
    for (const Length<Record>& scaled : lengths) {
        Record record;
        for (const auto type : otherTypes)
            record.*type = 1;
        for (const Length<Record>& length : lengths) {
            record.*length.field = 0.8;
            if (length.type)
                record.*length.type = length.type == scaled.type ? 0 : 1;
        }
        (record.*operations.convert)(1);
        EXPECT_EQ(1, record.Units);
        for (const Length<Record>& length : lengths)
            EXPECT_EQ(!length.type || length.type == scaled.type ? 20.0 : 0.8, record.*length.field);
        for (const auto field : untouched)
            EXPECT_EQ(Record().*field, record.*field);
        (record.*operations.convert)(1);
        EXPECT_EQ(20.0, record.*scaled.field) << "converting to its own units changes nothing";
        (record.*operations.convert)(0);
        EXPECT_EQ(0, record.Units);
        for (const Length<Record>& length : lengths)
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
