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
    m_registrations.push_back({observer, name, std::move(handler)});
}

void NotificationCenter::removeObserver(const void *observer, const QString &name)
{
    std::erase_if(m_registrations, [&](const Registration &r) { return r.observer == observer && r.name == name; });
}

std::vector<NotificationCenter::Registration>::iterator NotificationCenter::find(const void *observer,
                                                                                 const QString &name)
{
    return std::ranges::find_if(m_registrations,
                                [&](const Registration &r) { return r.observer == observer && r.name == name; });
}

void NotificationCenter::post(const QString &name)
{
    std::vector<const void *> observers;
    for (const Registration &registration : m_registrations)
        if (registration.name == name)
            observers.push_back(registration.observer);

    for (const void *observer : observers) {
        const auto registration = find(observer, name);
        if (registration == m_registrations.end())
            continue;
        const Handler handler = registration->handler; // a copy: the handler may change the list
        handler();
    }
}

} // namespace foundation
