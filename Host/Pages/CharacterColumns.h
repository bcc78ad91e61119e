// How many columns a character takes where every column is as wide.
#pragma once

namespace host {

/// 2 for wide characters of East Asia and emoji; 0 for what combines with the character before it.
int columnsOf(char32_t character);

} // namespace host
