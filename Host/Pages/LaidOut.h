// Documents as pages of the chosen paper, the same on every server.
#pragma once

#include "Sheet.h"

#include "Jobs/Document.h"

#include <memory>
#include <stop_token>

namespace host {

/// The document as a PDF for a sheet, under its title: a text or an image laid out, a PDF or PostScript as it is.
/// A problem when it can't be read, is too long, or when `stop` has been asked for. May run beside the user interface;
/// needs an application that has fonts.
foundation::Or<std::shared_ptr<Document>> laidOut(std::shared_ptr<Document> document, const Sheet &sheet,
                                                  const std::stop_token &stop = {});

} // namespace host
