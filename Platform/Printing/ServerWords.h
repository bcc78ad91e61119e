// Names of options that are taken, whatever a PPD calls its own.
#pragma once

#include <QString>

#include <span>

namespace printing {

/// Attributes of jobs, documents and requests, and words that the filters of the printing system take for themselves.
std::span<const char *const> wordsOfServers();

/// Whether a keyword is one of them, in whatever letter case: no printer gets to see an option that is called so.
bool isWordOfServers(const QString &keyword);

} // namespace printing
