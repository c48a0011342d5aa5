// What the help's topics say in short, in the library itself: tips have it without the help file.
#pragma once

#include <string_view>

namespace pelmar {

/// The first sentence of a topic, in UTF-8; empty where there is no such topic. A page's own topic speaks of its
/// options under their labels: with a label it is the first sentence there, if the topic has such a part.
std::string_view FirstSentenceOf(std::string_view topic, std::string_view label = {});

/// The drawing of a topic, or of its part under a label: the name of a bitmap among the library's resources. Null where
/// it has none.
const char* DrawingOf(std::string_view topic, std::string_view label = {});

} // namespace pelmar
