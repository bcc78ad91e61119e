// The choice of perforation that the panels remember for the length of one dialog: "YES", "NO" or nothing.
#pragma once

#include "Foundation/UserDefaults.h"

namespace perforatedMemo {

inline constexpr auto kKey = "QnPerforated";

inline std::optional<QString> value() { return foundation::UserDefaults::standard().objectForKey(kKey); }

inline void store(const QString &value) { foundation::UserDefaults::standard().setObjectForKey(value, kKey); }

inline void remove()
{
    if (value())
        foundation::UserDefaults::standard().removeObjectForKey(kKey);
}

} // namespace perforatedMemo
