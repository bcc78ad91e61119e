// How a function fails: it answers what it is for, or a problem.
#pragma once

#include <QString>

#include <type_traits>
#include <utility>
#include <variant>

namespace foundation {

/// Why something could not be done, in one sentence for people that names the file, option or value.
struct Problem
{
    enum class Kind {
        failed,
        notFound,   // the server knows no such thing
        outdated,   // the printer is another than the settings were made for; nothing was done
        noService,  // nobody is there to be asked
        noAccess,   // the server wants to know who asks, or does not take them for whom they say; nothing was done
        noChoice,   // nobody has said which one, and there is none to be taken for it
        unanswered, // the server was asked and has not answered: it may have been done
        locked,     // the document wants a password, or another one
    };

    QString sentence;
    Kind kind = Kind::failed;
};

/// A value or a problem. Asking for the one that is not there is a programming error.
template <class T>
class [[nodiscard]] Or
{
    using Value = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

public:
    Or()
        requires std::is_void_v<T>
    = default;
    template <class U = Value>
        requires(std::is_convertible_v<U &&, Value> && !std::is_same_v<std::remove_cvref_t<U>, Problem> &&
                 !std::is_same_v<std::remove_cvref_t<U>, Or>)
    Or(U &&value)
        : m_content(std::in_place_index<0>, std::forward<U>(value))
    {}
    Or(Problem problem)
        : m_content(std::in_place_index<1>, std::move(problem))
    {}

    explicit operator bool() const { return m_content.index() == 0; }
    Value &operator*() & { return std::get<0>(m_content); }
    const Value &operator*() const & { return std::get<0>(m_content); }
    Value &&operator*() && { return std::get<0>(std::move(m_content)); }
    Value *operator->() { return &std::get<0>(m_content); }
    const Value *operator->() const { return &std::get<0>(m_content); }

    const Problem &problem() const { return std::get<1>(m_content); }

private:
    std::variant<Value, Problem> m_content;
};

} // namespace foundation
