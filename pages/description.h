// What the tables of records and pages say, for who documents or checks them. The tables stay the only place of a
// fact: a description is put together from them when it is asked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/export.h"
#include "pages/page_controls.h"
#include "pages/record.h"

/// One key of a settings file.
struct FieldDescription {
    enum class Conversion {
        Never,
        Always,
        WhileConstant, ///< while the field under `typeKey` is 0
    };

    std::string key;
    bool isReal = false;
    Conversion conversion = Conversion::Never;
    std::string typeKey;
    double atStart[2] = {};  ///< when the library starts, in inch and converted to millimetre
    std::string readSection; ///< where it is read, if not in the record's section
    bool isClamped = false;  ///< put in bounds when it is read
    bool isInDefaultsFile = true;

    // How the page edits it; what a page does in code of its own is not here.
    std::vector<int> controls;
    std::optional<Range> range;
    bool isCheckBox = false;
    std::vector<UINT> texts; ///< string ids of a list's items
    int firstValue = 0;      ///< what the first of them stands for
};

/// One record, its keys in the order of the file.
struct RecordDescription {
    std::string section;
    int templateId = 0; ///< of the page or dialog that edits it
    std::vector<FieldDescription> fields;
};

/// All records that have a table, in the order of their sections.
PELMAR_API std::vector<RecordDescription> DescribeRecords();

/// Makes DescribeRecords call this. For the constructor below.
void AddDescription(RecordDescription (*describe)(const void* page), const void* page);

/// Has a record described with the tables of its page. An object of it stands beside the tables.
template <class Record> class DescribedPage {
public:
    DescribedPage(int templateId, const RecordKind<Record>& kind, std::span<const ExchangeRow<Record>> exchange,
                  std::span<const ChoiceRow<Record>> choices = {}, std::span<const CheckRow<Record>> checks = {})
        : m_templateId(templateId), m_kind(kind), m_exchange(exchange), m_choices(choices), m_checks(checks)
    {
        AddDescription([](const void* page) { return static_cast<const DescribedPage*>(page)->Describe(); }, this);
    }
    DescribedPage(const DescribedPage&) = delete;
    DescribedPage& operator=(const DescribedPage&) = delete;

private:
    using Whole = typename Field<Record>::Whole;

    RecordDescription Describe() const
    {
        RecordDescription description{m_kind.Section(), m_templateId, {}};
        for (const Field<Record>& field : m_kind.Fields())
            if (field.key)
                description.fields.push_back(DescriptionOf(field));
        return description;
    }

    FieldDescription DescriptionOf(const Field<Record>& field) const
    {
        FieldDescription description;
        description.key = field.key;
        description.isReal = !std::holds_alternative<Whole>(field.member);
        description.readSection = field.readSection ? field.readSection : "";
        description.isClamped = field.sanitize != nullptr;
        description.isInDefaultsFile = field.inDefaults;
        DescribeConversion(field, description);
        DescribeControls(field, description);
        return description;
    }

    void DescribeConversion(const Field<Record>& field, FieldDescription& description) const
    {
        if (field.lengthType) {
            description.conversion = FieldDescription::Conversion::WhileConstant;
            for (const Field<Record>& other : m_kind.Fields())
                if (other.member == decltype(other.member)(field.lengthType))
                    description.typeKey = other.key;
        } else if (field.scaling == Scaling::Always) {
            description.conversion = FieldDescription::Conversion::Always;
        }
        Record record;
        for (const int units : {kInch, kMillimetre}) {
            m_kind.Convert(record, units);
            description.atStart[units] =
                std::visit([&record](auto member) { return static_cast<double>(record.*member); }, field.member);
        }
    }

    void DescribeControls(const Field<Record>& field, FieldDescription& description) const
    {
        for (const ExchangeRow<Record>& row : m_exchange)
            if (row.field == field.member) {
                description.controls.push_back(row.id);
                description.range = row.range;
                description.isCheckBox |= row.binding == Binding::Check || row.binding == Binding::OnOff;
            }
        if (!std::holds_alternative<Whole>(field.member))
            return;
        const Whole member = std::get<Whole>(field.member);
        for (const ChoiceRow<Record>& row : m_choices)
            if (row.field == member) {
                description.controls.push_back(row.id);
                description.texts.assign(row.texts.begin(), row.texts.end());
                description.firstValue = row.firstValue;
            }
        for (const CheckRow<Record>& row : m_checks)
            if (row.field == member) {
                description.controls.push_back(row.id);
                description.isCheckBox = true;
            }
    }

    int m_templateId;
    const RecordKind<Record>& m_kind;
    std::span<const ExchangeRow<Record>> m_exchange;
    std::span<const ChoiceRow<Record>> m_choices;
    std::span<const CheckRow<Record>> m_checks;
};
