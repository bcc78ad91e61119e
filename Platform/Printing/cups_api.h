// The library of the printing system: server, destinations, jobs, lists of options.
#pragma once

#include <cups/cups.h>

namespace printing {

/// A list of options that the library makes and frees.
class CupsOptions
{
public:
    CupsOptions() = default;
    ~CupsOptions() { cupsFreeOptions(m_count, m_list); }
    CupsOptions(const CupsOptions &) = delete;
    CupsOptions &operator=(const CupsOptions &) = delete;

    /// Takes the place of an earlier value of the same name.
    void add(const char *name, const char *value) { m_count = cupsAddOption(name, value, m_count, &m_list); }
    /// Adds what a line of saved options says.
    void addParsed(const char *line) { m_count = cupsParseOptions(line, m_count, &m_list); }

    int count() const { return m_count; }
    cups_option_t *list() const { return m_list; }
    const cups_option_t *begin() const { return m_list; }
    const cups_option_t *end() const { return m_list + m_count; }

    // For functions of the library that fill a list.
    int *countToFill() { return &m_count; }
    cups_option_t **listToFill() { return &m_list; }

private:
    int m_count = 0;
    cups_option_t *m_list = nullptr;
};

} // namespace printing
