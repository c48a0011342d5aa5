// The fields of all five pages of feature milling, and their defaults.

#include "pages/feature_mills.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, PageTakingEditsAtOnce, Mills, MillNames);
INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, PageWithDefaults, Mills, MillNames);
INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, PageWithDefaultsButton, Mills, MillNames);
INSTANTIATE_TYPED_TEST_SUITE_P(FeatureMill, PageOfLengths, Mills, MillNames);

} // namespace
