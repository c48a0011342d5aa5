// The five operations of feature milling as their tests need them told: what each record holds and each page shows.
#pragma once

#include "pages/page_suite.h"
#include "pages/record_suite.h"

template <class RecordClass, class PageClass> struct FeatureMillOf : OperationOf<RecordClass, PageClass> {
    using R = RecordClass;
    static constexpr wchar_t title[] = L"По умолчанию";
    static constexpr int other = 4440;
    static constexpr Marking listMarking = Marking::Nothing;
    static inline const Sample<R> sample = {4459,  "RapidPlane", &R::RapidPlane, L"1/8+0.02",
                                            0.145, L"0.1450",    "0.145000"};
    static inline const SampleLength<R> length = {4459, "RapidPlane", &R::RapidPlane};
    static inline const DefaultsCase defaults = {"RapidPlane=3.5\r\nDefCutingDir=1\r\n",
                                                 {{"RapidPlane", "3.500000"}, {"DefCutingDir", "1"}},
                                                 {{4459, L"3.5000"}}};
    static inline const std::vector<Topic> topics = {{0, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                                                     {4456, "pelmar-_ncdlgs_defaults_button.htm"},
                                                     {4440, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                                                     {4451, "pelmar-_options_hidd_2axis_cut_opt.htm"},
                                                     {4459, "pelmar-_options_hidd_2axis_cut_opt.htm"}};
    static inline const std::vector<Topic> absentTopics = {{4588, "pelmar-_optionspopups_toollib_gauge_length.htm"}};
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

inline const std::vector<std::wstring> kDirectionItems = {L"Встречное", L"Попутное"};

struct FaceMill : FeatureMillOf<CFaceMillDefsInfo, CDefsFMPage> {
    static constexpr auto Live = GetLastFaceMillDefsInfo;
    static constexpr int templateId = 4139;
    static inline const Operations operations = {"[FaceMill2x]\r\n"
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
                                                 "RapidPlane=1.000000\r\n",
                                                 &R::Defaults, &R::vFaceMillDefs_Save, &R::vFaceMillDefs_Restore,
                                                 &R::FaceMillDefsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const FileRules rules{.keepsUnits = true};
    static inline const Fields fields = {
        {"DefFacingMethod", &R::DefFacingMethod},
        {"DefCutingDir", &R::DefCutingDir},
        {"Facing Angle", &R::FacingAngle},
        {"DefClearEvery", &R::DefClearEvery},
        {"DefKeepToolDown", &R::DefKeepToolDown},
        {"DefEnableHSM", &R::DefEnableHSM},
        {"DefMaxSideStepType", &R::DefMaxSideStepType},
        {"DefMaxSideStep", &R::DefMaxSideStep},
        {"DefRemoveZ", &R::DefRemoveZ},
        {"DefLeaveStockZ", &R::DefLeaveStockZ},
        {"DefSideClearanceType", &R::DefSideClearanceType},
        {"DefSideClearance", &R::DefSideClearance},
        {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", &R::DefMaxRoughDOC},
        {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", &R::DefFinishDOC},
        {"FinishPassZ", &R::FinishPassZ},
        {"MaxFeedBetween", &R::MaxFeedBetween},
        {"FeedBetweenType", &R::FeedBetweenType},
        {"RapidPlane", &R::RapidPlane},
    };
    static inline const Lengths lengths = {{&R::DefRemoveZ},
                                           {&R::DefLeaveStockZ},
                                           {&R::RapidPlane},
                                           {&R::DefMaxSideStep, &R::DefMaxSideStepType},
                                           {&R::DefSideClearance, &R::DefSideClearanceType},
                                           {&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                           {&R::DefFinishDOC, &R::DefFinishDOCType},
                                           {&R::MaxFeedBetween, &R::FeedBetweenType}};
    static inline const Unscaled unscaled = {&R::FacingAngle};

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
    static inline const Boxes boxes = {{4442, &R::DefClearEvery, 1, 0, Marking::Nothing},
                                       {4443, &R::DefKeepToolDown, 1, 0, Marking::Nothing}};
    static inline const std::vector<Bound> bounds = Joined(
        {AtLeast(4445, L"0", L"0.0001", L"0.0001"), AtLeast(4449, L"0.00009", L"0.0001", L"0.0001"), NotNegative(4447),
         NotNegative(4451), NotNegative(4452), Unbounded(4441), Unbounded(4448), Unbounded(4459)});
    /// The edits whose texts are checked, in the order in which they are.
    static inline const std::vector<int> exchangeOrder = {4441, 4449, 4447, 4445, 4451, 4453, 4452, 4448, 4457, 4459};
    static inline const std::vector<int> plainEdits = {4453};
    static inline const Wholes wholes = {{4453, &R::FinishPassZ, L"0"}};
};

struct ChamferMill : FeatureMillOf<CChamferMillDefsInfo, CDefsCMPage> {
    static constexpr auto Live = GetLastChamferMillDefsInfo;
    static constexpr int templateId = 4156;
    static inline const Operations operations = {"[ChamferMill2x]\r\n"
                                                 "Units=0\r\n"
                                                 "DefChamferLen=0.010000\r\n"
                                                 "DefCutingDir=2\r\n"
                                                 "DefLeaveStockZ=0.000000\r\n"
                                                 "DefMaxRoughDOCType=0\r\n"
                                                 "DefMaxRoughDOC=0.025000\r\n"
                                                 "DefFinishDOCType=0\r\n"
                                                 "DefFinishDOC=0.002500\r\n"
                                                 "FinishPassZ=1\r\n"
                                                 "RapidPlane=1.000000\r\n",
                                                 &R::Defaults, &R::vChamferMillDefs_Save, &R::vChamferMillDefs_Restore,
                                                 &R::ChamferMillDefsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {
        {"DefChamferLen", &R::DefChamferLen},   {"DefCutingDir", &R::DefCutingDir},
        {"DefLeaveStockZ", &R::DefLeaveStockZ}, {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", &R::DefMaxRoughDOC}, {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", &R::DefFinishDOC},     {"FinishPassZ", &R::FinishPassZ},
        {"RapidPlane", &R::RapidPlane},
    };
    static inline const Lengths lengths = {{&R::DefChamferLen},
                                           {&R::DefLeaveStockZ},
                                           {&R::RapidPlane},
                                           {&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                           {&R::DefFinishDOC, &R::DefFinishDOCType}};

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
    static inline const std::vector<Bound> bounds =
        Joined({NotNegative(4460), NotNegative(4448), NotNegative(4451), NotNegative(4452), NotNegative(4459)});
    static inline const std::vector<int> exchangeOrder = {4451, 4453, 4452, 4448, 4459, 4460};
    static inline const std::vector<int> plainEdits = {4453};
    static inline const Wholes wholes = {{4453, &R::FinishPassZ, L"1"}};
};

struct RoundMill : FeatureMillOf<CRoundMillDefsInfo, CDefsRMPage> {
    static constexpr auto Live = GetLastRoundMillDefsInfo;
    static constexpr int templateId = 4146;
    static inline const Operations operations = {"[RoundMill]\r\n"
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
                                                 "SideClearanceType=1\r\n",
                                                 &R::Defaults, &R::vRoundMillDefs_Save, &R::vRoundMillDefs_Restore,
                                                 &R::RoundMillDefsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    /// Written to the record's section, but read from "Options2x".
    static inline const FileRules rules{.elsewhere =
                                            "[Options2x]\r\nSideClearance=" + ValueIn(changed, "SideClearance") +
                                            "\r\nSideClearanceType=" + ValueIn(changed, "SideClearanceType") + "\r\n",
                                        .ownRules = {"SideClearance", "SideClearanceType"}};
    static inline const Fields fields = {
        {"DefCutingDir", &R::DefCutingDir},
        {"DefLeaveStockZ", &R::DefLeaveStockZ},
        {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", &R::DefMaxRoughDOC},
        {"DefFinishDOCType", &R::DefFinishDOCType},
        {"DefFinishDOC", &R::DefFinishDOC},
        {"FinishPassZ", &R::FinishPassZ},
        {"RapidPlane", &R::RapidPlane},
        {"SideClearance", &R::SideClearance},
        {"SideClearanceType", &R::SideClearanceType},
    };
    static inline const Lengths lengths = {{&R::DefLeaveStockZ},
                                           {&R::RapidPlane},
                                           {&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType},
                                           {&R::DefFinishDOC, &R::DefFinishDOCType},
                                           {&R::SideClearance, &R::SideClearanceType}};

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
    static inline const std::vector<Bound> bounds =
        Joined({NotNegative(4448), NotNegative(4451), NotNegative(4452), NotNegative(4459), Unbounded(4603)});
    static inline const std::vector<int> exchangeOrder = {4451, 4453, 4452, 4448, 4459, 4603};
    static inline const std::vector<int> plainEdits = {4453, 4603};
    static inline const Wholes wholes = {{4453, &R::FinishPassZ, L"0"}};
};

/// The fields from the fourth one on.
template <class R> std::vector<KeptField<R>> WithSharedFields(std::vector<KeptField<R>> fields)
{
    fields.insert(fields.end(), {
                                    {"RapidPlane", &R::RapidPlane},
                                    {"PlungeClear", &R::PlungeClear},
                                    {"PlungeClearType", &R::PlungeClearType},
                                    {"DefCutingDir", &R::DefCutingDir},
                                    {"DefLeaveStockZ", &R::DefLeaveStockZ},
                                    {"DefMaxRoughDOCType", &R::DefMaxRoughDOCType},
                                    {"DefMaxRoughDOC", &R::DefMaxRoughDOC},
                                    {"DefRampAngle", &R::DefRampAngle},
                                });
    return fields;
}

/// Groove and slot milling differ in the names of three fields.
template <class RecordClass, class PageClass, auto Depth, auto DepthType, auto Geometry> struct GrooveSlotMillOf
    : FeatureMillOf<RecordClass, PageClass> {
    using R = RecordClass;
    static constexpr double R::*depth = Depth;
    static constexpr int R::*depthType = DepthType;
    static inline const std::vector<ScaledLength<R>> lengths = {{Depth},
                                                                {&R::RapidPlane},
                                                                {&R::PlungeClear},
                                                                {&R::DefLeaveStockZ},
                                                                {&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType}};
    static inline const std::vector<double R::*> unscaled = {&R::DefRampAngle};

    static inline const std::vector<RealControl<R>> reals = {
        {4459, &R::RapidPlane, L"1.0000"},     {4460, &R::PlungeClear, L"0.1000"},
        {4448, &R::DefLeaveStockZ, L"0.0000"}, {4451, &R::DefMaxRoughDOC, L"0.8000"},
        {4438, &R::DefRampAngle, L"7.0000"},
    };
    /// The depth has no handler of its own.
    static inline const std::vector<RealControl<R>> otherReals = {{4565, Depth, L"1.2500"}};
    static std::vector<ListControl<R>> SharedLists()
    {
        return {
            {4458, DepthType, kLengthTypeItems},
            {4461,
             Geometry,
             {L"По центру сверху", L"Внутри сверху", L"Внутри снизу", L"По центру снизу", L"Снаружи снизу",
              L"Снаружи сверху"}},
            {4440, &R::DefCutingDir, kDirectionItems, 1},
            {4454, &R::DefMaxRoughDOCType, kLengthTypeItems},
        };
    }
    static inline const std::vector<Bound> bounds = Joined({NotNegative(4565),
                                                            NotNegative(4459),
                                                            NotNegative(4448),
                                                            NotNegative(4451),
                                                            {{4438, L"-0.0001", L"0", L"0.0000", L"90.0000"},
                                                             {4438, L"90.0001", L"90", L"0.0000", L"90.0000"},
                                                             {4438, L"91", L"90", L"0.0000", L"90.0000"}}});
    static inline const std::vector<int> exchangeOrder = {4565, 4459, 4460, 4448, 4451, 4438};
    static inline const std::vector<int> plainEdits = {4565, 4438};
};

struct GrooveMill
    : GrooveSlotMillOf<CGrooveMillDefsInfo, CDefsGMPage, &CGrooveMillDefsInfo::DefGrooveDepth,
                       &CGrooveMillDefsInfo::DefGrooveDepthType, &CGrooveMillDefsInfo::DefGrooveGeomType> {
    static constexpr auto Live = GetLastGrooveMillDefsInfo;
    static constexpr int templateId = 4155;
    static inline const Operations operations = {"[GrooveMill]\r\n"
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
                                                 "DefRampAngle=7.000000\r\n",
                                                 &R::Defaults, &R::vGrooveMillDefs_Save, &R::vGrooveMillDefs_Restore,
                                                 &R::GrooveMillDefsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Lists lists = SharedLists();
    static constexpr wchar_t depthLabel[] = L"Глубина паза:";
    static inline const Fields fields = WithSharedFields<R>({
        {"DefGrooveDepth", depth},
        {"DefGrooveDepthType", depthType},
        {"DefGrooveGeomType", &R::DefGrooveGeomType},
    });
};

struct SlotMill : GrooveSlotMillOf<CSlotMillDefsInfo, CDefsSlotMillPage, &CSlotMillDefsInfo::DefSlotDepth,
                                   &CSlotMillDefsInfo::DefSlotDepthType, &CSlotMillDefsInfo::DefSlotGeomType> {
    static constexpr auto Live = GetLastSlotMillDefsInfo;
    static constexpr int templateId = 4158;
    static inline const Operations operations = {"[SlotMill]\r\n"
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
                                                 "DefRampAngle=7.000000\r\n",
                                                 &R::Defaults, &R::vSlotMillDefs_Save, &R::vSlotMillDefs_Restore,
                                                 &R::SlotMillDefsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Lists lists = SharedLists();
    static constexpr wchar_t depthLabel[] = L"Глубина уровня:";
    static inline const Fields fields = WithSharedFields<R>({
        {"DefSlotDepth", depth},
        {"DefSlotDepthType", depthType},
        {"DefSlotGeomType", &R::DefSlotGeomType},
    });
};

using Mills = testing::Types<FaceMill, ChamferMill, RoundMill, GrooveMill, SlotMill>;

struct MillNames {
    template <class Mill> static std::string GetName(int)
    {
        const std::string header = HeaderOf(Mill::operations.fresh);
        return header.substr(1, header.size() - 4);
    }
};
