#include "dialogs/review_memory.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_locations.h"
#include "frame/profile.h"

namespace pelmar {
namespace {

constexpr char kReviewSection[] = "SettingsReview";
constexpr char kWidth[] = "Width";
constexpr char kHeight[] = "Height";
constexpr char kColumns[] = "Columns";
constexpr char kOrder[] = "Order"; // the column from 1, negative where it is descending
constexpr char kShown[] = "Shown";

constexpr int kLargestSize = 32000;
constexpr int kNarrowestColumn = 20;
constexpr int kWidestColumn = 4000;

const char* HostFile()
{
    return GetSettingsLocations().hostSettingsFile.c_str();
}

std::string Kept(const char* key)
{
    char text[128];
    profile::ReadText(kReviewSection, key, "", text, HostFile());
    return text;
}

/// The number that a text is within the bounds; 0 where it is none or out of them.
int NumberOf(std::string_view text, int low, int high)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && number >= low && number <= high ? number : 0;
}

/// As many numbers as there are columns, parted by commas; all 0 where they are others.
std::array<int, review::kColumns> ColumnsOf(std::string_view text)
{
    std::array<int, review::kColumns> columns{};
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const std::size_t comma = text.find(',');
        const bool isLast = column + 1 == columns.size();
        columns[column] = NumberOf(text.substr(0, comma), kNarrowestColumn, kWidestColumn);
        if (columns[column] == 0 || isLast != (comma == std::string_view::npos))
            return {};
        text.remove_prefix(isLast ? text.size() : comma + 1);
    }
    return columns;
}

std::string Joined(const std::array<int, review::kColumns>& columns)
{
    std::string text;
    for (const int width : columns) {
        text += text.empty() ? "" : ",";
        text += std::to_string(width);
    }
    return text;
}

int NumberOf(review::Order order)
{
    const int column = order.by ? static_cast<int>(*order.by) + 1 : 0;
    return order.isDescending ? -column : column;
}

review::Order OrderOf(int number)
{
    if (number == 0)
        return {};
    return {.by = static_cast<review::Column>(std::abs(number) - 1), .isDescending = number < 0};
}

void Keep(const char* key, const std::string& text)
{
    if (Kept(key) != text)
        profile::WriteText(kReviewSection, key, text.c_str(), HostFile());
}

} // namespace

ReviewMemory ReviewMemory::Load()
{
    constexpr int kLastColumn = static_cast<int>(review::kColumns);
    return {.size = {NumberOf(Kept(kWidth), 1, kLargestSize), NumberOf(Kept(kHeight), 1, kLargestSize)},
            .columns = ColumnsOf(Kept(kColumns)),
            .order = OrderOf(NumberOf(Kept(kOrder), -kLastColumn, kLastColumn)),
            .shown = static_cast<review::Shown>(NumberOf(Kept(kShown), 0, review::kShownKinds - 1))};
}

void ReviewMemory::Save() const
{
    SaveStep step;
    Keep(kWidth, std::to_string(size.cx));
    Keep(kHeight, std::to_string(size.cy));
    Keep(kColumns, Joined(columns));
    Keep(kOrder, std::to_string(NumberOf(order)));
    Keep(kShown, std::to_string(static_cast<int>(shown)));
    step.Commit();
}

} // namespace pelmar
