#include "help/topic_texts.h"

#include <algorithm>
#include <iterator>

namespace pelmar {
namespace {

struct TopicText {
    std::string_view topic;
    std::string_view label; ///< empty: the topic's head
    std::string_view sentence;
    const char* drawing;
};

/// A sentence that names an item of a list.
struct ItemText {
    std::string_view topic;
    std::string_view label; ///< empty: the topic's head
    std::string_view item;
    std::string_view sentence;
};

#include "topic_table.h"

/// The part under the label, else the head; null where there is no such topic.
const TopicText* TextOf(std::string_view topic, std::string_view label)
{
    const auto has = [topic](std::string_view heading) {
        return [topic, heading](const TopicText& text) { return text.topic == topic && text.label == heading; };
    };
    auto found = std::ranges::find_if(kTopicTexts, has(label));
    if (found == std::end(kTopicTexts))
        found = std::ranges::find_if(kTopicTexts, has({}));
    return found == std::end(kTopicTexts) ? nullptr : &*found;
}

} // namespace

std::string_view FirstSentenceOf(std::string_view topic, std::string_view label)
{
    const TopicText* const text = TextOf(topic, label);
    return text ? text->sentence : std::string_view();
}

std::string_view SentenceOnItem(std::string_view topic, std::string_view label, std::string_view item)
{
    const TopicText* const text = TextOf(topic, label);
    if (!text)
        return {};
    const auto found = std::ranges::find_if(kItemTexts, [&](const ItemText& row) {
        return row.topic == topic && row.label == text->label && row.item == item;
    });
    return found == std::end(kItemTexts) ? std::string_view() : found->sentence;
}

const char* DrawingOf(std::string_view topic, std::string_view label)
{
    const TopicText* const text = TextOf(topic, label);
    return text ? text->drawing : nullptr;
}

} // namespace pelmar
