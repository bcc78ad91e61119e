// Images as pages.
#pragma once

#include "Sheet.h"

#include "Jobs/Document.h"

#include <memory>
#include <stop_token>

namespace host {

/// The image as a PDF, in the middle of the printable area: in its own size, or smaller where it would not fit. Each
/// page of a TIFF is a page; an animation is its first picture.
foundation::Or<std::shared_ptr<Document>> imagePages(Document &image, const Sheet &sheet, const std::stop_token &stop);

} // namespace host
