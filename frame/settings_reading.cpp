#include "frame/settings_reading.h"

#include "frame/patience.h"

namespace pelmar {

SettingsReading::SettingsReading(const char* file)
{
    constexpr std::uint64_t kMilliseconds = 100;
    Patience(Files().tickCount() + kMilliseconds).Insist([&] {
        m_file = Files().createFile(file, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                                    nullptr);
        return m_file != INVALID_HANDLE_VALUE;
    });
}

SettingsReading::~SettingsReading()
{
    if (m_file != INVALID_HANDLE_VALUE)
        Files().closeHandle(m_file);
}

} // namespace pelmar
