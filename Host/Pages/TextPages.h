// Plain texts as pages.
#pragma once

#include "Sheet.h"

#include "Jobs/Document.h"

#include <memory>
#include <stop_token>

namespace host {

/// The text as a PDF: UTF-8, or Latin-1 where some of its bytes are none.
foundation::Or<std::shared_ptr<Document>> textPages(Document &text, const Sheet &sheet, const std::stop_token &stop);

} // namespace host
