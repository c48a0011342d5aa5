// What holds for the record of every operation, told of each by its description.
#pragma once

#include <type_traits>

#include "pages/operation.h"

template <class Operation> class EveryRecord : public testing::Test {
protected:
    using Record = typename Operation::Record;

    ~EveryRecord() override
    {
        *Operation::Live() = {};
        SetUnits(0);
    }

    /// The units that a page of the operation was last given.
    template <class Page = typename Operation::Page> static void SetUnits(int units)
    {
        ui::UiThread::Get().Call([&] { Page().GetData(units); });
    }
    void Restore() { (record.*Operation::operations.restore)(); }
    void Defaults() { (record.*Operation::operations.defaults)(); }
    void Convert(long units) { (record.*Operation::operations.convert)(units); }
    std::string Saved() { return ::Saved(host, record, Operation::operations); }

    /// The record's fields as a file of its section would have them.
    static std::string FieldsOf(const Record& of)
    {
        std::string file = WithValue(Fresh(), "Units", std::to_string(of.Units));
        for (const KeptField<Record>& field : Operation::fields)
            file = WithValue(file, field.key,
                             field.whole ? std::to_string(of.*field.whole) : std::to_string(of.*field.real));
        return file;
    }

    static const std::string& Fresh() { return Operation::operations.fresh; }
    static std::string Section() { return Fresh().substr(1, Fresh().find(']') - 1); }
    static std::vector<ScaledLength<Record>> LengthsOf(double Record::*field)
    {
        std::vector<ScaledLength<Record>> found;
        for (const ScaledLength<Record>& length : Operation::lengths)
            if (length.field == field)
                found.push_back(length);
        return found;
    }
    /// Whether units change the real, its type being this one where it has one.
    static bool IsScaled(double Record::*field, int type)
    {
        const std::vector<ScaledLength<Record>> lengths = LengthsOf(field);
        return !lengths.empty() && (!lengths.front().type || type == 0);
    }
    static bool IsTypeOfALength(int Record::*field)
    {
        for (const ScaledLength<Record>& length : Operation::lengths)
            if (length.type == field)
                return true;
        return false;
    }
    static std::string MetricHeader()
    {
        const std::string& unitsSection = Operation::rules.unitsSection;
        return "[" + (unitsSection.empty() ? Section() : unitsSection) + "]\r\nUnits=1\r\n";
    }
    /// A metric file with this number for every real, and this type for each length that has one.
    static std::string MetricFile(const std::string& number, int type)
    {
        std::string lines;
        for (const KeptField<Record>& field : Operation::fields) {
            if (field.real)
                lines += std::string(field.key) + "=" + number + "\r\n";
            else if (IsTypeOfALength(field.whole))
                lines += std::string(field.key) + "=" + std::to_string(type) + "\r\n";
        }
        return MetricHeader() + (Operation::rules.unitsSection.empty() ? "" : HeaderOf(Fresh())) + lines +
               (Operation::rules.elsewhere.empty() ? "" : HeaderOf(Operation::rules.elsewhere) + lines);
    }

    HostFolder host;
    typename Operation::Surroundings surroundings;
    Record record;
};
TYPED_TEST_SUITE_P(EveryRecord);

TYPED_TEST_P(EveryRecord, AFreshOneSavesItsBuiltInValuesInOrder)
{
    EXPECT_EQ(TypeParam::operations.fresh, this->Saved());
}

TYPED_TEST_P(EveryRecord, RestoresEveryKeyIntoItsFieldAndSavesThemInOrder)
{
    this->record = CheckRestoresEveryKey(this->host, TypeParam::operations, TypeParam::changed, TypeParam::rules);
    EXPECT_EQ(std::stoi(ValueIn(TypeParam::changed, "Units")), this->record.Units);
    for (const auto& field : TypeParam::fields) {
        const std::string text = ValueIn(TypeParam::changed, field.key);
        EXPECT_NE(ValueIn(TypeParam::operations.fresh, field.key), text) << field.key;
        if (field.whole) {
            EXPECT_EQ(std::stoi(text), this->record.*field.whole) << field.key;
        } else {
            EXPECT_EQ(std::stod(text), this->record.*field.real) << field.key;
        }
    }
    EXPECT_EQ(TypeParam::fields.size() + 1, KeysOf(TypeParam::changed).size());
}

TYPED_TEST_P(EveryRecord, AnAbsentKeyStaysAsItWas)
{
    const std::string& fresh = TypeParam::operations.fresh;
    const std::string& changed = TypeParam::changed;
    this->host.WriteSettings(changed + TypeParam::rules.elsewhere);
    typename TypeParam::Record other;
    (other.*TypeParam::operations.restore)();
    const std::string byDefault = WithValues(fresh, TypeParam::rules.otherDefaults);
    for (const std::string& key : KeysOf(fresh)) {
        if (Holds(TypeParam::rules.ownRules, key))
            continue;
        const std::string line = key + "=" + ValueIn(changed, key) + "\r\n";
        this->host.WriteSettings(HeaderOf(fresh) + line);
        this->record = {};
        this->Restore();
        EXPECT_EQ(WithValue(fresh, key, ValueIn(changed, key)), this->FieldsOf(this->record)) << key;

        this->host.WriteSettings(HeaderOf(fresh) + key + "=" + ValueIn(fresh, key) + "\r\n");
        this->record = other;
        this->Restore();
        EXPECT_EQ(WithValue(changed, key, ValueIn(fresh, key)), this->FieldsOf(this->record)) << key;

        if (key == "Units" || Holds(TypeParam::rules.notInDefaults, key))
            continue;
        this->host.WriteDefaults(HeaderOf(fresh) + line);
        this->record = {};
        this->Defaults();
        EXPECT_EQ(WithValue(byDefault, key, ValueIn(changed, key)), this->FieldsOf(this->record)) << key;
    }
}

TYPED_TEST_P(EveryRecord, RestoringFromAnEmptyFileKeepsEveryValueInSinglePrecision)
{
    this->host.WriteSettings("");
    this->Restore();
    for (const auto& field : TypeParam::fields)
        if (field.real) {
            EXPECT_EQ(static_cast<double>(static_cast<float>(typename TypeParam::Record().*field.real)),
                      this->record.*field.real)
                << field.key;
        }
    EXPECT_EQ(TypeParam::operations.fresh, this->Saved());
}

TYPED_TEST_P(EveryRecord, RestoringAMetricFileScalesNothing)
{
    this->host.WriteSettings(HeaderOf(TypeParam::operations.fresh) + "Units=1\r\n");
    this->Restore();
    EXPECT_EQ(1, this->record.Units);
    EXPECT_EQ(WithValue(TypeParam::operations.fresh, "Units", "1"), this->Saved());
    std::string metric = this->MetricFile("2.5", 0);
    if (!TypeParam::rules.unitsSection.empty())
        metric += "Units=1\r\n";
    this->host.WriteSettings(metric);
    this->Restore();
    EXPECT_EQ(1, this->record.Units);
    for (const auto& field : TypeParam::fields)
        if (field.real) {
            EXPECT_EQ(2.5, this->record.*field.real) << field.key;
        }
}

TYPED_TEST_P(EveryRecord, DefaultsAreTheValuesOfTheDefaultsFileOverTheBuiltInOnes)
{
    CheckDefaults(this->host, TypeParam::operations, TypeParam::changed, TypeParam::rules);
}

TYPED_TEST_P(EveryRecord, DefaultsAreConvertedFromTheUnitsOfTheirFileToThoseOfThePageOrNotAtAll)
{
    this->host.WriteSettings(TypeParam::changed + TypeParam::rules.elsewhere);
    for (const int type : {0, 1})
        for (const int given : {0, 1, 2}) { // only 1 is millimetre
            this->host.WriteDefaults(this->MetricFile("5", type));
            this->SetUnits(given);
            this->Defaults();
            EXPECT_EQ(given == 1 ? 1 : 0, this->record.Units);
            for (const auto& field : TypeParam::fields)
                if (field.real) {
                    const bool isScaled = given != 1 && this->IsScaled(field.real, type);
                    EXPECT_EQ(isScaled ? 0.2 : 5.0, this->record.*field.real) << field.key;
                }
        }
}

TYPED_TEST_P(EveryRecord, DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesInTheUnitsOfThePage)
{
    const typename TypeParam::Record builtIn;
    this->host.WriteDefaults(this->MetricHeader());
    this->SetUnits(1);
    this->Defaults();
    EXPECT_EQ(1, this->record.Units);
    for (const auto& field : TypeParam::fields)
        if (field.real) {
            const auto lengths = this->LengthsOf(field.real);
            const bool isScaled = !lengths.empty() && (!lengths[0].type || builtIn.*lengths[0].type == 0);
            const double expected = builtIn.*field.real * (isScaled ? 25.0 : 1.0);
            EXPECT_EQ(static_cast<float>(expected), static_cast<float>(this->record.*field.real)) << field.key;
        }
}

TYPED_TEST_P(EveryRecord, OnlyItsOwnPageChangesTheUnitsThatItsDefaultsEndIn)
{
    using Stranger =
        std::conditional_t<std::is_same_v<typename TypeParam::Page, CDefs2xPage>, CDefs3xPage, CDefs2xPage>;
    this->template SetUnits<Stranger>(1);
    this->Defaults();
    EXPECT_EQ(0, this->record.Units);
    this->SetUnits(1);
    this->template SetUnits<Stranger>(0);
    this->Defaults();
    EXPECT_EQ(1, this->record.Units);
}

TYPED_TEST_P(EveryRecord, RealsThatAreNoNumbersKeepTheirValue)
{
    const auto& operations = TypeParam::operations;
    CheckHostileReals(this->host, operations.fresh, operations.restore, operations.save);
}

TYPED_TEST_P(EveryRecord, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    const auto& operations = TypeParam::operations;
    CheckWholeNumbers(this->host, operations.fresh, operations.restore, operations.save, TypeParam::rules.ownRules);
}

TYPED_TEST_P(EveryRecord, IsScaledAsItsDescriptionSaysWhichNamesEveryRealOnce)
{
    for (const auto& field : TypeParam::fields)
        if (field.real) {
            const auto& unscaled = TypeParam::unscaled;
            const auto named = std::count(unscaled.begin(), unscaled.end(), field.real) +
                               static_cast<std::ptrdiff_t>(this->LengthsOf(field.real).size());
            EXPECT_EQ(1, named) << field.key;
        }
    EXPECT_EQ(KeysOf(TypeParam::operations.fresh).size(), TypeParam::fields.size() + 1);
}

TYPED_TEST_P(EveryRecord, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, TypeParam::Live());
    EXPECT_EQ(TypeParam::Live(), TypeParam::Live());
}

REGISTER_TYPED_TEST_SUITE_P(EveryRecord, AFreshOneSavesItsBuiltInValuesInOrder,
                            RestoresEveryKeyIntoItsFieldAndSavesThemInOrder, AnAbsentKeyStaysAsItWas,
                            RestoringFromAnEmptyFileKeepsEveryValueInSinglePrecision, RestoringAMetricFileScalesNothing,
                            DefaultsAreTheValuesOfTheDefaultsFileOverTheBuiltInOnes,
                            DefaultsAreConvertedFromTheUnitsOfTheirFileToThoseOfThePageOrNotAtAll,
                            DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesInTheUnitsOfThePage,
                            OnlyItsOwnPageChangesTheUnitsThatItsDefaultsEndIn, RealsThatAreNoNumbersKeepTheirValue,
                            WholeNumbersAreTakenAsThePlatformReadsThem,
                            IsScaledAsItsDescriptionSaysWhichNamesEveryRealOnce, TheLiveInstanceIsAlwaysTheSame);

// ---- records that units change: all but the lathe's ----

template <class Operation> class RecordOfLengths : public EveryRecord<Operation> {
};
TYPED_TEST_SUITE_P(RecordOfLengths);

TYPED_TEST_P(RecordOfLengths, ConvertingScalesEachLengthThereAndBackExactlyWhileItsOwnTypeIsConstant)
{
    std::vector<int TypeParam::Record::*> otherTypes;
    for (const auto& field : TypeParam::fields)
        if (field.whole && !this->IsTypeOfALength(field.whole))
            otherTypes.push_back(field.whole);
    CheckConversion(TypeParam::operations, TypeParam::lengths, TypeParam::unscaled);
    CheckConversion(TypeParam::operations, TypeParam::lengths, TypeParam::unscaled, otherTypes);
}

TYPED_TEST_P(RecordOfLengths, ConvertingChangesNoWholeNumberAndNothingInItsOwnUnits)
{
    this->Convert(0);
    EXPECT_EQ(TypeParam::operations.fresh, this->Saved());
    this->host.WriteSettings(TypeParam::changed + TypeParam::rules.elsewhere);
    this->Restore();
    this->record.Units = 0;
    this->Convert(1);
    EXPECT_EQ(1, this->record.Units);
    for (const auto& field : TypeParam::fields)
        if (field.whole) {
            EXPECT_EQ(std::stoi(ValueIn(TypeParam::changed, field.key)), this->record.*field.whole) << field.key;
        }
    const std::string metric = this->FieldsOf(this->record);
    this->Convert(1);
    EXPECT_EQ(metric, this->FieldsOf(this->record));
}

TYPED_TEST_P(RecordOfLengths, TheUnitsThatItsPageIsGivenConvertTheLiveOneAndOnlyOneIsMillimetre)
{
    auto& live = *TypeParam::Live();
    for (const auto& length : TypeParam::lengths) {
        live = {};
        live.*length.field = 1.0;
        if (length.type)
            live.*length.type = 0;
        this->SetUnits(1);
        EXPECT_EQ(1, live.Units);
        EXPECT_EQ(25.0, live.*length.field);
        this->SetUnits(1);
        EXPECT_EQ(25.0, live.*length.field);
        this->SetUnits(2);
        EXPECT_EQ(0, live.Units);
        EXPECT_EQ(1.0, live.*length.field);
    }
    live = {};
    this->SetUnits(1);
    (live.*TypeParam::operations.defaults)();
    EXPECT_EQ(1, live.Units);
    const auto untyped = std::find_if(TypeParam::lengths.begin(), TypeParam::lengths.end(),
                                      [](const auto& length) { return !length.type; });
    if (untyped != TypeParam::lengths.end()) {
        EXPECT_FLOAT_EQ(static_cast<float>(25.0 * typename TypeParam::Record().*untyped->field),
                        static_cast<float>(live.*untyped->field));
    }
}

REGISTER_TYPED_TEST_SUITE_P(RecordOfLengths, ConvertingScalesEachLengthThereAndBackExactlyWhileItsOwnTypeIsConstant,
                            ConvertingChangesNoWholeNumberAndNothingInItsOwnUnits,
                            TheUnitsThatItsPageIsGivenConvertTheLiveOneAndOnlyOneIsMillimetre);
