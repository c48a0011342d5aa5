#include "util.h"

#include <string>

namespace util {
namespace {

class AppUI final : public IAppUI {
public:
    const char* GetSettingsPath() const override { return m_settingsPath.c_str(); }
    void SetSettingsPath(const char* path) override { m_settingsPath = path ? path : ""; }

private:
    std::string m_settingsPath;
};

} // namespace

IAppUI* IAppUI::GetInstance()
{
    static AppUI instance;
    return &instance;
}

} // namespace util
