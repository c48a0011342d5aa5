#include "speeds.h"

#include <map>

namespace toollib {
namespace {
std::map<const Tool*, ToolLibSpeedFeed> g_infos;
}

const ToolLibSpeedFeed* SpeedFeedOf(const Tool& tool)
{
    const auto found = g_infos.find(&tool);
    return found == g_infos.end() ? nullptr : &found->second;
}

void SetSpeedFeedOf(const Tool& tool, const ToolLibSpeedFeed& info)
{
    g_infos[&tool] = info;
}

void ForgetSpeedFeeds()
{
    g_infos.clear();
}

} // namespace toollib
