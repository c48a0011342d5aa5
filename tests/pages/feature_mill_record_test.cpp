// What holds for the records of all five operations of feature milling.

#include <optional>

#include "pages/feature_mills.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, EveryRecord, Mills, MillNames);
INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, RecordOfLengths, Mills, MillNames);

template <class Mill> class FeatureMillRecord : public EveryRecord<Mill> {
};
TYPED_TEST_SUITE(FeatureMillRecord, Mills, MillNames);

TYPED_TEST(FeatureMillRecord, WhateverAKeyHoldsIsReadAsItsKindOfFieldIs)
{
    struct Hostile {
        std::string text;
        std::optional<double> real; ///< nothing where a real keeps its value
    };
    const Hostile hostiles[] = {{"", {}},      {"   ", {}},  {std::string(10000, 'x'), {}}, {"nan", {}},
                                {"1e400", {}}, {"-1", -1.0}, {"2147483648", 2147483648.0}};
    const typename TypeParam::Record builtIn;
    for (const Hostile& hostile : hostiles) {
        std::string file;
        for (const std::string& section : {this->Section(), std::string("Options2x")}) {
            file += "[" + section + "]\r\n";
            for (const std::string& key : KeysOf(TypeParam::operations.fresh))
                file += key + "=" + hostile.text + "\r\n";
        }
        this->host.WriteSettings(file);
        this->record = {};
        this->Restore();
        for (const auto& field : TypeParam::fields) {
            if (field.whole) {
                const UINT read = GetPrivateProfileIntA(this->Section().c_str(), field.key, builtIn.*field.whole,
                                                        this->host.settings.c_str());
                EXPECT_EQ(static_cast<int>(read), this->record.*field.whole) << field.key;
            } else {
                const double kept = static_cast<float>(builtIn.*field.real);
                EXPECT_EQ(hostile.real.value_or(kept), this->record.*field.real) << field.key;
            }
        }
        this->host.WriteDefaults(file);
        this->Defaults();
        EXPECT_EQ(0, this->record.Units);
    }
}

} // namespace
