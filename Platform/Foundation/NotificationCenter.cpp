// Named notifications inside the process.
#include "NotificationCenter.h"

#include <algorithm>

namespace foundation {

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void *observer, const QString &name, Handler handler)
{
    m_registrations.push_back({++m_lastNumber, observer, name, std::move(handler)});
}

void NotificationCenter::removeObserver(const void *observer, const QString &name)
{
    std::erase_if(m_registrations, [&](const Registration &r) { return r.observer == observer && r.name == name; });
}

void NotificationCenter::post(const QString &name)
{
    std::vector<std::uint64_t> numbers;
    for (const Registration &registration : m_registrations)
        if (registration.name == name)
            numbers.push_back(registration.number);

    for (const std::uint64_t number : numbers) {
        const auto registration = std::ranges::find(m_registrations, number, &Registration::number);
        if (registration == m_registrations.end())
            continue;
        const Handler handler = registration->handler; // a copy: the handler may change the list
        handler();
    }
}

} // namespace foundation
