// What the help's topics say in short, in the library itself: tips have it without the help file.
#pragma once

#include <string_view>

namespace pelmar {

/// The first sentence of a topic, in UTF-8; empty where there is no such topic. A page's own topic speaks of its
/// options under their labels: with a label it is the first sentence there, if the topic has such a part.
std::string_view FirstSentenceOf(std::string_view topic, std::string_view label = {});

/// The first sentence there that names an item of a list; empty where none does. The item's text as the list shows it,
/// in UTF-8.
std::string_view SentenceOnItem(std::string_view topic, std::string_view label, std::string_view item);

/// The drawing of a topic, or of its part under a label: the name of a bitmap among the library's resources. Null where
/// it has none.
const char* DrawingOf(std::string_view topic, std::string_view label = {});

} // namespace pelmar
