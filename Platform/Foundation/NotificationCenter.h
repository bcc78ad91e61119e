// Named notifications inside the process, delivered at once.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace foundation {

class NotificationCenter
{
public:
    using Handler = std::function<void()>;

    static NotificationCenter &defaultCenter();

    /// `observer` only identifies the registration. Observers are called in the order of registration.
    void addObserver(const void *observer, const QString &name, Handler handler);
    void removeObserver(const void *observer, const QString &name);

    /// Calls every observer of `name`. A handler may add and remove observers: one that is removed is not called
    /// any more, one that is added hears of the next post.
    void post(const QString &name);

private:
    struct Registration
    {
        std::uint64_t number; // tells an observer that left and came back from one that stayed
        const void *observer;
        QString name;
        Handler handler;
    };

    std::vector<Registration> m_registrations;
    std::uint64_t m_lastNumber = 0;
};

} // namespace foundation
