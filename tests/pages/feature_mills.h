// The five operations of feature milling as their tests need them told: what each record holds and each page shows.
#pragma once

#include "pages/page_checks.h"

/// How a field of a record is kept. One of the members is set.
template <class Record> struct KeptField {
    const char* key;
    int Record::*whole = nullptr;
    double Record::*real = nullptr;
};

template <class Record> struct TypedLength {
    double Record::*length;
    int Record::*type;
};

template <class RecordClass, class PageClass> struct FeatureMillOf {
    using Record = RecordClass;
    using Page = PageClass;
    using Fields = std::vector<KeptField<Record>>;
    using Reals = std::vector<RealControl<Record>>;
    using Lists = std::vector<ListControl<Record>>;
    using Boxes = std::vector<BoxControl<Record>>;
    using Lengths = std::vector<double Record::*>;
    using TypedLengths = std::vector<TypedLength<Record>>;
};

/// A field without an upper bound, and the same where there is no lower bound either.
inline std::vector<Bound> AtLeast(int id, const wchar_t* refused, const wchar_t* accepted, const wchar_t* low)
{
    return {{id, refused, accepted, low, kShownUnbounded},
            {id, L"3.4028234663852887e38*2", L"3.4028234663852886e38", low, kShownUnbounded}};
}

inline std::vector<Bound> NotNegative(int id)
{
    return AtLeast(id, L"-0.0001", L"0", L"0.0000");
}

inline std::vector<Bound> Unbounded(int id)
{
    return AtLeast(id, L"-3.4028234663852887e38*2", L"-3.4028234663852886e38", kShownUnboundedBelow);
}

inline std::vector<Bound> Joined(const std::vector<std::vector<Bound>>& parts)
{
    std::vector<Bound> all;
    for (const std::vector<Bound>& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

inline const std::vector<std::wstring> kDirectionItems = {L"Встречное", L"Попутное"};

struct FaceMill : FeatureMillOf<CFaceMillDefsInfo, CDefsFMPage> {
    using R = CFaceMillDefsInfo;
    static R* Live() { return GetLastFaceMillDefsInfo(); }
    static constexpr auto save = &R::vFaceMillDefs_Save;
    static constexpr auto restore = &R::vFaceMillDefs_Restore;
    static constexpr auto checkUnits = &R::FaceMillDefsCheckUnits;
    static constexpr int kTemplate = 4139;
    static constexpr char section[] = "FaceMill2x";
    static constexpr char fresh[] = "[FaceMill2x]\r\n"
                                    "Units=0\r\n"
                                    "DefFacingMethod=1\r\n"
                                    "DefCutingDir=2\r\n"
                                    "Facing Angle=0.000000\r\n"
                                    "DefClearEvery=1\r\n"
                                    "DefKeepToolDown=1\r\n"
                                    "DefEnableHSM=0\r\n"
                                    "DefMaxSideStepType=1\r\n"
                                    "DefMaxSideStep=0.800000\r\n"
                                    "DefRemoveZ=0.000000\r\n"
                                    "DefLeaveStockZ=0.000000\r\n"
                                    "DefSideClearanceType=0\r\n"
                                    "DefSideClearance=0.100000\r\n"
                                    "DefMaxRoughDOCType=1\r\n"
                                    "DefMaxRoughDOC=0.800000\r\n"
                                    "DefFinishDOCType=1\r\n"
                                    "DefFinishDOC=0.080000\r\n"
                                    "FinishPassZ=0\r\n"
                                    "MaxFeedBetween=4.000000\r\n"
                                    "FeedBetweenType=1\r\n"
                                    "RapidPlane=1.000000\r\n";
    static inline const std::vector<std::string> readElsewhere;
    static inline const Fields fields = {
        {"DefFacingMethod", &R::DefFacingMethod},
        {"DefCutingDir", &R::DefCutingDir},
        {"Facing Angle", nullptr, &R::FacingAngle},
        {"DefClearEvery", &R::DefClearEvery},
        {"DefKeepToolDown", &R::DefKeepToolDown},
        {"DefEnableHSM", &R::DefEnableHSM},
        {"DefMaxSideStepType", &R::DefMaxSideStepType},
        {"DefMaxSideStep", nullptr, &R::DefMaxSideStep},
        {"DefRemoveZ", nullptr, &R::DefRemoveZ},
        {"DefLeaveStockZ", nullptr, &R::DefLeaveStockZ},
        {"DefSideClearanceType", &R::DefSideClearanceType},
        {"DefSideClearance", nullptr, &R::DefSideClearance},
        {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", nullptr, &R::DefMaxRoughDOC},
        {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", nullptr, &R::DefFinishDOC},
        {"FinishPassZ", &R::FinishPassZ},
        {"MaxFeedBetween", nullptr, &R::MaxFeedBetween},
        {"FeedBetweenType", &R::FeedBetweenType},
        {"RapidPlane", nullptr, &R::RapidPlane},
    };
    static inline const Lengths lengths = {&R::DefRemoveZ, &R::DefLeaveStockZ, &R::RapidPlane};
    static inline const TypedLengths typedLengths = {{&R::DefMaxSideStep, &R::DefMaxSideStepType},
                                                     {&R::DefSideClearance, &R::DefSideClearanceType},
                                                     {&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                                     {&R::DefFinishDOC, &R::DefFinishDOCType},
                                                     {&R::MaxFeedBetween, &R::FeedBetweenType}};
    static inline const Lengths unscaled = {&R::FacingAngle};

    static inline const Reals reals = {
        {4441, &R::FacingAngle, L"0.0000"},      {4445, &R::DefMaxSideStep, L"0.8000"},
        {4447, &R::DefRemoveZ, L"0.0000"},       {4448, &R::DefLeaveStockZ, L"0.0000"},
        {4449, &R::DefSideClearance, L"0.1000"}, {4451, &R::DefMaxRoughDOC, L"0.8000"},
        {4452, &R::DefFinishDOC, L"0.0800"},     {4459, &R::RapidPlane, L"1.0000"},
    };
    static inline const Lists lists = {
        {4439, &R::DefFacingMethod, {L"По строке", L"По зигзагу", L"По спирали"}},
        {4440, &R::DefCutingDir, kDirectionItems, 1},
        {4446, &R::DefMaxSideStepType, kLengthTypeItems},
        {4450, &R::DefSideClearanceType, kLengthTypeItems},
        {4454, &R::DefMaxRoughDOCType, kLengthTypeItems},
        {4455, &R::DefFinishDOCType, kLengthTypeItems},
    };
    static inline const Boxes boxes = {{4442, &R::DefClearEvery}, {4443, &R::DefKeepToolDown}};
    static inline const std::vector<Bound> bounds = Joined(
        {AtLeast(4445, L"0", L"0.0001", L"0.0001"), AtLeast(4449, L"0.00009", L"0.0001", L"0.0001"), NotNegative(4447),
         NotNegative(4451), NotNegative(4452), Unbounded(4441), Unbounded(4448), Unbounded(4459)});
    /// The edits whose texts are checked, in the order in which they are.
    static inline const std::vector<int> exchangeOrder = {4441, 4449, 4447, 4445, 4451, 4453, 4452, 4448, 4457, 4459};
    static inline const std::vector<int> plainEdits = {4453};
    static constexpr int R::*finishPasses = &R::FinishPassZ;
};

struct ChamferMill : FeatureMillOf<CChamferMillDefsInfo, CDefsCMPage> {
    using R = CChamferMillDefsInfo;
    static R* Live() { return GetLastChamferMillDefsInfo(); }
    static constexpr auto save = &R::vChamferMillDefs_Save;
    static constexpr auto restore = &R::vChamferMillDefs_Restore;
    static constexpr auto checkUnits = &R::ChamferMillDefsCheckUnits;
    static constexpr int kTemplate = 4156;
    static constexpr char section[] = "ChamferMill2x";
    static constexpr char fresh[] = "[ChamferMill2x]\r\n"
                                    "Units=0\r\n"
                                    "DefChamferLen=0.010000\r\n"
                                    "DefCutingDir=2\r\n"
                                    "DefLeaveStockZ=0.000000\r\n"
                                    "DefMaxRoughDOCType=0\r\n"
                                    "DefMaxRoughDOC=0.025000\r\n"
                                    "DefFinishDOCType=0\r\n"
                                    "DefFinishDOC=0.002500\r\n"
                                    "FinishPassZ=1\r\n"
                                    "RapidPlane=1.000000\r\n";
    static inline const std::vector<std::string> readElsewhere;
    static inline const Fields fields = {
        {"DefChamferLen", nullptr, &R::DefChamferLen},   {"DefCutingDir", &R::DefCutingDir},
        {"DefLeaveStockZ", nullptr, &R::DefLeaveStockZ}, {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", nullptr, &R::DefMaxRoughDOC}, {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", nullptr, &R::DefFinishDOC},     {"FinishPassZ", &R::FinishPassZ},
        {"RapidPlane", nullptr, &R::RapidPlane},
    };
    static inline const Lengths lengths = {&R::DefChamferLen, &R::DefLeaveStockZ, &R::RapidPlane};
    static inline const TypedLengths typedLengths = {{&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                                     {&R::DefFinishDOC, &R::DefFinishDOCType}};
    static inline const Lengths unscaled;

    static inline const Reals reals = {
        {4460, &R::DefChamferLen, L"0.0100"},  {4448, &R::DefLeaveStockZ, L"0.0000"},
        {4451, &R::DefMaxRoughDOC, L"0.0250"}, {4452, &R::DefFinishDOC, L"0.0025"},
        {4459, &R::RapidPlane, L"1.0000"},
    };
    static inline const Lists lists = {
        {4440, &R::DefCutingDir, kDirectionItems, 1},
        {4454, &R::DefMaxRoughDOCType, kLengthTypeItems},
        {4455, &R::DefFinishDOCType, kLengthTypeItems},
    };
    static inline const Boxes boxes;
    static inline const std::vector<Bound> bounds =
        Joined({NotNegative(4460), NotNegative(4448), NotNegative(4451), NotNegative(4452), NotNegative(4459)});
    static inline const std::vector<int> exchangeOrder = {4451, 4453, 4452, 4448, 4459, 4460};
    static inline const std::vector<int> plainEdits = {4453};
    static constexpr int R::*finishPasses = &R::FinishPassZ;
};

struct RoundMill : FeatureMillOf<CRoundMillDefsInfo, CDefsRMPage> {
    using R = CRoundMillDefsInfo;
    static R* Live() { return GetLastRoundMillDefsInfo(); }
    static constexpr auto save = &R::vRoundMillDefs_Save;
    static constexpr auto restore = &R::vRoundMillDefs_Restore;
    static constexpr auto checkUnits = &R::RoundMillDefsCheckUnits;
    static constexpr int kTemplate = 4146;
    static constexpr char section[] = "RoundMill";
    static constexpr char fresh[] = "[RoundMill]\r\n"
                                    "Units=0\r\n"
                                    "DefCutingDir=2\r\n"
                                    "DefLeaveStockZ=0.000000\r\n"
                                    "DefMaxRoughDOCType=1\r\n"
                                    "DefMaxRoughDOC=0.800000\r\n"
                                    "DefFinishDOCType=1\r\n"
                                    "DefFinishDOC=0.080000\r\n"
                                    "FinishPassZ=0\r\n"
                                    "RapidPlane=1.000000\r\n"
                                    "SideClearance=0.100000\r\n"
                                    "SideClearanceType=1\r\n";
    /// Written to the record's section, but read from "Options2x".
    static inline const std::vector<std::string> readElsewhere = {"SideClearance", "SideClearanceType"};
    static inline const Fields fields = {
        {"DefCutingDir", &R::DefCutingDir},
        {"DefLeaveStockZ", nullptr, &R::DefLeaveStockZ},
        {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", nullptr, &R::DefMaxRoughDOC},
        {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", nullptr, &R::DefFinishDOC},
        {"FinishPassZ", &R::FinishPassZ},
        {"RapidPlane", nullptr, &R::RapidPlane},
        {"SideClearance", nullptr, &R::SideClearance},
        {"SideClearanceType", &R::SideClearanceType},
    };
    static inline const Lengths lengths = {&R::DefLeaveStockZ, &R::RapidPlane};
    static inline const TypedLengths typedLengths = {{&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                                     {&R::DefFinishDOC, &R::DefFinishDOCType},
                                                     {&R::SideClearance, &R::SideClearanceType}};
    static inline const Lengths unscaled;

    static inline const Reals reals = {
        {4448, &R::DefLeaveStockZ, L"0.0000"}, {4451, &R::DefMaxRoughDOC, L"0.8000"},
        {4452, &R::DefFinishDOC, L"0.0800"},   {4459, &R::RapidPlane, L"1.0000"},
        {4603, &R::SideClearance, L"0.1000"},
    };
    static inline const Lists lists = {
        {4440, &R::DefCutingDir, kDirectionItems, 1},
        {4454, &R::DefMaxRoughDOCType, kLengthTypeItems},
        {4455, &R::DefFinishDOCType, kLengthTypeItems},
    };
    static inline const Boxes boxes;
    static inline const std::vector<Bound> bounds =
        Joined({NotNegative(4448), NotNegative(4451), NotNegative(4452), NotNegative(4459), Unbounded(4603)});
    static inline const std::vector<int> exchangeOrder = {4451, 4453, 4452, 4448, 4459, 4603};
    static inline const std::vector<int> plainEdits = {4453, 4603};
    static constexpr int R::*finishPasses = &R::FinishPassZ;
};

// Groove and slot milling differ in the names of three fields.

/// The fields from the fourth one on.
template <class R> std::vector<KeptField<R>> WithSharedFields(std::vector<KeptField<R>> fields)
{
    fields.insert(fields.end(), {
                                    {"RapidPlane", nullptr, &R::RapidPlane},
                                    {"PlungeClear", nullptr, &R::PlungeClear},
                                    {"PlungeClearType", &R::PlungeClearType},
                                    {"DefCutingDir", &R::DefCutingDir},
                                    {"DefLeaveStockZ", nullptr, &R::DefLeaveStockZ},
                                    {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
                                    {"DefMaxRoughDOC", nullptr, &R::DefMaxRoughDOC},
                                    {"DefRampAngle", nullptr, &R::DefRampAngle},
                                });
    return fields;
}

/// The depth has no handler of its own and is not here.
template <class R> std::vector<RealControl<R>> GrooveSlotReals()
{
    return {
        {4459, &R::RapidPlane, L"1.0000"},     {4460, &R::PlungeClear, L"0.1000"},
        {4448, &R::DefLeaveStockZ, L"0.0000"}, {4451, &R::DefMaxRoughDOC, L"0.8000"},
        {4438, &R::DefRampAngle, L"7.0000"},
    };
}

template <class R> std::vector<ListControl<R>> GrooveSlotLists(int R::*depthType, int R::*geometry)
{
    return {
        {4458, depthType, kLengthTypeItems},
        {4461,
         geometry,
         {L"По центру сверху", L"Внутри сверху", L"Внутри снизу", L"По центру снизу", L"Снаружи снизу",
          L"Снаружи сверху"}},
        {4440, &R::DefCutingDir, kDirectionItems, 1},
        {4454, &R::DefMaxRoughDOCType, kLengthTypeItems},
    };
}

inline const std::vector<Bound> kGrooveSlotBounds = Joined({NotNegative(4565),
                                                            NotNegative(4459),
                                                            NotNegative(4448),
                                                            NotNegative(4451),
                                                            {{4438, L"-0.0001", L"0", L"0.0000", L"90.0000"},
                                                             {4438, L"90.0001", L"90", L"0.0000", L"90.0000"},
                                                             {4438, L"91", L"90", L"0.0000", L"90.0000"}}});
inline const std::vector<int> kGrooveSlotExchangeOrder = {4565, 4459, 4460, 4448, 4451, 4438};
inline const std::vector<int> kGrooveSlotPlainEdits = {4565, 4438};

struct GrooveMill : FeatureMillOf<CGrooveMillDefsInfo, CDefsGMPage> {
    using R = CGrooveMillDefsInfo;
    static R* Live() { return GetLastGrooveMillDefsInfo(); }
    static constexpr auto save = &R::vGrooveMillDefs_Save;
    static constexpr auto restore = &R::vGrooveMillDefs_Restore;
    static constexpr auto checkUnits = &R::GrooveMillDefsCheckUnits;
    static constexpr int kTemplate = 4155;
    static constexpr char section[] = "GrooveMill";
    static constexpr char fresh[] = "[GrooveMill]\r\n"
                                    "Units=0\r\n"
                                    "DefGrooveDepth=1.250000\r\n"
                                    "DefGrooveDepthType=1\r\n"
                                    "DefGrooveGeomType=1\r\n"
                                    "RapidPlane=1.000000\r\n"
                                    "PlungeClear=0.100000\r\n"
                                    "PlungeClearType=0\r\n"
                                    "DefCutingDir=2\r\n"
                                    "DefLeaveStockZ=0.000000\r\n"
                                    "DefMaxRoughDOCType=1\r\n"
                                    "DefMaxRoughDOC=0.800000\r\n"
                                    "DefRampAngle=7.000000\r\n";
    static inline const std::vector<std::string> readElsewhere;
    static constexpr double R::*depth = &R::DefGrooveDepth;
    static constexpr int R::*depthType = &R::DefGrooveDepthType;
    static constexpr int R::*geometry = &R::DefGrooveGeomType;
    static constexpr wchar_t depthLabel[] = L"Глубина паза:";
    static inline const Fields fields = WithSharedFields<R>({
        {"DefGrooveDepth", nullptr, depth},
        {"DefGrooveDepthType", depthType},
        {"DefGrooveGeomType", geometry},
    });
    static inline const Lengths lengths = {depth, &R::RapidPlane, &R::PlungeClear, &R::DefLeaveStockZ};
    static inline const TypedLengths typedLengths = {{&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType}};
    static inline const Lengths unscaled = {&R::DefRampAngle};

    static inline const Reals reals = GrooveSlotReals<R>();
    static inline const Lists lists = GrooveSlotLists<R>(depthType, geometry);
    static inline const Boxes boxes;
    static inline const std::vector<Bound> bounds = kGrooveSlotBounds;
    static inline const std::vector<int> exchangeOrder = kGrooveSlotExchangeOrder;
    static inline const std::vector<int> plainEdits = kGrooveSlotPlainEdits;
};

struct SlotMill : FeatureMillOf<CSlotMillDefsInfo, CDefsSlotMillPage> {
    using R = CSlotMillDefsInfo;
    static R* Live() { return GetLastSlotMillDefsInfo(); }
    static constexpr auto save = &R::vSlotMillDefs_Save;
    static constexpr auto restore = &R::vSlotMillDefs_Restore;
    static constexpr auto checkUnits = &R::SlotMillDefsCheckUnits;
    static constexpr int kTemplate = 4158;
    static constexpr char section[] = "SlotMill";
    static constexpr char fresh[] = "[SlotMill]\r\n"
                                    "Units=0\r\n"
                                    "DefSlotDepth=1.250000\r\n"
                                    "DefSlotDepthType=1\r\n"
                                    "DefSlotGeomType=0\r\n"
                                    "RapidPlane=1.000000\r\n"
                                    "PlungeClear=0.100000\r\n"
                                    "PlungeClearType=0\r\n"
                                    "DefCutingDir=2\r\n"
                                    "DefLeaveStockZ=0.000000\r\n"
                                    "DefMaxRoughDOCType=1\r\n"
                                    "DefMaxRoughDOC=0.800000\r\n"
                                    "DefRampAngle=7.000000\r\n";
    static inline const std::vector<std::string> readElsewhere;
    static constexpr double R::*depth = &R::DefSlotDepth;
    static constexpr int R::*depthType = &R::DefSlotDepthType;
    static constexpr int R::*geometry = &R::DefSlotGeomType;
    static constexpr wchar_t depthLabel[] = L"Глубина уровня:";
    static inline const Fields fields = WithSharedFields<R>({
        {"DefSlotDepth", nullptr, depth},
        {"DefSlotDepthType", depthType},
        {"DefSlotGeomType", geometry},
    });
    static inline const Lengths lengths = {depth, &R::RapidPlane, &R::PlungeClear, &R::DefLeaveStockZ};
    static inline const TypedLengths typedLengths = {{&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType}};
    static inline const Lengths unscaled = {&R::DefRampAngle};

    static inline const Reals reals = GrooveSlotReals<R>();
    static inline const Lists lists = GrooveSlotLists<R>(depthType, geometry);
    static inline const Boxes boxes;
    static inline const std::vector<Bound> bounds = kGrooveSlotBounds;
    static inline const std::vector<int> exchangeOrder = kGrooveSlotExchangeOrder;
    static inline const std::vector<int> plainEdits = kGrooveSlotPlainEdits;
};

/// Opens fresh pages of one of the operations over a fresh live record.
template <class Mill> class FeatureMillPageTest
    : public OptionPageTest<typename Mill::Page, typename Mill::Record, &Mill::Live> {
protected:
    int OtherControl(int) override { return 4456; }
};
