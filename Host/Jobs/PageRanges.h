// How much of a document is printed, as people and servers write it.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace host {

inline constexpr int kMaximumCopies = 999;

/// Nil when the text is no number of copies.
std::optional<int> readCopies(const QString &text);

/// "1-3,5" in the one form that servers take: in order, without overlaps or spaces. Empty for all pages; nil when the
/// text means no pages of a document.
std::optional<QString> readPageRanges(const QString &text);

/// The pages, from 1 on and in order, that ranges in that form mean of a document of `count` pages. Nil when they reach
/// beyond its end.
std::optional<std::vector<int>> pagesAmong(const QString &ranges, int count);

} // namespace host
