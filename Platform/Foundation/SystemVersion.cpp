// The version of the system that a panel believes to run on.
#include "SystemVersion.h"

#include <QVersionNumber>

#include <algorithm>

namespace foundation {

namespace {

constexpr int kNoError = 0;
constexpr int kUndefinedSelector = -5551;

std::optional<SystemVersion> &current()
{
    static std::optional<SystemVersion> version = SystemVersion{};
    return version;
}

/// Two decimal digits of the major version, one of the minor, one of the bug-fix version; larger ones read 9.
std::int32_t packed(const SystemVersion &version)
{
    const int major = std::clamp(version.major, 0, 99);
    return ((major / 10) << 12) | ((major % 10) << 8) | (std::clamp(version.minor, 0, 9) << 4) |
           std::clamp(version.bugFix, 0, 9);
}

} // namespace

std::optional<SystemVersion> systemVersionFromString(QStringView text)
{
    // The library's parser would take blanks and signs before a number too.
    const bool plain = std::ranges::all_of(text, [](QChar c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
    qsizetype end = 0;
    const auto version = QVersionNumber::fromString(text, &end);
    if (!plain || end != text.size() || version.segmentCount() != 3)
        return std::nullopt;
    return SystemVersion{version.majorVersion(), version.minorVersion(), version.microVersion()};
}

std::optional<SystemVersion> systemVersion() { return current(); }

void setSystemVersion(std::optional<SystemVersion> version) { current() = version; }

int Gestalt(std::uint32_t selector, std::int32_t *response)
{
    const auto &version = current();
    if (!version)
        return kUndefinedSelector;
    switch (selector) {
    case gestaltSystemVersion: *response = packed(*version); return kNoError;
    case gestaltSystemVersionMajor: *response = version->major; return kNoError;
    case gestaltSystemVersionMinor: *response = version->minor; return kNoError;
    case gestaltSystemVersionBugFix: *response = version->bugFix; return kNoError;
    default: return kUndefinedSelector;
    }
}

} // namespace foundation
