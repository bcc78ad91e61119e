// The version of the system that a panel believes to run on.
#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

namespace foundation {

struct SystemVersion
{
    int major = 11;
    int minor = 0;
    int bugFix = 0;

    friend bool operator==(const SystemVersion &, const SystemVersion &) = default;
};

/// "major.minor.bugfix"; nil when the text is anything else.
std::optional<SystemVersion> systemVersionFromString(QStringView text);

/// What Gestalt goes by; nil makes every query fail.
std::optional<SystemVersion> systemVersion();
void setSystemVersion(std::optional<SystemVersion> version);

/// Another system version while this lives, then the earlier one again.
class ScopedSystemVersion
{
public:
    explicit ScopedSystemVersion(std::optional<SystemVersion> version) { setSystemVersion(version); }
    ~ScopedSystemVersion() { setSystemVersion(m_earlier); }
    ScopedSystemVersion(const ScopedSystemVersion &) = delete;
    ScopedSystemVersion &operator=(const ScopedSystemVersion &) = delete;

private:
    std::optional<SystemVersion> m_earlier = systemVersion(); // made before the constructor sets the new one
};

/// Selectors of Gestalt: four-character codes.
inline constexpr std::uint32_t gestaltSystemVersion = 0x73797376;       // 'sysv': packed, 0x1060 is 10.6.0
inline constexpr std::uint32_t gestaltSystemVersionMajor = 0x73797331;  // 'sys1'
inline constexpr std::uint32_t gestaltSystemVersionMinor = 0x73797332;  // 'sys2'
inline constexpr std::uint32_t gestaltSystemVersionBugFix = 0x73797333; // 'sys3'

/// 0 and the answer in `response`, or another number and `response` untouched.
int Gestalt(std::uint32_t selector, std::int32_t *response);

} // namespace foundation
