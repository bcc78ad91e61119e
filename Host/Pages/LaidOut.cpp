// Documents as pages of the chosen paper.
#include "LaidOut.h"

#include "ImagePages.h"
#include "TextPages.h"

namespace host {

foundation::Or<std::shared_ptr<Document>> laidOut(std::shared_ptr<Document> document, const Sheet &sheet,
                                                  const std::stop_token &stop)
{
    if (document->format() == "text/plain")
        return textPages(*document, sheet, stop);
    if (document->format().startsWith("image/"))
        return imagePages(*document, sheet, stop);
    return document;
}

} // namespace host
